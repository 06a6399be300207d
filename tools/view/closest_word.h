// The word that a mistyped one was meant to be.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace vexil::tool {

// Returns the word that becomes the typed one by the fewest letters left out, put in, replaced or
// exchanged with the next one; empty where none is close.
std::string_view ClosestWord(std::string_view typed, const std::vector<std::string_view>& words);

}  // namespace vexil::tool
