// The allocator of the fault tests, in place of that of the standard library.
// SPDX-License-Identifier: MIT
#include "faults/allocations.h"

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace vexil::faults {
namespace {

constexpr std::size_t Unlimited = std::numeric_limits<std::size_t>::max();

// The tests and the library run in one thread. Constant from the start, since allocations come
// before any constructor runs.
constinit long liveBlocks = 0;
constinit std::size_t largest = Unlimited;
constinit bool isArmed = false;
constinit std::size_t firstFailure = 0;
constinit std::size_t lastFailure = 0;
constinit std::size_t count = 0;
constinit std::size_t thrown = 0;
constinit std::size_t refused = 0;

// Null when the allocation is to fail.
void* Allocate(std::size_t size) noexcept {
    if (size > largest) {
        return nullptr;
    }
    if (isArmed) {
        ++count;
        if (count >= firstFailure && count <= lastFailure) {
            return nullptr;
        }
    }
    void* const block = std::malloc(size != 0 ? size : 1);
    liveBlocks += block != nullptr ? 1 : 0;
    return block;
}

void Free(void* block) noexcept {
    liveBlocks -= block != nullptr ? 1 : 0;
    std::free(block);
}

void* AllocateOrThrow(std::size_t size) {
    void* const block = Allocate(size);
    if (block == nullptr) {
        ++thrown;
        throw std::bad_alloc();
    }
    return block;
}

void* AllocateOrRefuse(std::size_t size) noexcept {
    void* const block = Allocate(size);
    refused += block == nullptr ? 1 : 0;
    return block;
}

}  // namespace

long LiveBlocks() {
    return liveBlocks;
}

FailingAllocations::FailingAllocations(std::size_t n, Exhaustion exhaustion) {
    count = 0;
    thrown = 0;
    refused = 0;
    firstFailure = n;
    lastFailure = exhaustion == Exhaustion::Once ? n : Unlimited;
    isArmed = true;
}

FailingAllocations::~FailingAllocations() {
    isArmed = false;
}

std::size_t FailingAllocations::Count() const {
    return count;
}

std::size_t FailingAllocations::Thrown() const {
    return thrown;
}

std::size_t FailingAllocations::Refused() const {
    return refused;
}

LargestAllocation::LargestAllocation(std::size_t bytes) {
    largest = bytes;
}

LargestAllocation::~LargestAllocation() {
    largest = Unlimited;
}

}  // namespace vexil::faults

using namespace vexil::faults;

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateOrRefuse(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return AllocateOrRefuse(size);
}

// The arena of the library asks for the alignment of a number, which every block has.
void* operator new(std::size_t size, std::align_val_t alignment) {
    if (static_cast<std::size_t>(alignment) > alignof(std::max_align_t)) {
        std::abort();
    }
    return AllocateOrThrow(size);
}

void operator delete(void* block) noexcept {
    Free(block);
}

void operator delete[](void* block) noexcept {
    Free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    Free(block);
}

void operator delete(void* block, std::align_val_t) noexcept {
    Free(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    Free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    Free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    Free(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    Free(block);
}
