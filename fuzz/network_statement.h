// One statement of a network file, made from the words of an input.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "byte_source.h"

namespace vexil::fuzz {

// The text of the statement that the input describes next. Its first byte is the kind, see
// network_statement.cpp, and the fields of the kind follow. Of each field the first byte selects
// the text:
//   digit   an entry of the table of the field, the most ordinary ones first
//   "       the text up to "|"
//   *       the text up to "|", repeated until it has as many bytes as the next word says
//   #       the first entry of the table and the number, so that repeated statements differ
//   ^       the first entry as many times as the number says, with blanks between them
//   other   any entry of the table
std::string StatementOf(ByteSource& input, std::uint32_t number);

}  // namespace vexil::fuzz
