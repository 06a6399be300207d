// Reads input files.
// SPDX-License-Identifier: MIT
#include "file/input_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include "file/file_place.h"

namespace vexil::tool {
namespace {

std::error_code Open(const std::string& path, InputFile& input) {
    if (path == StandardStream) {
        input.file = Descriptor(dup(STDIN_FILENO));
        return input.file.IsOpen() ? std::error_code() : LastError();
    }
    FilePlace place;
    if (const std::error_code error = FindFile(path, place)) {
        return error;
    }
    input.file = OpenToRead(place);
    if (!input.file.IsOpen()) {
        return LastError();
    }
    struct stat status {};
    input.isPlain = fstat(input.file.Value(), &status) == 0 && S_ISREG(status.st_mode);
    if (input.isPlain) {
        input.bytes.reserve(static_cast<std::size_t>(status.st_size) + 1);
    }
    return {};
}

}  // namespace

std::error_code ReadInput(const std::string& path, InputFile& input) {
    input = {};
    const std::error_code error = Open(path, input);
    return error ? error : ReadAll(input.file.Value(), input.bytes);
}

}  // namespace vexil::tool
