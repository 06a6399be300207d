// The table of the hostile inputs.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace vexil::bench {

// Prints a row for each hostile input: what reading, walking and writing it costs for each byte.
//   program  path of this program, which measures each work in a process of its own.
//   size     bytes of each input.
//   rounds   how often each work is measured; the median is printed.
void PrintHostileTable(const std::string& program, std::size_t size, int rounds);

// Measures the work of a name with a file, prints the result for PrintHostileTable and ends the
// process.
void PrintMeasurement(const std::string& workName, const std::string& path, int rounds);

}  // namespace vexil::bench
