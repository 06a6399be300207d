// The option --order of the commands that write a DBC file.
// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>

namespace vexil::tool {

inline constexpr const char* DefaultOrder = "file";

// Adds the option to a command.
//   order  receives its word; must live as long as the command
void AddOrderOption(CLI::App& command, std::string& order);

// Returns the Order constant of vexil64.h for a word. Precondition: the option accepts the word.
std::uint32_t OrderOf(const std::string& word);

}  // namespace vexil::tool
