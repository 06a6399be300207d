// Private files, and the folders in which they can be.
// SPDX-License-Identifier: MIT
#include "file/private_file.h"

#include <unistd.h>
#include <vexil64.h>

#include <algorithm>
#include <filesystem>
#include <vector>

namespace vexil::tool {
namespace {

// The folders to try: first that of the user, if there is one.
std::vector<std::string> TemporaryFolders() {
    std::vector<std::string> folders;
    std::error_code error;
    const std::u8string chosen = std::filesystem::temp_directory_path(error).u8string();
    if (!error) {
        folders.emplace_back(chosen.begin(), chosen.end());
    }
    folders.emplace_back("/tmp");
    return folders;
}

}  // namespace

bool IsPathForLibrary(std::string_view path) {
    // The library refuses some other characters; a private copy always works.
    const auto isAscii = [](char ch) { return static_cast<unsigned char>(ch) < 0x80; };
    return !path.empty() && path.size() < MaxPathBufferSize &&
           std::all_of(path.begin(), path.end(), isAscii);
}

std::error_code PrivateFile::Make(std::string_view bytes) {
    std::error_code error = std::make_error_code(std::errc::filename_too_long);
    for (const std::string& folder : TemporaryFolders()) {
        FilePlace place;
        if (!IsPathForLibrary(folder + std::string(TemporaryFile::NameSize + 1, '/'))) {
            continue;
        }
        error = FindFile(folder + "/any", place);
        if (!error) {
            error = file.MakeBeside(place);
        }
        if (!error) {
            path = folder + "/" + file.Name();
            return WriteAll(file.File().Value(), bytes);
        }
    }
    return error;
}

std::error_code PrivateFile::Read(std::string& bytes) {
    if (lseek(file.File().Value(), 0, SEEK_SET) < 0) {
        return LastError();
    }
    return ReadAll(file.File().Value(), bytes);
}

}  // namespace vexil::tool
