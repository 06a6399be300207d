// An allocator for tests: counts what the program and the library hold, and fails where a test asks
// for it. A program that contains allocations.cpp allocates through it, its shared libraries
// included.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace vexil::faults {

// How many blocks are allocated and not yet freed.
long LiveBlocks();

// Which allocations fail.
enum class Exhaustion {
    Once,      // the n-th only
    FromThere  // the n-th and all later ones
};

// While it lives, allocations are counted from 1, and the n-th fails. There is one at a time.
class FailingAllocations {
  public:
    FailingAllocations(std::size_t n, Exhaustion exhaustion);
    FailingAllocations(const FailingAllocations&) = delete;
    FailingAllocations& operator=(const FailingAllocations&) = delete;
    ~FailingAllocations();

    // The number of allocations, including those that failed.
    std::size_t Count() const;

    // How many failed with std::bad_alloc, and how many with a null pointer, where the caller asked
    // for that and can do without.
    std::size_t Thrown() const;
    std::size_t Refused() const;
};

// While it lives, an allocation of more than so many bytes fails.
class LargestAllocation {
  public:
    explicit LargestAllocation(std::size_t bytes);
    LargestAllocation(const LargestAllocation&) = delete;
    LargestAllocation& operator=(const LargestAllocation&) = delete;
    ~LargestAllocation();
};

}  // namespace vexil::faults
