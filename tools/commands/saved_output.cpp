// Saving, and the errors that it prints.
// SPDX-License-Identifier: MIT
#include "commands/saved_output.h"

#include "commands/source_input.h"
#include "file/saved_file.h"
#include "file/standard_streams.h"

namespace vexil::tool {

std::optional<ExitCode> SaveOutput(const std::string& path, std::string_view bytes) {
    const bool isStream = path == StandardStream;
    const std::error_code error = isStream ? WriteStandardOutput(bytes) : SaveFile(path, bytes);
    if (!error) {
        return std::nullopt;
    }
    if (isStream) {
        PrintError("cannot write standard output: " + error.message());
    } else {
        PrintFileError("write", path, error.message());
    }
    return ExitCannotWrite;
}

}  // namespace vexil::tool
