// Standard input, output and error.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <system_error>

namespace vexil::tool {

// Makes writing to a closed pipe, or above the limit of the file size, an error of the write
// instead of a signal that ends the program. Ensures that a file opened later does not take the
// place of a closed stream. Call this first in a program.
void PrepareStandardStreams();

// Writes to standard output.
std::error_code WriteStandardOutput(std::string_view bytes);

}  // namespace vexil::tool
