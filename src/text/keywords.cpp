// The search in the keyword table.
// SPDX-License-Identifier: MIT
#include "text/keywords.h"

#include <cstdint>

namespace vexil {
namespace {

// The first three characters, in one number. No keyword is shorter.
constexpr std::uint32_t Prefix(std::string_view token) {
    const auto at = [token](std::size_t index) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(token[index]));
    };
    return at(0) << 16U | at(1) << 8U | at(2);
}

constexpr std::array<std::uint32_t, KeywordCount> prefixes = [] {
    std::array<std::uint32_t, KeywordCount> all{};
    std::transform(keywordTable.begin(), keywordTable.end(), all.begin(),
                   [](const KeywordRow& row) { return Prefix(row.keyword); });
    return all;
}();

static_assert(std::all_of(keywordTable.begin(), keywordTable.end(), [](const KeywordRow& row) {
    return BeginsKeyword(row.keyword.front());
}));

}  // namespace

std::size_t KeywordRowOf(std::string_view token) {
    // Every keyword ends in one of these; most tokens do not.
    const char last = token.back();
    if ((last != '_' && last != 'N' && last != 'R') || token.size() < 3) {
        return KeywordCount;
    }
    const std::uint32_t prefix = Prefix(token);
    for (std::size_t row = 0; row < KeywordCount; ++row) {
        if (prefixes[row] == prefix && keywordTable[row].keyword == token) {
            return row;
        }
    }
    return KeywordCount;
}

}  // namespace vexil
