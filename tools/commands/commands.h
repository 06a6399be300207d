// The commands of vexil-dbc, one file for each. A command prints what it has to say and returns the
// exit code; whether standard output took it all is looked after in main.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "exit_code.h"

namespace vexil::tool {

// Prints the statements of a file that were refused, one per line.
ExitCode Check(const std::string& file);

// Reads a file and writes what the library keeps of it to another one, or over it.
//   order  an Order constant of vexil64.h
ExitCode Rewrite(const std::string& input, const std::string& output, std::uint32_t order);

}  // namespace vexil::tool
