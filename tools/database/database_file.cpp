// Reading, writing and parse errors, with the library's answers told to the user.
// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <vexil64.h>

#include <iostream>
#include <string_view>

#include "database/result_words.h"

namespace vexil::tool {
namespace {

// The size that the library wants with a path: that of the buffer, so the NUL counts.
std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

// The library calls it a success when only the last line or the closing of a file failed. For a
// user the file is then as doubtful as any other that failed.
bool IsDone(std::uint8_t success, std::uint32_t resultCode) {
    return success != 0 && resultCode == StateClosed;
}

void TellFailure(std::string_view action, const std::string& path, std::string_view reason) {
    std::cerr << "vexil-dbc: cannot " << action << " '" << path << "': " << reason << '\n';
}

}  // namespace

bool ReadDatabase(const std::string& path) {
    // The bus type would outlive the read of another file.
    const DatabaseInfo none{};
    VexilSetDatabaseInfo(&none, sizeof none);
    std::uint32_t resultCode = 0;
    const std::uint8_t success = VexilReadDbcFile(path.c_str(), BufferSize(path), &resultCode);
    if (IsDone(success, resultCode)) {
        return true;
    }
    TellFailure("read", path, ReadFailure(resultCode));
    return false;
}

bool WriteDatabase(const std::string& path, std::uint32_t order) {
    std::uint32_t resultCode = 0;
    const std::uint8_t success =
        VexilWriteDbcFile(path.c_str(), BufferSize(path), order, &resultCode);
    if (IsDone(success, resultCode)) {
        return true;
    }
    TellFailure("write", path, WriteFailure(resultCode));
    return false;
}

bool PrintParseErrors(std::ostream& out, const std::string& path) {
    ParseError error{};
    std::uint32_t index = 0;
    for (; VexilGetErrorData(index, &error) != 0; ++index) {
        out << path << ':' << error.line << ": error: " << FailedStep(error.code) << ": "
            << OneLine(error.text) << '\n';
    }
    return index != 0;
}

}  // namespace vexil::tool
