// A file as an open folder and a name in it, for paths of any length. Linux limits a path to 4,095
// bytes, but not the path of an open folder; a name has at most 255 bytes. On Windows, the name is
// the whole path, which WidePath brings into a form without a limit.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "file/descriptor.h"

namespace vexil::tool {

struct FilePlace {
    Descriptor folder;  // not open on Windows
    std::string name;   // without a slash; "." for the folder itself
};

// Opens the folder of a path. The file need not exist.
std::error_code FindFile(std::string_view path, FilePlace& place);

// Opens the file at a place for reading. On failure, errno has the error.
Descriptor OpenToRead(const FilePlace& place);

// Like FindFile, but follows a path that is a symbolic link. The target need not exist.
std::error_code FindFileBehindLinks(std::string_view path, FilePlace& place);

#ifdef _WIN32
// Converts a UTF-8 path to the form that the functions of Windows take.
std::wstring WidePath(const std::string& path);
#endif

}  // namespace vexil::tool
