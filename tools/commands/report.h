// vexil-dbc report FILE... -o OUT.html
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "exit_code.h"

namespace vexil::tool {

struct ReportOptions {
    std::vector<std::string> files;  // and folders; "-" is standard input
    std::string output;              // "-" is standard output
    std::string from;                // the encoding of the files; empty: UTF-8
};

// Writes one page about all files. A file that cannot be read has a section that says so, and does
// not keep the others from being reported. The page is written as a whole or not at all, and not at
// all if no file can be read.
ExitCode Report(const ReportOptions& options);

}  // namespace vexil::tool
