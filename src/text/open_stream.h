// From a caller's path to an open file stream. The one place where platforms differ.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace vexil {

enum class OpenMode { Read = 1, Write = 2 };

// Checks a caller's path.
//   path            its buffer, UTF-8; null counts as empty.
//   pathBufferSize  size of the buffer in bytes, counting the NUL; above 260 the path is not looked
//                   at.
//   state           receives the result code when the path is refused, and is otherwise left alone.
// Returns the path, valid UTF-8, or an empty text when it is refused.
std::string CheckedPath(const char* path, std::uint32_t pathBufferSize, std::uint32_t& state);

// Opens the file at path, as CheckedPath gave it, as text and without locking others out; writing
// creates or empties it. Clears the state of the stream; a failed open leaves it without a file and
// with failbit set.
void OpenStream(std::fstream& stream, const std::string& path, OpenMode mode);

}  // namespace vexil
