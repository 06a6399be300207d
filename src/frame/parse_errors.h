// The list of statements that a read refused.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "vexil64.h"

namespace vexil {

// A refused statement. A fetch makes the record of the host from it.
struct RefusedStatement {
    std::uint32_t code = 0;  // a Step constant
    std::uint32_t line = 0;  // counted from 1
    std::string_view text;   // at most 254 bytes, in the arena of the database
};

// Appends a refused statement to those of the database.
//   text  the statement. Intentional: it is cut twice, so that at most 254 bytes are stored and
//         always at least one byte less than the statement has.
void RecordParseError(std::string_view text, std::uint32_t line, std::uint32_t code);

}  // namespace vexil
