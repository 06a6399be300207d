// Tokens, ranges and identifiers in a statement.
// SPDX-License-Identifier: MIT
#include "text/lexical.h"

#include <algorithm>
#include <array>
#include <limits>

#include "text/char_class.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

constexpr std::array<bool, 256> identifierTable = [] {
    std::array<bool, 256> table{};
    for (std::size_t ch = 0; ch < table.size(); ++ch) {
        table[ch] = IsAlnum(static_cast<char>(ch)) || ch == '_';
    }
    return table;
}();

bool IsIdentifierChar(char ch) {
    return identifierTable[static_cast<unsigned char>(ch)];
}

// Returns the first characters of a valid text, at most count.
std::string_view FrontCharacters(std::string_view text, std::size_t count) {
    const auto beginsCharacter = [](char ch) {
        return (static_cast<unsigned char>(ch) & 0xC0) != 0x80;
    };
    std::size_t at = 0;
    for (; at < text.size(); ++at) {
        if (beginsCharacter(text[at]) && count-- == 0) {
            break;
        }
    }
    return text.substr(0, at);
}

}  // namespace

std::size_t DigitCount(std::uint32_t number) {
    std::size_t count = 1;
    for (; number >= 10; number /= 10) {
        ++count;
    }
    return count;
}

bool ParseUnsignedToken(std::string_view text, std::uint32_t& value, Position& end, Position from) {
    value = 0;
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos) {
        return false;
    }
    const bool isNegative = text[start] == '-';
    Position at = start + (isNegative ? 1 : 0);
    std::uint64_t number = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        number = number * 10 + static_cast<std::uint64_t>(text[at] - '0');
        if (number > std::numeric_limits<std::uint32_t>::max()) {
            return false;
        }
    }
    auto wrapped = static_cast<std::uint32_t>(number);
    if (isNegative) {
        wrapped = 0 - wrapped;
        at = FindSpace(text, at);
        if (wrapped == 0 || DigitCount(wrapped) != at - start) {
            return false;
        }
    }
    if (at >= text.size() || !IsSpace(text[at])) {
        return false;
    }
    value = wrapped;
    end = at;
    return true;
}

std::string_view TextUpToChar(std::string_view text, Position from, char ch, Position& foundPos) {
    // A plain loop: most fields are so short that a search function costs more.
    for (Position at = from; at < text.size(); ++at) {
        if (text[at] == ch) {
            foundPos = at;
            return {text.data() + from, at - from};
        }
    }
    foundPos = npos;
    return {};
}

std::string_view TrimmedRange(std::string_view text, Position from, Position to) {
    if (from >= text.size() || from >= to) {
        return {};
    }
    return Trimmed(text.substr(from, std::min<Position>(to, text.size()) - from + 1));
}

std::string_view Trimmed(std::string_view text) {
    const Position first = FindNonSpace(text, 0);
    if (first == npos) {
        return {};
    }
    Position end = text.size();
    while (IsSpace(text[end - 1])) {
        --end;
    }
    return text.substr(first, end - first);
}

bool IsValidCIdentifier(std::string_view text) {
    return !text.empty() && text.size() <= MaxIdentifierLength && !IsDigit(text.front()) &&
           std::all_of(text.begin(), text.end(), IsIdentifierChar);
}

std::string MakeCIdentifier(std::string_view text) {
    std::string identifier = FoldToAscii(FrontCharacters(text, MaxIdentifierLength));
    std::replace_if(
        identifier.begin(), identifier.end(), [](char ch) { return !IsIdentifierChar(ch); }, '_');
    if (!identifier.empty() && IsDigit(identifier.front())) {
        identifier.front() = '_';
    }
    return identifier;
}

}  // namespace vexil
