// Finds the files of a folder.
// SPDX-License-Identifier: MIT
#include "file/folder.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace vexil::tool {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8) {
#ifdef _WIN32
    return {std::u8string(utf8.begin(), utf8.end())};
#else
    return {utf8};  // on Linux, a path can have any bytes
#endif
}

std::string TextOf(const fs::path& path) {
#ifdef _WIN32
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
#else
    return path.native();
#endif
}

bool HasDbcName(const std::string& path) {
    constexpr std::string_view Suffix = ".dbc";
    return path.size() > Suffix.size() &&
           std::equal(Suffix.begin(), Suffix.end(),
                      path.end() - static_cast<std::ptrdiff_t>(Suffix.size()),
                      [](char one, char other) {
                          return one == std::tolower(static_cast<unsigned char>(other));
                      });
}

}  // namespace

bool IsFolder(const std::string& path) {
    std::error_code ignored;
    return fs::is_directory(PathOf(path), ignored);
}

std::error_code ListDbcFiles(const std::string& folder, std::vector<std::string>& files) {
    std::error_code error;
    std::vector<std::string> found;
    fs::recursive_directory_iterator entries(PathOf(folder),
                                             fs::directory_options::skip_permission_denied, error);
    for (; !error && entries != fs::recursive_directory_iterator(); entries.increment(error)) {
        std::error_code ignored;
        std::string path = TextOf(entries->path());
        if (HasDbcName(path) && !entries->is_directory(ignored)) {
            found.push_back(std::move(path));
        }
    }
    std::sort(found.begin(), found.end());
    files.insert(files.end(), found.begin(), found.end());
    return error;
}

}  // namespace vexil::tool
