// vexil-dbc check FILE...
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "account/fate.h"
#include "exit_code.h"

namespace vexil::tool {

struct CheckOptions {
    std::vector<std::string> files;  // and folders; "-" is standard input
    std::string from;                // the encoding of the files; empty: UTF-8
    std::vector<Fate> failOn = {Fate::Refused, Fate::Dropped};  // the fates that are findings
    bool all = false;
    bool json = false;
    bool layout = false;
};

// Prints what becomes of the statements of each file. A file that cannot be read does not keep the
// others from being checked.
ExitCode Check(const CheckOptions& options);

}  // namespace vexil::tool
