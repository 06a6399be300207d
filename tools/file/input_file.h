// Reads the file that a command names, or standard input.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "file/descriptor.h"

namespace vexil::tool {

// The name that stands for standard input and output.
inline constexpr std::string_view StandardStream = "-";

struct InputFile {
    Descriptor file;  // stays open, so that an output can be compared with it
    std::string bytes;
    bool isPlain = false;  // reading the path once more gives the same bytes
};

// Reads a file as a whole.
//   path  may be of any length; StandardStream is standard input.
std::error_code ReadInput(const std::string& path, InputFile& input);

}  // namespace vexil::tool
