// vexil-dbc from-json IN OUT
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "exit_code.h"

namespace vexil::tool {

struct FromJsonOptions {
    std::string input;        // "-" is standard input
    std::string output;       // "-" is standard output
    std::uint32_t order = 0;  // an Order constant of vexil64.h
    bool skipRefused = false;
    bool all = false;
};

// Makes a DBC file of a JSON document. Prints each value that is refused on standard error, and the
// values that the library changes on standard output, or on standard error where the former is the
// output. Nothing is written when a value is refused, unless the options say so.
ExitCode FromJson(const FromJsonOptions& options);

}  // namespace vexil::tool
