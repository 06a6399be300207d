// Cuts a text into statements as the library does: from one keyword to the next, ignoring quotes.
// The account uses the cut to find statements that became a part of others.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "source/keywords.h"

namespace vexil::tool {

// The library cuts a statement that is longer than this at the end of a line.
inline constexpr std::size_t LongestStatement = 4096;

struct LibraryStatement {
    std::size_t begin = 0;   // of its keyword
    std::size_t end = 0;     // after the white space before the next keyword
    std::uint32_t line = 0;  // the line that a ParseError has
    Keyword keyword = Keyword::None;
    bool overflowed = false;  // longer than LongestStatement; the lines after it are lost
};

// Cuts the text. Its last line need not have a line end.
std::vector<LibraryStatement> CutLikeLibrary(std::string_view text);

}  // namespace vexil::tool
