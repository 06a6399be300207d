// The list of statements that a read refused.
// SPDX-License-Identifier: MIT
#include "frame/parse_errors.h"

#include <algorithm>

#include "frame/can_database.h"
#include "text/utf8_text.h"

namespace vexil {

void RecordParseError(std::string_view text, std::uint32_t line, std::uint32_t code) {
    const std::size_t limit = std::min<std::size_t>(text.size(), LongTextSize - 1);
    std::uint64_t length = 0;
    Utf8FitLength(text, limit, length);
    database.parseErrors.Add(database.arena,
                             {code, line, database.arena.Keep(text.substr(0, length))});
}

}  // namespace vexil
