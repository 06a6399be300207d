// vexil-dbc explain [CAUSE]
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exit_code.h"

namespace vexil::tool {

// Prints what a cause means, what to do about it, and an example; a list of all causes if the name
// is empty.
ExitCode Explain(const std::string& cause);

}  // namespace vexil::tool
