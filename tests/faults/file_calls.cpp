// The calls of the fault tests to the system, in place of those of the C library.
// SPDX-License-Identifier: MIT
#include "faults/file_calls.h"

#include <dlfcn.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace vexil::faults {
namespace {

struct Watch {
    std::size_t count = 0;
    std::size_t bytes = 0;
    std::size_t firstFailure = 0;
    std::size_t lastFailure = 0;
    int error = 0;
};

// The tests and the library run in one thread.
constinit bool isWatching = false;
constinit std::size_t sizeLimit = 0;
constinit std::array<Watch, 4> watches{};

Watch& WatchOf(FileCall call) {
    return watches[static_cast<std::size_t>(call)];
}

// Counts the call. Returns whether it is to fail, with errno set.
bool Fails(FileCall call) {
    if (!isWatching) {
        return false;
    }
    Watch& watch = WatchOf(call);
    ++watch.count;
    if (watch.count < watch.firstFailure || watch.count > watch.lastFailure) {
        return false;
    }
    errno = watch.error;
    return true;
}

std::size_t Limited(std::size_t size) {
    return isWatching ? std::min(size, sizeLimit) : size;
}

ssize_t CountBytes(FileCall call, ssize_t size) {
    if (isWatching && size > 0) {
        WatchOf(call).bytes += static_cast<std::size_t>(size);
    }
    return size;
}

// The function of the name behind those of this program.
template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

WatchedFileCalls::WatchedFileCalls() {
    sizeLimit = std::numeric_limits<std::size_t>::max();
    watches = {};
    isWatching = true;
}

WatchedFileCalls::~WatchedFileCalls() {
    isWatching = false;
}

void WatchedFileCalls::Fail(FileCall call, std::size_t n, std::size_t last, int error) {
    Watch& watch = WatchOf(call);
    watch.firstFailure = n;
    watch.lastFailure = last;
    watch.error = error;
}

void WatchedFileCalls::LimitSize(std::size_t bytes) {
    sizeLimit = bytes;
}

std::size_t WatchedFileCalls::Count(FileCall call) const {
    return WatchOf(call).count;
}

std::size_t WatchedFileCalls::Bytes(FileCall call) const {
    return WatchOf(call).bytes;
}

}  // namespace vexil::faults

using namespace vexil::faults;

// Those that the file streams of the standard library call, under the names that they use.
extern "C" {

FILE* fopen64(const char* path, const char* mode) {
    static auto* const next = Next<FILE*(const char*, const char*)>("fopen64");
    return Fails(FileCall::Open) ? nullptr : next(path, mode);
}

int fclose(FILE* file) {
    static auto* const next = Next<int(FILE*)>("fclose");
    const bool fails = Fails(FileCall::Close);
    const int error = errno;
    const int result = next(file);
    if (fails) {
        errno = error;
        return EOF;
    }
    return result;
}

ssize_t read(int descriptor, void* bytes, std::size_t size) {
    static auto* const next = Next<ssize_t(int, void*, std::size_t)>("read");
    return Fails(FileCall::Read)
               ? -1
               : CountBytes(FileCall::Read, next(descriptor, bytes, Limited(size)));
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static auto* const next = Next<ssize_t(int, const void*, std::size_t)>("write");
    return Fails(FileCall::Write)
               ? -1
               : CountBytes(FileCall::Write, next(descriptor, bytes, Limited(size)));
}

ssize_t writev(int descriptor, const iovec* pieces, int count) {
    static auto* const next = Next<ssize_t(int, const iovec*, int)>("writev");
    if (Fails(FileCall::Write)) {
        return -1;
    }
    // A limit may end inside the first piece that holds a byte; a system may stop there, too.
    iovec first = {nullptr, 0};
    for (int at = 0; at < count && first.iov_len == 0; ++at) {
        first = pieces[at];
    }
    if (Limited(first.iov_len) < first.iov_len) {
        first.iov_len = Limited(first.iov_len);
        return CountBytes(FileCall::Write, next(descriptor, &first, 1));
    }
    return CountBytes(FileCall::Write, next(descriptor, pieces, count));
}
}
