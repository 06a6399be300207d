// A file with a name that nothing else uses. It is removed with its owner, and also when a signal
// such as that of Ctrl-C ends the program.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <system_error>

#include "file/file_place.h"

namespace vexil::tool {

// Makes the signals that end a program from outside remove all temporary files first. A signal that
// is ignored stays ignored. A program calls it once, before it makes such a file.
void RemoveTemporaryFilesOnSignals();

// A file that is made once.
class TemporaryFile {
  public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    // Makes the file in the folder of another one, empty and for the user alone.
    std::error_code MakeBeside(const FilePlace& other);

    // Its name: NameSize characters.
    const std::string& Name() const { return name; }
    Descriptor& File() { return file; }

    // Gives the file the place of another one in its folder. It is then no temporary file any more.
    std::error_code MoveTo(const FilePlace& other);

    static constexpr std::size_t NameSize = 27;

  private:
    FilePlace place;
    std::string name;
    Descriptor file;
    bool exists = false;
};

}  // namespace vexil::tool
