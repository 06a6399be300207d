// Finds the lines that two texts have in common.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace vexil::tool {

// Returns the lines of a text with their line feeds. The last one may have none.
std::vector<std::string_view> LinesOf(std::string_view text);

// The indexes of two equal lines.
struct LineMatch {
    std::size_t before = 0;
    std::size_t after = 0;
};

// Pairs equal lines so that both indexes ascend. All other lines were removed or added.
std::vector<LineMatch> MatchLines(const std::vector<std::string_view>& before,
                                  const std::vector<std::string_view>& after);

}  // namespace vexil::tool
