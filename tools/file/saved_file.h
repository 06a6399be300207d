// Saves a file as a whole or not at all.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace vexil::tool {

// Writes the bytes to a temporary file in the folder of the file, and from there to the disk; then
// gives that file the name. Until then, and so after any error, the name keeps the file that it
// had.
//   path  may be of any length. A symbolic link is followed. What is no file, such as a device or a
//         pipe, is opened and written to.
// The file has the permissions of the one that it replaces, and its owner where the system allows
// it. One that the user may not write is not replaced.
std::error_code SaveFile(const std::string& path, std::string_view bytes);

// Whether the path leads to the file that is open at the descriptor.
bool IsSameFile(const std::string& path, int descriptor);

}  // namespace vexil::tool
