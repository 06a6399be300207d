// The table of the hostile inputs.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace vexil::bench {

// Prints a row for each hostile input: the costs of reading, fetching and writing, for each byte.
//   program  path of this program, which is started to measure each operation.
//   size     bytes of each input.
//   rounds   number of measurements, of which the median is printed.
void PrintHostileTable(const std::string& program, std::size_t size, int rounds);

// Measures the named operation with a file, prints the result for PrintHostileTable and ends the
// process.
void PrintMeasurement(const std::string& workName, const std::string& path, int rounds);

}  // namespace vexil::bench
