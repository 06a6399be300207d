// The search in the keyword table.
// SPDX-License-Identifier: MIT
#include "text/keywords.h"

namespace vexil {

std::size_t KeywordRowOf(std::string_view token) {
    const auto* const row =
        std::find_if(keywordTable.begin(), keywordTable.end(),
                     [token](const KeywordRow& candidate) { return candidate.keyword == token; });
    return static_cast<std::size_t>(row - keywordTable.begin());
}

}  // namespace vexil
