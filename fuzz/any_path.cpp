// The table of paths.
// SPDX-License-Identifier: MIT
#include "any_path.h"

#include "scratch_file.h"
#include "vexil64.h"

namespace vexil::fuzz {
namespace {

std::uint32_t SizeOf(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

AnyPath Good(const std::string& buffer, std::uint32_t size, const std::string& file) {
    return {buffer, false, size, file, 0, false};
}

AnyPath Bad(const std::string& buffer, std::uint32_t size, std::uint32_t failure) {
    return {buffer, false, size, "", failure, false};
}

}  // namespace

AnyPath PathOf(char choice) {
    const std::string file = ScratchFile("calls.dbc");
    const std::string shorter = file.substr(0, file.size() - 1);
    const std::string wide = file + std::string(1, '\0') + std::string(MaxPathBufferSize, '\xFF');
    const std::string brokenName = ScratchFile("\xFF name.dbc");
    const std::string noFolder = ScratchFile("none/calls.dbc");
    const std::string noText(1, '\0');
    switch (static_cast<unsigned char>(choice) % 16) {
        case 1:
            return Good(wide, MaxPathBufferSize, file);
        case 2:
            return Good(file, SizeOf(file) - 1, shorter);
        case 3:
            return Good(shorter + "\xE2\x82", SizeOf(file) + 1, shorter);
        case 4:
            return Bad(file, 0, StatePathEmpty);
        case 5:
            return Bad(file, 1, StatePathInvalid);  // a size of 1 has only the NUL
        case 6:
            return Bad(noText, 1, StatePathEmpty);
        case 7:
            return {"", true, MaxPathBufferSize, "", StatePathEmpty, false};
        case 8:
            return Bad(file, MaxPathBufferSize + 1, StatePathTooLong);
        case 9:
            return {"", true, 0xFFFFFFFF, "", StatePathTooLong, false};
        case 10:
            return Bad(brokenName, SizeOf(brokenName), StatePathInvalid);
        case 11:
            return Bad(noFolder, SizeOf(noFolder), StateOpenFailed);
        case 12:
            return {ScratchFolder(), false, SizeOf(ScratchFolder()), "", StateOpenFailed, true};
        default:
            return Good(file, SizeOf(file), file);
    }
}

}  // namespace vexil::fuzz
