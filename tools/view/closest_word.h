// Finds the intended word for a mistyped one.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace vexil::tool {

// Returns the word with the fewest differences from the typed one: letters that are missing, added,
// replaced or exchanged with the next one. Returns an empty text if no word is close.
std::string_view ClosestWord(std::string_view typed, const std::vector<std::string_view>& words);

}  // namespace vexil::tool
