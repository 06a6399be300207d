// Where the library cuts a text into statements: from one keyword to the next, without regard to
// quotes. The account needs it to tell which statement swallowed which.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "source/keywords.h"

namespace vexil::tool {

// A text that has grown beyond this size when a line ends is taken as it is.
inline constexpr std::size_t LongestStatement = 4096;

struct LibraryStatement {
    std::size_t begin = 0;   // of its keyword
    std::size_t end = 0;     // white space before the next keyword included
    std::uint32_t line = 0;  // that a ParseError gives
    Keyword keyword = Keyword::None;
    bool overflowed = false;  // beyond LongestStatement, with the lines after it lost
};

// Cuts the text, whose last line need not end.
std::vector<LibraryStatement> CutLikeLibrary(std::string_view text);

}  // namespace vexil::tool
