// Text on a terminal: without codes that control it, and measured in columns.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::tool {

// Returns the text of a file as it may go to a terminal. A line end and a tab become a blank.
// Other control characters, characters that change the direction of text, and bytes that are no
// UTF-8 become \xNN for each byte.
std::string Printable(std::string_view text);

// The comment of a message or signal as its author wrote it: records have a backslash before each
// double quote.
std::string PlainComment(std::string_view comment);

// The same for a terminal. Line ends stay; everything else is as Printable returns it.
std::string PrintableComment(std::string_view comment);

// Returns the number of columns that a printable text takes.
std::size_t DisplayWidth(std::string_view text);

// Returns the text with blanks after or before it, so that it takes the columns. A text that takes
// more stays as it is.
std::string PadRight(std::string text, std::size_t columns);
std::string PadLeft(const std::string& text, std::size_t columns);

// Returns the text if it takes at most so many columns. Otherwise cuts it at a character and ends
// it with the mark, which is ASCII or takes one column for each character.
std::string Shorten(const std::string& text, std::size_t columns, std::string_view mark);

// Returns the lines that the text is shown in, at least one. Each takes at most so many columns, or
// is one character. Lines are broken at line feeds and blanks, and in a word that is longer than a
// line.
std::vector<std::string> WrapText(std::string_view text, std::size_t columns);

}  // namespace vexil::tool
