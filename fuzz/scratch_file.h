// The files of a target, in a temporary folder that is removed with the process.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::fuzz {

// The folder, without a "/" at its end.
const std::string& ScratchFolder();

// The path of a file in it.
std::string ScratchFile(std::string_view name);

struct CallResult {
    bool success = false;
    unsigned code = 99;
};

// Call the library under its budget.
//   file  the file of the path; empty if the library refuses the path.
CallResult ReadPath(const char* path, std::uint32_t size, const std::string& file);
CallResult WritePath(const char* path, std::uint32_t size, unsigned order, const std::string& file);

// Call the library with a buffer that has exactly the size of the path with its NUL.
CallResult ReadDbc(const std::string& path);
CallResult WriteDbc(const std::string& path, unsigned order);

}  // namespace vexil::fuzz
