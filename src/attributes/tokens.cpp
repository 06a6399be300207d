// The tokens of an attribute statement.
// SPDX-License-Identifier: MIT
#include "attributes/tokens.h"

#include <algorithm>

#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

constexpr std::size_t OrdinaryTokenCount = 8;

constexpr std::array<bool, 256> separatorTable = [] {
    std::array<bool, 256> table = spaceTable;
    table[';'] = true;
    table[','] = true;
    return table;
}();

bool IsSeparator(char ch) {
    return separatorTable[static_cast<unsigned char>(ch)];
}

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): space needs no value
StatementTokens::StatementTokens(std::string_view text) {
    tokens.reserve(OrdinaryTokenCount);
    bool isOpen = false;           // the last token has no closing quote yet
    std::string* whole = nullptr;  // the last token, if it is joined from pieces
    const auto* at = std::find_if_not(text.begin(), text.end(), IsSeparator);
    while (at != text.end()) {
        const auto* const end = std::find_if(at, text.end(), IsSeparator);
        const std::string_view piece(at, end);
        if (!isOpen) {
            tokens.push_back(piece);
            isOpen = piece.front() == '"' && piece.back() != '"';
            whole = nullptr;
        } else {
            if (whole == nullptr) {
                whole = &joined.emplace_front(tokens.back());
            }
            whole->append(1, ' ').append(piece);
            tokens.back() = *whole;
            isOpen = piece.back() != '"';
        }
        at = std::find_if_not(end, text.end(), IsSeparator);
    }
}

bool StatementTokens::BeginWith(std::initializer_list<TokenClass> classes) const {
    return tokens.size() >= classes.size() &&
           std::equal(classes.begin(), classes.end(), tokens.begin(),
                      [](TokenClass tokenClass, std::string_view token) {
                          return ClassifyToken(token) == tokenClass;
                      });
}

std::string_view QuotedContent(std::string_view token) {
    const std::size_t first = token.find('"');
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = token.rfind('"');
    return last == first ? std::string_view() : token.substr(first + 1, last - first - 1);
}

TokenClass ClassifyToken(std::string_view token) {
    if (!QuotedContent(token).empty()) {
        return TokenClass::QuotedString;
    }
    std::int64_t number = 0;
    const bool isNumber =
        (IsDigit(token.front()) || token.front() == '-') && TryParseI64(token, number);
    return isNumber ? TokenClass::Number : TokenClass::Other;
}

}  // namespace vexil
