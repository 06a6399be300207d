// Descriptors, and loops that repeat read and write.
// SPDX-License-Identifier: MIT
#include "file/descriptor.h"

#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace vexil::tool {
namespace {

// The most bytes that a call transfers. The type is one that every system accepts.
unsigned TransferSize(std::size_t size) {
    constexpr std::size_t Largest = std::size_t{1} << 20U;
    return static_cast<unsigned>(std::min(size, Largest));
}

// Repeats a call while signals interrupt it.
template <typename Call>
std::ptrdiff_t Uninterrupted(Call call) {
    std::ptrdiff_t count = 0;
    do {
        count = call();
    } while (count < 0 && errno == EINTR);
    return count;
}

}  // namespace

Descriptor::~Descriptor() {
    if (IsOpen()) {
        close(value);
    }
}

std::error_code Descriptor::Close() {
    if (!IsOpen() || close(std::exchange(value, None)) == 0) {
        return {};
    }
    return LastError();
}

std::error_code LastError() {
    return {errno, std::generic_category()};
}

std::error_code ReadAll(int descriptor, std::string& bytes) {
    constexpr std::size_t LeastRoom = std::size_t{64} * 1024;
    std::size_t size = bytes.size();
    for (;;) {
        // Uses the reserved capacity first. Then doubles it, so that the cost of copies is linear
        // in the size of the file.
        if (size == bytes.size()) {
            bytes.resize(size < bytes.capacity() ? bytes.capacity()
                                                 : std::max(2 * size, LeastRoom));
        }
        const unsigned room = TransferSize(bytes.size() - size);
        const std::ptrdiff_t count =
            Uninterrupted([&] { return read(descriptor, bytes.data() + size, room); });
        if (count <= 0) {
            bytes.resize(size);
            return count == 0 ? std::error_code() : LastError();
        }
        size += static_cast<std::size_t>(count);
    }
}

std::error_code WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const unsigned size = TransferSize(bytes.size());
        const std::ptrdiff_t count =
            Uninterrupted([&] { return write(descriptor, bytes.data(), size); });
        if (count < 0) {
            return LastError();
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return {};
}

}  // namespace vexil::tool
