// vexil-dbc check FILE
// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands/commands.h"
#include "database/database_file.h"

namespace vexil::tool {

ExitCode Check(const std::string& file) {
    if (!ReadDatabase(file)) {
        return ExitCannotRead;
    }
    return PrintParseErrors(std::cout, file) ? ExitFindings : ExitSuccess;
}

}  // namespace vexil::tool
