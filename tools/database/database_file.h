// A file into the database, and the database into a file.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::tool {

// Reads a file into the database. Returns why it was not read to its end; an empty text if it was.
std::string_view ReadDatabase(const std::string& path);

enum class WriteResult { Done, NoMessage, Failed };

// Writes the database to a file.
//   order   an Order constant of vexil64.h
//   reason  receives why nothing, or not all, was written
WriteResult WriteDatabase(const std::string& path, std::uint32_t order, std::string_view& reason);

}  // namespace vexil::tool
