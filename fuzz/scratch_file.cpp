// The files of a target.
// SPDX-License-Identifier: MIT
#include "scratch_file.h"

#include <cstdint>
#include <filesystem>

#include "support/files.h"
#include "vexil64.h"

namespace vexil::fuzz {

const std::string& ScratchFolder() {
    static const test::TempFolder folder;
    static const std::string path = std::filesystem::path(folder.File("x")).parent_path().string();
    return path;
}

std::string ScratchFile(std::string_view name) {
    return ScratchFolder() + '/' + std::string(name);
}

CallResult ReadDbc(const std::string& path) {
    CallResult result;
    const std::string buffer = path;  // of its own, so that a byte too far is seen
    result.success = VexilReadDbcFile(buffer.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                                      &result.code) != 0;
    return result;
}

CallResult WriteDbc(const std::string& path, unsigned order) {
    CallResult result;
    const std::string buffer = path;
    result.success = VexilWriteDbcFile(buffer.c_str(), static_cast<std::uint32_t>(path.size() + 1),
                                       order, &result.code) != 0;
    return result;
}

}  // namespace vexil::fuzz
