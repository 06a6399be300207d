// vexil-dbc json FILE
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "exit_code.h"

namespace vexil::tool {

struct JsonOptions {
    std::string file;  // "-" is standard input
    std::string from;  // the encoding of the file; empty: UTF-8
    bool account = false;
};

// Prints every record that the library makes of a file.
ExitCode PrintAsJson(const JsonOptions& options);

}  // namespace vexil::tool
