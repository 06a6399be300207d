// What the texts of the model go through on their way in.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "text/shared_text.h"

namespace vexil {

// Replaces each tab, line feed, vertical tab, form feed and carriage return by one blank.
void CleanControlChars(std::string& text);

// Puts a backslash in front of every double quote that has none. Only the one character in front of
// a quote is looked at, so a quote behind two backslashes counts as escaped. Running it twice
// changes nothing.
//   from  where to start; what stands in front of it is known to be escaped.
void EscapeQuotes(std::string& text, std::size_t from = 0);

// The identifier form of a text: the text itself if it is an identifier, else MakeCIdentifier of
// it.
std::string IdentifierForm(std::string_view text);

// The same for names that the model keeps, which are shared where nothing changes: the identifier
// form, and the text with control characters cleaned.
SharedText IdentifierForm(const SharedText& text);
SharedText DisplayForm(const SharedText& text);

}  // namespace vexil
