// The library writes to a private file, which is then read.
// SPDX-License-Identifier: MIT
#include "commands/database_output.h"

#include "commands/source_input.h"
#include "database/database_file.h"
#include "file/private_file.h"

namespace vexil::tool {

std::optional<ExitCode> WriteText(const DatabaseOutput& names, std::string& text) {
    PrivateFile file;
    std::error_code error = file.Make("");
    if (error) {
        PrintFileError("write a copy of", names.output, error.message());
        return ExitCannotWrite;
    }
    std::string_view reason;
    switch (WriteDatabase(file.Path(), names.order, reason)) {
        case WriteResult::Done:
            break;
        case WriteResult::NoMessage:
            PrintFileError("rewrite", names.input, reason);
            return ExitCannotRead;
        case WriteResult::Failed:
            PrintFileError("write a copy of", names.output, reason);
            return ExitCannotWrite;
    }
    error = file.Read(text);
    if (error) {
        PrintFileError("read a copy of", names.output, error.message());
        return ExitCannotWrite;
    }
    return std::nullopt;
}

}  // namespace vexil::tool
