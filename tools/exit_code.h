// What vexil-dbc tells the shell.
// SPDX-License-Identifier: MIT
#pragma once

namespace vexil::tool {

enum ExitCode : int {
    ExitSuccess = 0,
    ExitParseErrors = 1,  // the work was done, but the file holds statements that were refused
    ExitCannotRead = 2,   // the input could not be read to its end
    ExitCannotWrite = 3,  // the output file or standard output could not be written
    ExitUsage = 64        // the command line makes no sense
};

}  // namespace vexil::tool
