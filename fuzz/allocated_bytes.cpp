// The counters of allocated memory, in replacements of the operators new and delete. The library
// allocates only with these.
// SPDX-License-Identifier: MIT
#include "allocated_bytes.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace vexil::fuzz {
namespace {

// One for each thread, because the fuzzer has a thread that monitors the others.
constinit thread_local AllocatedBytes counted;

void* AllocateOrRefuse(std::size_t size) noexcept {
    void* const memory = std::malloc(std::max<std::size_t>(size, 1));
    if (memory != nullptr) {
        const std::size_t usable = malloc_usable_size(memory);
        counted.total += usable;
        counted.live += static_cast<std::int64_t>(usable);
        counted.peak = std::max(counted.peak, counted.live);
    }
    return memory;
}

void* AllocateOrThrow(std::size_t size) {
    void* const memory = AllocateOrRefuse(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* AllocateAligned(std::size_t size, std::align_val_t alignment) {
    if (static_cast<std::size_t>(alignment) > alignof(std::max_align_t)) {
        std::abort();  // no type of the library or of a target needs it
    }
    return AllocateOrThrow(size);
}

void Free(void* memory) noexcept {
    if (memory != nullptr) {
        counted.live -= static_cast<std::int64_t>(malloc_usable_size(memory));
        std::free(memory);
    }
}

}  // namespace

AllocatedBytes CurrentAllocatedBytes() {
    return counted;
}

void RestartPeak() {
    counted.peak = counted.live;
}

}  // namespace vexil::fuzz

using namespace vexil::fuzz;

void* operator new(std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return AllocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return AllocateOrRefuse(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return AllocateOrRefuse(size);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return AllocateAligned(size, alignment);
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
    return AllocateAligned(size, alignment);
}

void operator delete(void* memory) noexcept {
    Free(memory);
}

void operator delete[](void* memory) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/) noexcept {
    Free(memory);
}

void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
    Free(memory);
}

void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::align_val_t /*alignment*/) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::size_t /*size*/,
                       std::align_val_t /*alignment*/) noexcept {
    Free(memory);
}
