// File, an open file for reading or writing. Code for one platform alone is only in file.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vexil {

enum class OpenMode { Read = 1, Write = 2 };

// Checks a caller's path.
//   path            its buffer, UTF-8; null counts as empty.
//   pathBufferSize  size of the buffer in bytes, with the NUL; above 260 the path is not read.
//   state           receives the result code when the path is refused, and is otherwise unchanged.
// Returns the path, valid UTF-8, or an empty text when it is refused.
std::string CheckedPath(const char* path, std::uint32_t pathBufferSize, std::uint32_t& state);

// The descriptor of an open file, in text mode: on Windows the runtime translates line ends in both
// directions. Programs that the host starts do not inherit it, and other programs may open the file
// as well. Interrupted and short system calls are continued.
class File {
  public:
    File() noexcept = default;
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() { Close(); }

    // Opens the file at path, as CheckedPath returned it; writing creates or empties it. Returns
    // whether it is open. Precondition: no file is open.
    bool Open(const std::string& path, OpenMode mode);

    bool IsOpen() const noexcept { return descriptor != NoDescriptor; }

    // Reads at most room.size() bytes and returns when there are any. Returns their number: 0 at
    // the end of the file, -1 on failure.
    std::ptrdiff_t Read(std::span<char> room) noexcept;

    // Writes text. Returns the number of written bytes, less than text.size() on failure.
    std::size_t Write(std::string_view text) noexcept;

    // Closes the file, if one is open. Errors are not reported.
    void Close() noexcept;

  private:
    static constexpr int NoDescriptor = -1;

    int descriptor = NoDescriptor;
};

}  // namespace vexil
