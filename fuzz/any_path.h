// Valid and invalid paths. None of them is outside the scratch folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vexil::fuzz {

struct AnyPath {
    std::string buffer;
    bool isNull = false;
    std::uint32_t size = 0;     // the argument pathBufferSize
    std::string file;           // the file of the path; empty if the library refuses the path
    std::uint32_t failure = 0;  // the expected State constant; 0 if the file can be opened
    bool isFolder = false;      // a folder can fail to open or to be read, and cannot be written

    const char* Pointer() const { return isNull ? nullptr : buffer.c_str(); }
};

// Returns the path that a byte selects.
AnyPath PathOf(char choice);

}  // namespace vexil::fuzz
