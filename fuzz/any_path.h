// A path as a host may hand it over, good or bad. None leads out of the scratch folder.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace vexil::fuzz {

struct AnyPath {
    std::string buffer;
    bool isNull = false;
    std::uint32_t size = 0;     // as the host tells it
    std::string file;           // what it leads to; empty when the library does not get that far
    std::uint32_t failure = 0;  // the State constant of a failure; 0 when the file can be opened
    bool isFolder = false;      // which cannot be written, and may fail to open or to be read

    const char* Pointer() const { return isNull ? nullptr : buffer.c_str(); }
};

// The path that a byte chooses.
AnyPath PathOf(char choice);

}  // namespace vexil::fuzz
