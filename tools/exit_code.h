// The exit codes of vexil-dbc. docs/tool.md has them for each command.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil::tool {

enum ExitCode : int {
    ExitSuccess = 0,      // success, and no findings
    ExitFindings = 1,     // findings; of diff: the files differ
    ExitUsage = 2,        // the command line is wrong
    ExitTrouble = 2,      // of diff: every failure, as in diff(1)
    ExitCannotRead = 3,   // the input cannot be read, or is not a DBC file
    ExitNotAccepted = 4,  // a rewrite over its input would lose or change something
    ExitCannotWrite = 5   // the output file or standard output could not be written
};

}  // namespace vexil::tool
