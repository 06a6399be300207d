// Standard input, output and error.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <system_error>

namespace vexil::tool {

// Makes writing to a closed pipe, and beyond a limit of the file size, an error of the write rather
// than the end of the program. Makes sure that no file that is opened later takes the place of a
// stream that is closed. A program calls it first.
void PrepareStandardStreams();

// Writes to standard output.
std::error_code WriteStandardOutput(std::string_view bytes);

}  // namespace vexil::tool
