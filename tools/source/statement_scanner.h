// Finds the statements of a text as its author meant them: keywords inside quotes do not count, and
// a statement ends at its semicolon or where the next one begins.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "source/keywords.h"

namespace vexil::tool {

struct SourceStatement {
    std::size_t begin = 0;
    std::size_t end = 0;              // after its last character that is not white space
    Keyword keyword = Keyword::None;  // None: stray text, which belongs to no statement
    bool isClosed = true;             // has its semicolon, or does not need one
    bool isGlued = false;             // lacks the required white space after the keyword
};

// Returns the statements in the order of the text. Every character of the text is in one statement,
// in white space between them, or in a byte order mark at the front.
std::vector<SourceStatement> ScanStatements(std::string_view text);

}  // namespace vexil::tool
