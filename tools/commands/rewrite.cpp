// vexil-dbc rewrite IN OUT [--order id|name|file]
// SPDX-License-Identifier: MIT
#include <iostream>

#include "commands/commands.h"
#include "database/database_file.h"

namespace vexil::tool {

ExitCode Rewrite(const std::string& input, const std::string& output, std::uint32_t order) {
    if (!ReadDatabase(input)) {
        return ExitCannotRead;
    }
    const bool hasErrors = PrintParseErrors(std::cerr, input);
    if (!WriteDatabase(output, order)) {
        return ExitCannotWrite;
    }
    return hasErrors ? ExitParseErrors : ExitSuccess;
}

}  // namespace vexil::tool
