// The kinds of statements that the library never reads.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "account/classify.h"
#include "source/keywords.h"

namespace vexil::tool {

// Returns the outcome of a statement of such a kind, which its keyword, the owner of a comment or
// the name of an attribute decides. Returns nothing for any other statement.
std::optional<Outcome> IgnoredKind(Keyword keyword, std::string_view text);

}  // namespace vexil::tool
