// Character classes of the classic locale, and the search for white space. The locale of the host
// has no effect: a byte of 128 or above is in no class.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

#include "text/constants.h"

namespace vexil {

// Both are evaluated for every byte of a line, so they use "|": "||" would add a branch.
constexpr bool IsSpace(char ch) noexcept {
    return (ch == ' ') | (static_cast<unsigned char>(ch - '\t') < 5);
}

constexpr bool IsControl(char ch) noexcept {
    return (static_cast<unsigned char>(ch) < 32) | (ch == '\x7f');
}

constexpr bool IsDigit(char ch) noexcept {
    return ch >= '0' && ch <= '9';
}

constexpr bool IsAlnum(char ch) noexcept {
    return IsDigit(ch) || (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z');
}

// Whether each byte value is white space. A table: the searches below test every byte of a file.
inline constexpr std::array<bool, 256> spaceTable = [] {
    std::array<bool, 256> table{};
    for (const char ch : Whitespace) {
        table[static_cast<unsigned char>(ch)] = true;
    }
    return table;
}();

// The first white space at or after from, or npos.
constexpr Position FindSpace(std::string_view text, Position from) noexcept {
    for (Position at = from; at < text.size(); ++at) {
        if (spaceTable[static_cast<unsigned char>(text[at])]) {
            return at;
        }
    }
    return npos;
}

// The first character at or after from that is not white space, or npos.
constexpr Position FindNonSpace(std::string_view text, Position from) noexcept {
    for (Position at = from; at < text.size(); ++at) {
        if (!spaceTable[static_cast<unsigned char>(text[at])]) {
            return at;
        }
    }
    return npos;
}

}  // namespace vexil
