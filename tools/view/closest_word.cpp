// Computes the distance of two words with a table of the distances of their prefixes.
// SPDX-License-Identifier: MIT
#include "view/closest_word.h"

#include <algorithm>

namespace vexil::tool {
namespace {

std::size_t Distance(std::string_view a, std::string_view b) {
    std::vector<std::vector<std::size_t>> table(a.size() + 1,
                                                std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                table[i][j] = i + j;
                continue;
            }
            const std::size_t replaced = table[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            table[i][j] = std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, replaced});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
            }
        }
    }
    return table[a.size()][b.size()];
}

}  // namespace

std::string_view ClosestWord(std::string_view typed, const std::vector<std::string_view>& words) {
    std::string_view closest;
    // If more than a third of the letters differ, the words are unrelated.
    constexpr std::size_t Share = 3;
    constexpr std::size_t LongestWord = 100;
    std::size_t least = std::max<std::size_t>(2, typed.size() / Share) + 1;
    if (typed.size() > LongestWord) {
        return closest;
    }
    for (const std::string_view word : words) {
        const std::size_t distance = Distance(typed, word);
        if (distance < least) {
            least = distance;
            closest = word;
        }
    }
    return closest;
}

}  // namespace vexil::tool
