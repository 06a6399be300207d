// The keyword table, by which a file is cut into statements, and the test for one keyword.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "text/constants.h"

namespace vexil {

struct KeywordRow {
    std::string_view keyword;
    bool needsSemicolon =
        false;  // a statement of free text: only a ";" in front of a keyword ends it
};

inline constexpr std::size_t KeywordCount = 35;

// The table: twelve keywords, then those of SymbolList that are not among them. Kept on purpose:
// BA_DEF_DEF_ comes from SymbolList and needs no semicolon, although BA_DEF_ does.
const std::array<KeywordRow, KeywordCount>& KeywordTable();

// Whether a keyword begins with the character: a quick look before the search in the table.
constexpr bool BeginsKeyword(char ch) {
    switch (ch) {
        case 'B':
        case 'C':
        case 'E':
        case 'F':
        case 'N':
        case 'S':
        case 'V':
            return true;
        default:
            return false;
    }
}

// The row of the token in the table; KeywordCount when it is no keyword.
std::size_t KeywordRowOf(std::string_view token);

// Whether the next token of text at or behind from is keyword, with white space behind it; the end
// of the text does not count as white space.
// end: npos when only white space is left; otherwise the position behind as many bytes as keyword
// has, whatever the result, so it means something only after true.
bool MatchKeyword(std::string_view text, std::string_view keyword, Position& end, Position from);

}  // namespace vexil
