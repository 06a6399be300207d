// One statement of a network file, made from the words of an input.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "byte_source.h"

namespace vexil::fuzz {

// Returns the text of the next statement that the input describes. Its first byte is the kind, see
// network_statement.cpp, and the fields of the kind follow. The first byte of a field selects the
// text:
//   digit   an entry of the table of the field, the most common ones first
//   "       the text up to "|"
//   *       the text up to "|", repeated up to the number of bytes in the next word
//   #       the first entry of the table and the number, so that repeated statements differ
//   ^       the first entry, repeated by the number, separated by blanks
//   other   any entry of the table
std::string StatementOf(ByteSource& input, std::uint32_t number);

}  // namespace vexil::fuzz
