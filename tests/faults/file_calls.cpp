// The calls of the fault tests to the system, in place of those of the C library.
// SPDX-License-Identifier: MIT
#include "faults/file_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <limits>

#include "support/memory_sanitizer.h"

namespace vexil::faults {
namespace {

constexpr int NoDescriptor = -1;

struct Watch {
    std::size_t count = 0;
    std::size_t bytes = 0;
    std::size_t firstFailure = 0;
    std::size_t lastFailure = 0;
    int error = 0;
};

struct State {
    std::array<Watch, 4> watches{};
    int descriptor = NoDescriptor;  // of the file that is open
    int closed = NoDescriptor;      // of the file that was closed last
    std::size_t sizeLimit = std::numeric_limits<std::size_t>::max();
    std::size_t endsOfFile = 0;
    std::vector<std::string> writes;
};

// The tests and the library run in one thread.
constinit bool isWatching = false;
constinit State state;

Watch& WatchOf(FileCall call) {
    return state.watches[static_cast<std::size_t>(call)];
}

bool IsWatched(int descriptor) {
    return isWatching && descriptor == state.descriptor;
}

// Counts the call. Returns whether it is to fail, with errno set.
bool Fails(FileCall call) {
    Watch& watch = WatchOf(call);
    ++watch.count;
    if (watch.count < watch.firstFailure || watch.count > watch.lastFailure) {
        return false;
    }
    errno = watch.error;
    return true;
}

std::size_t Limited(std::size_t size) {
    return std::min(size, state.sizeLimit);
}

ssize_t CountBytes(FileCall call, ssize_t size) {
    if (size > 0) {
        WatchOf(call).bytes += static_cast<std::size_t>(size);
    }
    return size;
}

// The function of that name in the libraries of this program.
template <typename Function>
Function* Next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

ssize_t ReadNext(int descriptor, void* bytes, std::size_t size) {
    static auto* const next = Next<ssize_t(int, void*, std::size_t)>("read");
    const ssize_t count = next(descriptor, bytes, size);
    test::MarkAsInitialised(bytes, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return count;
}

}  // namespace

WatchedFileCalls::WatchedFileCalls() {
    state = {};
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
    state.sizeLimit = bytes;
}

std::size_t WatchedFileCalls::Count(FileCall call) const {
    return WatchOf(call).count;
}

std::size_t WatchedFileCalls::Bytes(FileCall call) const {
    return WatchOf(call).bytes;
}

std::size_t WatchedFileCalls::EndsOfFile() const {
    return state.endsOfFile;
}

const std::vector<std::string>& WatchedFileCalls::Writes() const {
    return state.writes;
}

}  // namespace vexil::faults

using namespace vexil::faults;

extern "C" {

int open(const char* path, int flags, ...) {
    static auto* const next = Next<int(const char*, int, ...)>("open");
    mode_t permissions = 0;
    if ((flags & O_CREAT) != 0) {
        va_list arguments;
        va_start(arguments, flags);
        permissions = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    if (isWatching && Fails(FileCall::Open)) {
        return -1;
    }
    const int descriptor = next(path, flags, permissions);
    if (isWatching && descriptor >= 0) {
        state.descriptor = descriptor;
        state.closed = NoDescriptor;
    }
    return descriptor;
}

ssize_t read(int descriptor, void* bytes, std::size_t size) {
    if (!IsWatched(descriptor)) {
        return ReadNext(descriptor, bytes, size);
    }
    if (Fails(FileCall::Read)) {
        return -1;
    }
    const ssize_t count = ReadNext(descriptor, bytes, Limited(size));
    state.endsOfFile += count == 0 ? 1 : 0;
    return CountBytes(FileCall::Read, count);
}

ssize_t write(int descriptor, const void* bytes, std::size_t size) {
    static auto* const next = Next<ssize_t(int, const void*, std::size_t)>("write");
    if (!IsWatched(descriptor)) {
        return next(descriptor, bytes, size);
    }
    state.writes.emplace_back(static_cast<const char*>(bytes), size);
    return Fails(FileCall::Write)
               ? -1
               : CountBytes(FileCall::Write, next(descriptor, bytes, Limited(size)));
}

int close(int descriptor) {
    static auto* const next = Next<int(int)>("close");
    const int result = next(descriptor);
    if (IsWatched(descriptor)) {
        state.descriptor = NoDescriptor;
        state.closed = descriptor;
        return Fails(FileCall::Close) ? -1 : result;
    }
    // Closing a file once more could close another one of the host.
    if (isWatching && descriptor == state.closed) {
        ++WatchOf(FileCall::Close).count;
    }
    return result;
}
}
