// The differences of two texts in the unified format of the program patch.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vexil::tool {

struct DiffSide {
    std::string_view name;
    std::string_view text;
};

// Returns the differences with three lines of context, or an empty text. For texts with few common
// lines, the list of differences is not always the shortest one: this keeps the time linear.
std::string UnifiedDiff(const DiffSide& before, const DiffSide& after);

}  // namespace vexil::tool
