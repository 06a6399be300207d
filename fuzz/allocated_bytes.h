// Counts the memory that the process allocates. A program that contains allocated_bytes.cpp
// allocates through it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vexil::fuzz {

// Bytes of the current thread.
struct AllocatedBytes {
    std::uint64_t total = 0;  // allocated so far, whether or not freed since
    std::int64_t live = 0;    // allocated and not freed
    std::int64_t peak = 0;    // the largest value of live since the last RestartPeak
};

AllocatedBytes CurrentAllocatedBytes();
void RestartPeak();

}  // namespace vexil::fuzz
