// The forms of a text that the model keeps. Each returns the text itself where nothing changes, and
// otherwise a new one in the arena.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "text/arena.h"

namespace vexil {

// The text with one blank in place of each tab, line feed, vertical tab, form feed and carriage
// return.
std::string_view DisplayForm(Arena& arena, std::string_view text);

// The text if it is an identifier, else what MakeCIdentifier makes of it.
std::string_view IdentifierForm(Arena& arena, std::string_view text);

// The text with "_" in place of every character beyond ASCII.
std::string_view AsciiForm(Arena& arena, std::string_view text);

// Sets the two forms of a name in the arena: longName, the display form, and name, the
// identifier form of that.
void MakeNames(Arena& arena, std::string_view text, std::string_view& longName,
               std::string_view& name);

}  // namespace vexil
