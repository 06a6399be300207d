// The cost of a piece of work in steps, which are the same on every run and on every machine: one
// for each basic block that the instrumented sources pass, one for each byte that a memory function
// touches and one for each allocation. The counters are in steps.cpp, which must not be
// instrumented itself.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

namespace vexil::growth {

struct Cost {
    std::uint64_t steps = 0;
    std::uint64_t peakBytes = 0;     // most bytes that the library held at one time
    std::uint64_t writtenBytes = 0;  // to any file
};

inline constexpr std::uint64_t NoLimit = ~std::uint64_t{0};

// Runs work and returns what it cost. A work that takes more than limit steps ends the program with
// a message, since it might take hours. Every call of the library must be in such a work, so that
// memory which it still holds from earlier calls counts as well; the work must keep no other
// memory.
Cost Measure(const std::function<void()>& work, std::uint64_t limit = NoLimit);

}  // namespace vexil::growth
