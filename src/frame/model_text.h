// The forms in which the model stores texts. Each function returns the text itself if it has the
// form already, and otherwise a new text in the arena.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "text/arena.h"

namespace vexil {

// The text with one blank in place of each tab, line feed, vertical tab, form feed and carriage
// return.
std::string_view DisplayForm(Arena& arena, std::string_view text);

// The text if it is an identifier, otherwise the result of MakeCIdentifier.
std::string_view IdentifierForm(Arena& arena, std::string_view text);

// The text with "_" in place of every non-ASCII character.
std::string_view AsciiForm(Arena& arena, std::string_view text);

// Sets the two forms of a name in the arena: longName without control characters, and name, its
// identifier.
void MakeNames(Arena& arena, std::string_view text, std::string_view& longName,
               std::string_view& name);

}  // namespace vexil
