// What vexil-dbc reports to the shell.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil::tool {

enum ExitCode : int {
    ExitSuccess = 0,      // nothing was found
    ExitFindings = 1,     // the work was done, and there are findings
    ExitUsage = 2,        // the command line makes no sense
    ExitTrouble = 2,      // of diff: like diff(1), it has no other code for what went wrong
    ExitCannotRead = 3,   // the input cannot be read, or is no DBC file
    ExitNotAccepted = 4,  // a rewrite over its input would lose something
    ExitCannotWrite = 5   // the output file or standard output could not be written
};

}  // namespace vexil::tool
