// The counters of Measure: the callback of the instrumented blocks, wrappers of the memory
// functions and of write, which the linker puts in their place, and the operators new and delete.
// SPDX-License-Identifier: MIT
#include "steps.h"

#include <malloc.h>
#include <sys/types.h>
#include <sys/uio.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

std::uint64_t steps = 0;
std::uint64_t stepLimit = vexil::growth::NoLimit;
std::uint64_t liveBytes = 0;
std::uint64_t peakBytes = 0;
std::uint64_t writtenBytes = 0;

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

// The bytes that a comparison reads: up to the first difference.
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

ssize_t __real_write(int file, const void* bytes, std::size_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t size);
ssize_t __wrap_write(int file, const void* bytes, std::size_t size) {
    const ssize_t count = __real_write(file, bytes, size);
    writtenBytes += static_cast<std::uint64_t>(std::max<ssize_t>(count, 0));
    return count;
}

ssize_t __real_writev(int file, const iovec* pieces, int pieceCount);
ssize_t __wrap_writev(int file, const iovec* pieces, int pieceCount);
ssize_t __wrap_writev(int file, const iovec* pieces, int pieceCount) {
    const ssize_t count = __real_writev(file, pieces, pieceCount);
    writtenBytes += static_cast<std::uint64_t>(std::max<ssize_t>(count, 0));
    return count;
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

// The memory resources of the standard library name the alignment even where it is an ordinary one.
void* operator new(std::size_t size, std::align_val_t alignment) {
    if (static_cast<std::size_t>(alignment) > alignof(std::max_align_t)) {
        throw std::bad_alloc();
    }
    return Allocate(size);
}

void operator delete(void* memory, std::align_val_t) noexcept {
    Free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    Free(memory);
}

namespace vexil::growth {

Cost Measure(const std::function<void()>& work, std::uint64_t limit) {
    static std::uint64_t libraryBytes = 0;  // held by the library between its calls
    const std::uint64_t otherBytes = liveBytes - libraryBytes;
    peakBytes = liveBytes;
    writtenBytes = 0;
    steps = 0;
    stepLimit = limit;
    work();
    stepLimit = NoLimit;
    libraryBytes = liveBytes - otherBytes;
    return {steps, peakBytes - otherBytes, writtenBytes};
}

}  // namespace vexil::growth
