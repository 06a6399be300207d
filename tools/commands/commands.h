// The commands of vexil-dbc, one file for each. A command prints what it has to say and returns the
// exit code; whether standard output took it all is looked after in main.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exit_code.h"

namespace vexil::tool {

// Prints the statements of a file that were refused, one per line.
ExitCode Check(const std::string& file);

}  // namespace vexil::tool
