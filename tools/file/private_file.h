// A temporary copy of a file, at a path that the library accepts, while a command runs. The library
// accepts paths of at most 259 bytes of UTF-8, and neither standard input nor output.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "file/temporary_file.h"

namespace vexil::tool {

// Returns whether the library can open a file by this path without a change.
bool IsPathForLibrary(std::string_view path);

class PrivateFile {
  public:
    // Makes the file in the folder of the system for temporary files.
    std::error_code Make(std::string_view bytes);

    // Its path, which the library accepts.
    const std::string& Path() const { return path; }

    // Reads what the library wrote to the path.
    std::error_code Read(std::string& bytes);

  private:
    TemporaryFile file;
    std::string path;
};

}  // namespace vexil::tool
