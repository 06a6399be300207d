// The input of a command: its text, and the database that the library makes of it.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "exit_code.h"
#include "file/input_file.h"

namespace vexil::tool {

struct SourceInput {
    std::string path;      // StandardStream for standard input
    std::string encoding;  // empty: UTF-8
    InputFile file;        // its bytes are UTF-8 after LoadSource
};

// Reads the input and converts it to UTF-8. After a failure, which it has reported, returns
// the exit code.
std::optional<ExitCode> LoadSource(SourceInput& input);

// Lets the library read the input. The text is that of the input, which LoadSource has left in it.
// After a failure, which it has reported, returns the exit code.
std::optional<ExitCode> LoadDatabase(const SourceInput& input, std::string_view text);

// Why a text without any statement cannot be read.
inline constexpr std::string_view NoDbcFile = "it has no statement, so it is not a DBC file";

// Prints a line on standard error, after the name of the program.
void PrintError(std::string_view text);

// The same for a file, which the line names.
//   action  such as "read"
void PrintFileError(std::string_view action, std::string_view path, std::string_view reason);

}  // namespace vexil::tool
