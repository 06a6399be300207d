// Which lines of two texts are the same.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexil::tool {

// The lines of a text with their line feeds. The last one may have none.
std::vector<std::string_view> LinesOf(std::string_view text);

// Two lines that are the same, by their indexes.
struct LineMatch {
    std::size_t before = 0;
    std::size_t after = 0;
};

// Pairs lines that are the same so that both indexes ascend. The other lines were removed or added.
std::vector<LineMatch> MatchLines(const std::vector<std::string_view>& before,
                                  const std::vector<std::string_view>& after);

}  // namespace vexil::tool
