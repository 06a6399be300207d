// vexil-dbc rewrite IN OUT
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "exit_code.h"

namespace vexil::tool {

struct RewriteOptions {
    std::string input;        // "-" is standard input
    std::string output;       // "-" is standard output; it may be the input
    std::string from;         // the encoding of the input; empty: UTF-8
    std::uint32_t order = 0;  // an Order constant of vexil64.h
    bool acceptLoss = false;
    bool dryRun = false;
    bool diff = false;
};

// Reads a file and writes what the library keeps of it to another one, or over it. Prints what that
// loses and changes: to standard output, or to standard error where the former is for the file or
// its differences.
ExitCode Rewrite(const RewriteOptions& options);

}  // namespace vexil::tool
