// The differences of two texts in the unified format, which the program patch takes.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace vexil::tool {

struct DiffSide {
    std::string_view name;
    std::string_view text;
};

// Returns the differences with three lines of context; an empty text where there are none. Texts
// that have little in common do not get the shortest list of differences, so that time stays
// proportional to their sizes.
std::string UnifiedDiff(const DiffSide& before, const DiffSide& after);

}  // namespace vexil::tool
