// Reads the file that a command names, or standard input.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "file/descriptor.h"

namespace vexil::tool {

// The argument for standard input and output.
inline constexpr std::string_view StandardStream = "-";

struct InputFile {
    Descriptor file;  // stays open, so that an output can be compared with it, see IsSameFile
    std::string bytes;
    bool isPlain = false;  // reading the path again gives the same bytes
};

// Reads a whole file.
//   path  may have any length; StandardStream is standard input.
std::error_code ReadInput(const std::string& path, InputFile& input);

}  // namespace vexil::tool
