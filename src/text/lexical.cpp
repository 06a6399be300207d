// Tokens, ranges and identifiers in a statement.
// SPDX-License-Identifier: MIT
#include "text/lexical.h"

#include <algorithm>
#include <array>

#include "text/char_class.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

bool IsIdentifierChar(char ch) {
    return IsAlnum(ch) || ch == '_';
}

// The first characters of a valid text, at most count: bytes up to the next that begins one.
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

// Whether the token is nothing but the number: as long as its digits, leading zeros aside. Kept on
// purpose: a minus sign in front of nine digits passes, since the number it wraps around to has
// ten.
bool IsWholeNumber(std::string_view token, std::uint32_t number) {
    const std::size_t zeros = std::min(token.find_first_not_of('0'), token.size());
    if (number == 0) {
        return zeros == token.size();
    }
    return std::to_string(number).size() == token.size() - zeros;
}

}  // namespace

bool ParseUnsignedToken(std::string_view text, std::uint32_t& value, Position& end, Position from) {
    value = 0;
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos) {
        return false;
    }
    const Position stop = FindSpace(text, start);
    if (stop == npos) {
        return false;
    }
    const std::string_view token = text.substr(start, stop - start);
    std::uint32_t number = 0;
    if (!TryParseU32(token, number) || !IsWholeNumber(token, number)) {
        return false;
    }
    value = number;
    end = stop;
    return true;
}

std::string_view TextUpToChar(std::string_view text, Position from, char ch, Position& foundPos) {
    foundPos = text.find(ch, from);
    return foundPos == npos ? std::string_view() : text.substr(from, foundPos - from);
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
