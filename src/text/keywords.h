// The keyword table, which divides a file into statements, and the test for one keyword.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "text/char_class.h"
#include "text/constants.h"

namespace vexil {

struct KeywordRow {
    std::string_view keyword;
    // A statement of free text: a keyword ends it only after a ";".
    bool needsSemicolon = false;
};

inline constexpr std::size_t KeywordCount = 35;

// The table: twelve keywords, then those of SymbolList that are not among them. Intentional:
// BA_DEF_DEF_ comes from SymbolList and needs no semicolon, although BA_DEF_ does.
inline constexpr std::array<KeywordRow, KeywordCount> keywordTable = [] {
    std::array<KeywordRow, KeywordCount> table = {{{keyword::SG_, false},
                                                   {keyword::CM_, true},
                                                   {keyword::BO_, false},
                                                   {keyword::VAL_, false},
                                                   {keyword::BA_, true},
                                                   {keyword::BA_DEF_, true},
                                                   {keyword::SIG_VALTYPE_, false},
                                                   {keyword::BU_, false},
                                                   {keyword::BS_, false},
                                                   {keyword::VERSION, false},
                                                   {keyword::NS_, false},
                                                   {keyword::EV_, false}}};
    auto* end = table.begin() + 12;
    for (const std::string_view symbol : SymbolList) {
        if (std::none_of(table.begin(), end,
                         [symbol](const KeywordRow& row) { return row.keyword == symbol; })) {
            *end++ = {symbol, false};
        }
    }
    return table;
}();

// The row of the token in the table; KeywordCount when it is not a keyword.
constexpr std::size_t KeywordRowOf(std::string_view token) {
    const auto* const row =
        std::find_if(keywordTable.begin(), keywordTable.end(),
                     [token](const KeywordRow& candidate) { return candidate.keyword == token; });
    return static_cast<std::size_t>(row - keywordTable.begin());
}

inline constexpr std::size_t LongestKeyword = 16;

// Whether a keyword may end in the character.
constexpr bool MayEndKeyword(char ch) noexcept {
    return (ch == '_') | (ch == 'N') | (ch == 'R');
}

static_assert(std::all_of(keywordTable.begin(), keywordTable.end(), [](const KeywordRow& row) {
    return MayEndKeyword(row.keyword.back()) && row.keyword.size() <= LongestKeyword;
}));

// Whether the next token of text at or after from is keyword, followed by white space. The end of
// the text does not count as white space.
// end: the position after the keyword when the result is true. When it is false, end is npos if
// only white space is left, and otherwise has no meaning.
constexpr bool MatchKeyword(std::string_view text, std::string_view keyword, Position& end,
                            Position from) {
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos) {
        return false;
    }
    end = start + keyword.size();
    return end < text.size() && IsSpace(text[end]) && text.substr(start, keyword.size()) == keyword;
}

}  // namespace vexil
