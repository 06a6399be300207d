// The files that both programs measure with, by name.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "generate.h"

namespace vexil::bench {

struct NamedDatabase {
    std::string name;
    std::function<Database()> make;
};

// wide/1MB, wide/10MB, tall and names; also wide/100MB if the environment variable
// VEXIL64_BENCH_LARGE is set.
std::vector<NamedDatabase> PlainDatabases();

// The inputs that are designed to slow down a careless reader or writer, with this many bytes each.
std::vector<NamedDatabase> HostileDatabases(std::size_t size);

// Returns the path of the largest DBC file in the folder that the environment variable
// VEXIL64_CORPUS names; empty if there is none or the variable is not set.
std::string LargestRealFile();

}  // namespace vexil::bench
