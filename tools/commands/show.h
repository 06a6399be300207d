// vexil-dbc show FILE [MESSAGE...]
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "exit_code.h"

namespace vexil::tool {

struct ShowOptions {
    std::string file;                   // "-" is standard input
    std::vector<std::string> messages;  // names, ids and patterns; empty: all messages
    std::string from;                   // the encoding of the file; empty: UTF-8
    std::size_t width = 0;              // in columns; 0: that of the terminal
    bool list = false;
    bool ascii = false;
};

// Prints the messages that the library keeps of a file, in the order of the file. Prints none if
// one of the names, ids and patterns matches no message.
ExitCode Show(const ShowOptions& options);

}  // namespace vexil::tool
