// Whether the cost of reading, fetching and writing stays proportional to a file that is large.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vexil::fuzz {

// Reads a file of these bytes, fetches all records, writes the file, writes it again and reads what
// was written, each under its budget. Leaves the database empty.
void CheckGrowth(std::string_view bytes);

}  // namespace vexil::fuzz
