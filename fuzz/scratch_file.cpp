// The files of a target.
// SPDX-License-Identifier: MIT
#include "scratch_file.h"

#include <cstdint>
#include <filesystem>
#include <system_error>

#include "budget.h"
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

CallResult ReadPath(const char* path, std::uint32_t size, const std::string& file) {
    std::error_code none;
    const std::uintmax_t fileBytes = file.empty() ? 0 : std::filesystem::file_size(file, none);
    CallResult result;
    const Budget budget;
    result.success = VexilReadDbcFile(path, size, &result.code) == 1;
    budget.ExpectRead(none ? 0 : fileBytes);
    return result;
}

CallResult WritePath(const char* path, std::uint32_t size, unsigned order,
                     const std::string& file) {
    const std::uint64_t heldBytes = HeldBytes();
    CallResult result;
    const Budget budget;
    result.success = VexilWriteDbcFile(path, size, order, &result.code) == 1;
    budget.ExpectCall(heldBytes + (result.success ? std::filesystem::file_size(file) : 0));
    return result;
}

CallResult ReadDbc(const std::string& path) {
    const std::string buffer = path;  // a copy, so that a sanitizer detects an access after its end
    return ReadPath(buffer.c_str(), static_cast<std::uint32_t>(path.size() + 1), path);
}

CallResult WriteDbc(const std::string& path, unsigned order) {
    const std::string buffer = path;
    return WritePath(buffer.c_str(), static_cast<std::uint32_t>(path.size() + 1), order, path);
}

}  // namespace vexil::fuzz
