// vexil-dbc diff A B
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "comparison/aspect.h"
#include "exit_code.h"

namespace vexil::tool {

struct DiffSource {
    std::string path;  // "-" is standard input
    std::string name;  // under which it is reported
};

struct DiffOptions {
    DiffSource before;
    DiffSource after;
    std::string from;   // the encoding of both files; empty: UTF-8
    AspectSet ignored;  // aspects that are not compared
    bool json = false;
    bool isForGit = false;  // differences are a success; equal networks print a line
};

// Compares two networks by meaning and prints what differs. Returns ExitSuccess, ExitFindings if
// they differ, or ExitTrouble.
ExitCode Diff(const DiffOptions& options);

// Prints that a path is not merged, so there are no two versions to compare.
ExitCode ReportUnmerged(const std::string& path);

}  // namespace vexil::tool
