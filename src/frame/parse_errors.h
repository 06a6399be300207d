// The list of statements that a read refused.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace vexil {

// Appends one ParseError per code to the database, in the order of the codes.
//   statementText  the refused statement. Kept on purpose: its text is cut twice, so that at most
//                  254 bytes arrive and always one less than the statement has.
//   line           number of its line, counted from 1.
//   stepErrors     Step constants.
void RecordParseErrors(std::string_view statementText, std::uint32_t line,
                       const std::vector<std::uint32_t>& stepErrors);

}  // namespace vexil
