// A file with a unique name. It is removed by its destructor, and also if a signal such as that of
// Ctrl-C ends the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <system_error>

#include "file/file_place.h"

namespace vexil::tool {

// Makes the signals that end a program remove all temporary files first. Ignored signals stay
// ignored. Call this once, before making a temporary file.
void RemoveTemporaryFilesOnSignals();

// A temporary file. Make it at most once.
class TemporaryFile {
  public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    // Makes an empty file in the folder of another one. Only the user may read and write it.
    std::error_code MakeBeside(const FilePlace& other);

    // Its name: NameSize characters.
    const std::string& Name() const { return name; }
    Descriptor& File() { return file; }

    // Renames the file to replace another one in its folder. It is then no longer temporary.
    std::error_code MoveTo(const FilePlace& other);

    static constexpr std::size_t NameSize = 27;

  private:
    FilePlace place;
    std::string name;
    Descriptor file;
    bool exists = false;
};

}  // namespace vexil::tool
