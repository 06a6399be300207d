// The commands of the command line: their arguments and what they call.
// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>

#include "exit_code.h"

namespace vexil::tool {

// Each function adds its command to the program. If the command line has the command, parsing runs
// it and stores its exit code in the second argument, which must live as long as the program.
void AddCheck(CLI::App& app, ExitCode& exitCode);
void AddDiff(CLI::App& app, ExitCode& exitCode);
void AddExplain(CLI::App& app, ExitCode& exitCode);
void AddReport(CLI::App& app, ExitCode& exitCode);
void AddRewrite(CLI::App& app, ExitCode& exitCode);
void AddShow(CLI::App& app, ExitCode& exitCode);
void AddJson(CLI::App& app, ExitCode& exitCode);
void AddFromJson(CLI::App& app, ExitCode& exitCode);

}  // namespace vexil::tool
