// The kinds of statements that the library never keeps.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "account/classify.h"
#include "source/keywords.h"

namespace vexil::tool {

// The outcome of a statement of such a kind: by its keyword, by the owner of a comment, by the name
// of an attribute. Nothing if the statement is of a kind that may be kept.
std::optional<Outcome> IgnoredKind(Keyword keyword, std::string_view text);

}  // namespace vexil::tool
