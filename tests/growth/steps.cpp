// The counters behind Measure: the callback of the instrumented blocks, wrappers of the memory
// functions, which the linker puts in their place, and the operators new and delete.
// SPDX-License-Identifier: MIT
#include "steps.h"

#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

std::uint64_t steps = 0;
std::uint64_t stepLimit = ~std::uint64_t{0};
std::uint64_t liveBytes = 0;
std::uint64_t peakBytes = 0;

[[noreturn]] void Stop() {
    std::fprintf(stderr, "stopped after %llu steps\n", static_cast<unsigned long long>(stepLimit));
    std::_Exit(EXIT_FAILURE);
}

void Count(std::uint64_t count) {
    steps += count;
    if (steps > stepLimit) {
        Stop();
    }
}

void* Allocate(std::size_t size) {
    void* memory = std::malloc(std::max<std::size_t>(size, 1));
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    Count(1);
    liveBytes += malloc_usable_size(memory);
    peakBytes = std::max(peakBytes, liveBytes);
    return memory;
}

void Free(void* memory) noexcept {
    if (memory != nullptr) {
        liveBytes -= malloc_usable_size(memory);
        std::free(memory);
    }
}

// The bytes that a comparison looks at: up to the first difference.
std::size_t ComparedBytes(const void* left, const void* right, std::size_t size) {
    const auto* a = static_cast<const unsigned char*>(left);
    const auto* b = static_cast<const unsigned char*>(right);
    std::size_t at = 0;
    while (at < size && a[at] == b[at]) {
        ++at;
    }
    return std::min(at + 1, size);
}

}  // namespace

extern "C" {

void __sanitizer_cov_trace_pc();
void __sanitizer_cov_trace_pc() {
    if (++steps > stepLimit) {
        Stop();
    }
}

void* __real_memcpy(void* to, const void* from, std::size_t size);
void* __wrap_memcpy(void* to, const void* from, std::size_t size);
void* __wrap_memcpy(void* to, const void* from, std::size_t size) {
    Count(size);
    return __real_memcpy(to, from, size);
}

void* __real_memmove(void* to, const void* from, std::size_t size);
void* __wrap_memmove(void* to, const void* from, std::size_t size);
void* __wrap_memmove(void* to, const void* from, std::size_t size) {
    Count(size);
    return __real_memmove(to, from, size);
}

void* __real_memset(void* to, int value, std::size_t size);
void* __wrap_memset(void* to, int value, std::size_t size);
void* __wrap_memset(void* to, int value, std::size_t size) {
    Count(size);
    return __real_memset(to, value, size);
}

void* __real_memchr(const void* in, int value, std::size_t size);
void* __wrap_memchr(const void* in, int value, std::size_t size);
void* __wrap_memchr(const void* in, int value, std::size_t size) {
    void* found = __real_memchr(in, value, size);
    Count(found == nullptr ? size
                           : static_cast<std::size_t>(static_cast<const char*>(found) -
                                                      static_cast<const char*>(in)) +
                                 1);
    return found;
}

int __real_memcmp(const void* left, const void* right, std::size_t size);
int __wrap_memcmp(const void* left, const void* right, std::size_t size);
int __wrap_memcmp(const void* left, const void* right, std::size_t size) {
    Count(ComparedBytes(left, right, size));
    return __real_memcmp(left, right, size);
}

std::size_t __real_strlen(const char* text);
std::size_t __wrap_strlen(const char* text);
std::size_t __wrap_strlen(const char* text) {
    const std::size_t length = __real_strlen(text);
    Count(length + 1);
    return length;
}

// The hash function of the standard library, which walks over its key.
std::size_t __real__ZSt11_Hash_bytesPKvmm(const void* key, std::size_t size, std::size_t seed);
std::size_t __wrap__ZSt11_Hash_bytesPKvmm(const void* key, std::size_t size, std::size_t seed);
std::size_t __wrap__ZSt11_Hash_bytesPKvmm(const void* key, std::size_t size, std::size_t seed) {
    Count(size);
    return __real__ZSt11_Hash_bytesPKvmm(key, size, seed);
}

}  // extern "C"

void* operator new(std::size_t size) {
    return Allocate(size);
}

void* operator new[](std::size_t size) {
    return Allocate(size);
}

void operator delete(void* memory) noexcept {
    Free(memory);
}

void operator delete[](void* memory) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    Free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    Free(memory);
}

namespace vexil::growth {

Cost Measure(const std::function<void()>& work, std::uint64_t limit) {
    const std::uint64_t before = liveBytes;
    peakBytes = liveBytes;
    steps = 0;
    stepLimit = limit;
    work();
    stepLimit = ~std::uint64_t{0};
    return {steps, peakBytes - before};
}

}  // namespace vexil::growth
