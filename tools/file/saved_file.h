// Saves a file completely or not at all.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace vexil::tool {

// Writes the bytes to a temporary file in the same folder and flushes it to the disk. Then renames
// the temporary file. Until then, and after any error, the old file is unchanged.
//   path  may have any length. A symbolic link is followed. A device or pipe is opened and written.
// The new file has the permissions of the old one, and its owner if the system allows it. A file
// that the user may not write is not replaced.
std::error_code SaveFile(const std::string& path, std::string_view bytes);

// Returns whether the path is that of the file that is open at the descriptor.
bool IsSameFile(const std::string& path, int descriptor);

}  // namespace vexil::tool
