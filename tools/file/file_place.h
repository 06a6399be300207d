// A file by its folder and its name in it, for paths of any length. Linux limits a path to 4,095
// bytes; an open folder and a name of at most 255 bytes have no such limit. On Windows the name is
// the whole path, which has no limit there in the form that WidePath gives it.
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

// Opens the folder of a path. The file itself need not exist.
std::error_code FindFile(std::string_view path, FilePlace& place);

// Opens the file at a place for reading. An error is in errno.
Descriptor OpenToRead(const FilePlace& place);

// The same as FindFile, but where the path is a symbolic link, the place of the file that it points
// to. That file need not exist.
std::error_code FindFileBehindLinks(std::string_view path, FilePlace& place);

#ifdef _WIN32
// The form of a UTF-8 path that the functions of Windows take.
std::wstring WidePath(const std::string& path);
#endif

}  // namespace vexil::tool
