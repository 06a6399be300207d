// WrittenPairs, the value descriptions of a statement that can be copied. This applies to most
// files and saves a fifth of the instructions of a written line.
// SPDX-License-Identifier: MIT
#pragma once

#include <charconv>
#include <cstdint>
#include <limits>
#include <string_view>

#include "text/constants.h"

namespace vexil {

// Whether text is a number between two blanks, in the form of a written file.
inline bool IsWrittenNumber(std::string_view text, std::int32_t& value) {
    if (text.size() < 3 || text.front() != ' ' || text.back() != ' ') {
        return false;
    }
    const char* const first = text.data() + 1;
    const char* const end = text.data() + text.size() - 1;
    const auto [after, error] = std::from_chars(first, end, value);
    const char leading = *first == '-' ? first[1] : *first;
    return error == std::errc() && after == end && (leading != '0' || end - first == 1);
}

// Returns the value descriptions of a statement, as a view, if it has the form of a written file:
// ascending values and single blanks. Returns nothing for any other statement.
inline std::string_view WrittenPairs(std::string_view statement) {
    std::int64_t last = std::numeric_limits<std::int64_t>::min();
    Position end = 0;
    for (Position quote = 0; (quote = statement.find('"', end)) != npos;) {
        const Position close = statement.find('"', quote + 1);
        std::int32_t value = 0;
        if (close == npos || !IsWrittenNumber(statement.substr(end, quote - end), value) ||
            value <= last) {
            return {};
        }
        last = value;
        end = close + 1;
    }
    return statement.substr(0, end);
}

}  // namespace vexil
