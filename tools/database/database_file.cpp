// Reading and writing, with the library's answers in words.
// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <vexil64.h>

#include "database/result_words.h"

namespace vexil::tool {
namespace {

// The size that the library wants with a path: that of the buffer, so the NUL counts.
std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

// The library calls it a success when only the last line of a file failed. For a user the file is
// then as doubtful as any other that failed.
bool IsDone(std::uint8_t success, std::uint32_t resultCode) {
    return success != 0 && resultCode == StateClosed;
}

}  // namespace

std::string_view ReadDatabase(const std::string& path) {
    // The bus type would outlive the read of another file.
    const DatabaseInfo none{};
    VexilSetDatabaseInfo(&none, sizeof none);
    std::uint32_t resultCode = 0;
    const std::uint8_t success = VexilReadDbcFile(path.c_str(), BufferSize(path), &resultCode);
    return IsDone(success, resultCode) ? std::string_view() : ReadFailure(resultCode);
}

WriteResult WriteDatabase(const std::string& path, std::uint32_t order, std::string_view& reason) {
    std::uint32_t resultCode = 0;
    const std::uint8_t success =
        VexilWriteDbcFile(path.c_str(), BufferSize(path), order, &resultCode);
    if (IsDone(success, resultCode)) {
        return WriteResult::Done;
    }
    reason = WriteFailure(resultCode);
    return resultCode == StateClosed ? WriteResult::NoMessage : WriteResult::Failed;
}

}  // namespace vexil::tool
