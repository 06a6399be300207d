// Reads and writes files, and describes failures in words.
// SPDX-License-Identifier: MIT
#include "database/database_file.h"

#include <vexil64.h>

#include "database/result_words.h"

namespace vexil::tool {
namespace {

// Returns the size that the library requires with a path: that of the buffer with the NUL.
std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

// If only the last line could not be written, the library reports success. For a user, this is a
// failure.
bool IsDone(std::uint8_t success, std::uint32_t resultCode) {
    return success != 0 && resultCode == StateClosed;
}

}  // namespace

std::string_view ReadDatabase(const std::string& path) {
    // A read keeps the bus type of the previous file.
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
