// The steps that commands are made of: a file into the database, the database into a file, and the
// statements that the last read refused. A step that fails has told why on standard error.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

namespace vexil::tool {

// Reads a file into the database. False: it was not read to its end.
bool ReadDatabase(const std::string& path);

// Writes the database to a file. False: there is nothing to write, or the file is not complete.
bool WriteDatabase(const std::string& path, std::uint32_t order);

// Prints a line "path:line: error: what failed: the statement" for each statement that the last
// read refused. Returns whether there was one.
bool PrintParseErrors(std::ostream& out, const std::string& path);

}  // namespace vexil::tool
