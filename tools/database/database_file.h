// Reads a file into the database, and writes the database to a file.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vexil::tool {

// Reads a file into the database. Returns the reason of a failure, or an empty text.
std::string_view ReadDatabase(const std::string& path);

enum class WriteResult { Done, NoMessage, Failed };

// Writes the database to a file.
//   order   an Order constant of vexil64.h
//   reason  receives the reason of a failure
WriteResult WriteDatabase(const std::string& path, std::uint32_t order, std::string_view& reason);

}  // namespace vexil::tool
