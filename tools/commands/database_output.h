// The text of the database, for the commands that save it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "exit_code.h"

namespace vexil::tool {

struct DatabaseOutput {
    std::string input;        // what the database was made of, for errors
    std::string output;       // StandardStream for standard output
    std::uint32_t order = 0;  // an Order constant of vexil64.h
};

// Lets the library write the database to a private place, and fetches the text. After a failure,
// which it has reported, returns the exit code.
std::optional<ExitCode> WriteText(const DatabaseOutput& names, std::string& text);

}  // namespace vexil::tool
