// Checks that the cost of reading, fetching and writing a large file is proportional to its size.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace vexil::fuzz {

// Reads a file of these bytes, fetches all records, writes the database twice and reads the written
// file, and checks each step against its budget. The database is empty then.
void CheckGrowth(std::string_view bytes);

}  // namespace vexil::fuzz
