// File: paths and system calls.
// SPDX-License-Identifier: MIT
#include "text/file.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "text/utf8_text.h"
#include "vexil64.h"

#ifdef _WIN32
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <utf8.h>

#include <iterator>
#else
#include <unistd.h>
#endif

namespace vexil {
namespace {

// The most that one system call transfers.
constexpr std::size_t LargestTransfer = std::size_t{1} << 30U;

#ifdef _WIN32

// File names are UTF-16. Text mode is explicit, since a host may have set another default.
int OpenDescriptor(const std::string& path, OpenMode mode) {
    std::wstring widePath;
    utf8::utf8to16(path.begin(), path.end(), std::back_inserter(widePath));
    const int access = mode == OpenMode::Read ? _O_RDONLY : _O_WRONLY | _O_CREAT | _O_TRUNC;
    return _wsopen(widePath.c_str(), access | _O_TEXT | _O_NOINHERIT, _SH_DENYNO,
                   _S_IREAD | _S_IWRITE);
}

std::ptrdiff_t ReadOnce(int descriptor, char* bytes, std::size_t size) {
    return _read(descriptor, bytes, static_cast<unsigned int>(size));
}

std::ptrdiff_t WriteOnce(int descriptor, const char* bytes, std::size_t size) {
    return _write(descriptor, bytes, static_cast<unsigned int>(size));
}

void CloseDescriptor(int descriptor) {
    _close(descriptor);
}

#else

int OpenDescriptor(const std::string& path, OpenMode mode) {
    const int access = mode == OpenMode::Read ? O_RDONLY : O_WRONLY | O_CREAT | O_TRUNC;
    constexpr mode_t Permissions = 0666;  // less the umask of the process
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): open is variadic
    return open(path.c_str(), access | O_CLOEXEC, Permissions);
}

std::ptrdiff_t ReadOnce(int descriptor, char* bytes, std::size_t size) {
    return read(descriptor, bytes, size);
}

std::ptrdiff_t WriteOnce(int descriptor, const char* bytes, std::size_t size) {
    return write(descriptor, bytes, size);
}

void CloseDescriptor(int descriptor) {
    close(descriptor);
}

#endif

// Repeats a system call that a signal interrupted.
template <typename Call>
std::ptrdiff_t Uninterrupted(Call call) {
    std::ptrdiff_t count = 0;
    do {
        count = call();
    } while (count < 0 && errno == EINTR);
    return count;
}

}  // namespace

std::string CheckedPath(const char* path, std::uint32_t pathBufferSize, std::uint32_t& state) {
    std::string_view text;
    if (pathBufferSize > MaxPathBufferSize) {
        state = StatePathTooLong;
    } else if (!CopyUtf8Text(text, path, path == nullptr ? 0 : pathBufferSize)) {
        state = StatePathInvalid;
    } else if (text.empty()) {
        state = StatePathEmpty;
    }
    return std::string(text);
}

bool File::Open(const std::string& path, OpenMode mode) {
    descriptor = static_cast<int>(
        Uninterrupted([&]() -> std::ptrdiff_t { return OpenDescriptor(path, mode); }));
    return IsOpen();
}

// NOLINTNEXTLINE(readability-make-member-function-const): it moves the position
std::ptrdiff_t File::Read(std::span<char> room) noexcept {
    const std::size_t size = std::min(room.size(), LargestTransfer);
    return Uninterrupted([&] { return ReadOnce(descriptor, room.data(), size); });
}

// NOLINTNEXTLINE(readability-make-member-function-const): the file changes
std::size_t File::Write(std::string_view text) noexcept {
    std::size_t written = 0;
    while (written < text.size()) {
        const std::size_t size = std::min(text.size() - written, LargestTransfer);
        const std::ptrdiff_t count = WriteOnce(descriptor, text.data() + written, size);
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    return written;
}

void File::Close() noexcept {
    if (IsOpen()) {
        CloseDescriptor(std::exchange(descriptor, NoDescriptor));
    }
}

}  // namespace vexil
