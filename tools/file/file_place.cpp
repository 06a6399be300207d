// Finds the place of a file. A long path is resolved in parts that the system accepts.
// SPDX-License-Identifier: MIT
#include "file/file_place.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace vexil::tool {
namespace {

// Longer than any name, shorter than the longest path of the system.
constexpr std::size_t LongestPart = 2048;
// The number of links after which the system fails as well.
constexpr int MostLinks = 40;

std::error_code Code(std::errc code) {
    return std::make_error_code(code);
}

// Replaces an open folder by the one at a relative or absolute path.
std::error_code Enter(Descriptor& folder, std::string_view path) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    Descriptor next(openat(folder.IsOpen() ? folder.Value() : AT_FDCWD, std::string(path).c_str(),
                           O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!next.IsOpen()) {
        return LastError();
    }
    folder = std::move(next);
    return {};
}

// Opens a folder part by part. Skips the slashes before a part, which would make it absolute.
std::error_code Walk(Descriptor& folder, std::string_view path) {
    while (path.size() > LongestPart) {
        const std::size_t slash = path.rfind('/', LongestPart);
        if (slash == std::string_view::npos) {
            return Code(std::errc::filename_too_long);
        }
        if (const std::error_code error = Enter(folder, path.substr(0, slash + 1))) {
            return error;
        }
        path.remove_prefix(std::min(path.find_first_not_of('/', slash), path.size()));
    }
    return path.empty() ? std::error_code() : Enter(folder, path);
}

// Finds the place of a path, starting from the folder of the place if it is open.
std::error_code FindFrom(FilePlace& place, std::string_view path) {
    if (path.empty()) {
        return Code(std::errc::no_such_file_or_directory);
    }
    const std::size_t slash = path.rfind('/');
    const bool hasFolder = slash != std::string_view::npos;
    const std::string_view name = hasFolder ? path.substr(slash + 1) : path;
    place.name = name.empty() ? "." : name;
    if (hasFolder) {
        return Walk(place.folder, path.substr(0, slash + 1));
    }
    return place.folder.IsOpen() ? std::error_code() : Enter(place.folder, ".");
}

// Reads the target of a symbolic link. Fails if the place is not a symbolic link.
std::error_code ReadLink(const FilePlace& place, std::string& target) {
    std::array<char, 4096> text{};
    const ssize_t size =
        readlinkat(place.folder.Value(), place.name.c_str(), text.data(), text.size());
    if (size < 0) {
        return LastError();
    }
    target.assign(text.data(), static_cast<std::size_t>(size));
    return {};
}

}  // namespace

std::error_code FindFile(std::string_view path, FilePlace& place) {
    place = {};
    return FindFrom(place, path);
}

Descriptor OpenToRead(const FilePlace& place) {
    constexpr int Access = O_RDONLY | O_NOCTTY | O_CLOEXEC;
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system has it so
    return Descriptor(openat(place.folder.Value(), place.name.c_str(), Access));
}

std::error_code FindFileBehindLinks(std::string_view path, FilePlace& place) {
    std::error_code error = FindFile(path, place);
    std::string target;
    for (int links = 0; !error; ++links) {
        error = ReadLink(place, target);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory) {
            return {};  // not a link, or it does not exist
        }
        if (!error) {
            error = links < MostLinks ? FindFrom(place, target)
                                      : Code(std::errc::too_many_symbolic_link_levels);
        }
    }
    return error;
}

}  // namespace vexil::tool
