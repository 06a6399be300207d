// Counts the memory that the process allocates. A program that links allocated_bytes.cpp uses its
// operators new and delete.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vexil::fuzz {

// Counters of the current thread, in bytes.
struct AllocatedBytes {
    std::uint64_t total = 0;  // allocated so far, including freed memory
    std::int64_t live = 0;    // allocated and not freed
    std::int64_t peak = 0;    // the largest value of live since the last RestartPeak
};

AllocatedBytes CurrentAllocatedBytes();
void RestartPeak();

}  // namespace vexil::fuzz
