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

// wide/1MB, wide/10MB, tall and names; wide/100MB when the environment variable VEXIL64_BENCH_LARGE
// is set.
std::vector<NamedDatabase> PlainDatabases();

// The inputs that are meant to make a careless reader or writer slow, in that many bytes each.
std::vector<NamedDatabase> HostileDatabases(std::size_t size);

// The path of the largest DBC file in the folder that the environment variable VEXIL64_CORPUS
// names; empty when it is not set or there is none.
std::string LargestRealFile();

}  // namespace vexil::bench
