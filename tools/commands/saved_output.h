// The output of a command: a file, or standard output.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exit_code.h"

namespace vexil::tool {

// Saves the bytes as a whole or not at all; StandardStream is standard output. After a failure,
// which it has reported, returns the exit code.
std::optional<ExitCode> SaveOutput(const std::string& path, std::string_view bytes);

}  // namespace vexil::tool
