// The keyword table and the test for one keyword.
// SPDX-License-Identifier: MIT
#include "text/keywords.h"

#include <algorithm>

#include "text/char_class.h"

namespace vexil {
namespace {

constexpr std::array<KeywordRow, KeywordCount> MakeKeywordTable() {
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
}

constexpr std::array<KeywordRow, KeywordCount> keywordTable = MakeKeywordTable();

static_assert(std::all_of(keywordTable.begin(), keywordTable.end(), [](const KeywordRow& row) {
    return BeginsKeyword(row.keyword.front());
}));

}  // namespace

const std::array<KeywordRow, KeywordCount>& KeywordTable() {
    return keywordTable;
}

std::size_t KeywordRowOf(std::string_view token) {
    // Every keyword ends in one of these; most tokens do not.
    const char last = token.back();
    if (last != '_' && last != 'N' && last != 'R') {
        return KeywordCount;
    }
    const auto* row = std::find_if(keywordTable.begin(), keywordTable.end(),
                                   [token](const KeywordRow& r) { return r.keyword == token; });
    return static_cast<std::size_t>(row - keywordTable.begin());
}

bool MatchKeyword(std::string_view text, std::string_view keyword, Position& end, Position from) {
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos) {
        return false;
    }
    end = start + keyword.size();
    return end < text.size() && IsSpace(text[end]) &&
           text.compare(start, keyword.size(), keyword) == 0;
}

}  // namespace vexil
