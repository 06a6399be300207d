// Splitting at separators, then joining what quotes hold together.
// SPDX-License-Identifier: MIT
#include "account/attribute_tokens.h"

#include <charconv>
#include <cstdint>

#include "source/keywords.h"

namespace vexil::tool {
namespace {

constexpr std::string_view Separators = " \f\n\r\t\v;,";

TokenClass ClassOf(std::string_view token) {
    if (!QuotedContent(token).empty()) {
        return TokenClass::QuotedString;
    }
    const char first = token.front();
    std::int64_t number = 0;
    const bool looksLikeNumber = first == '-' || (first >= '0' && first <= '9');
    if (looksLikeNumber &&
        std::from_chars(token.data(), token.data() + token.size(), number).ec == std::errc()) {
        return TokenClass::Number;
    }
    return TokenClass::Other;
}

bool EndsWithQuote(std::string_view word) {
    return word.back() == '"';
}

}  // namespace

std::vector<AttributeToken> SplitAttribute(std::string_view statement) {
    std::vector<AttributeToken> tokens;
    bool isOpen = false;
    std::size_t begin = statement.find_first_not_of(Separators);
    while (begin != std::string_view::npos) {
        std::size_t end = statement.find_first_of(Separators, begin);
        end = end == std::string_view::npos ? statement.size() : end;
        const std::string_view word = statement.substr(begin, end - begin);
        if (isOpen) {
            tokens.back().text += ' ';
            tokens.back().text += word;
            isOpen = !EndsWithQuote(word);
        } else {
            tokens.push_back({std::string(word), TokenClass::Other});
            isOpen = word.front() == '"' && !EndsWithQuote(word);
        }
        begin = statement.find_first_not_of(Separators, end);
    }
    for (AttributeToken& token : tokens) {
        token.tokenClass = ClassOf(token.text);
    }
    return tokens;
}

std::string_view QuotedContent(std::string_view token) {
    const std::size_t first = token.find('"');
    const std::size_t last = token.rfind('"');
    if (first == std::string_view::npos || last <= first + 1) {
        return {};
    }
    return token.substr(first + 1, last - first - 1);
}

std::string_view AttributeName(std::string_view statement) {
    const std::size_t open = statement.find('"');
    if (open == std::string_view::npos) {
        return {};
    }
    return statement.substr(open + 1, statement.find('"', open + 1) - open - 1);
}

}  // namespace vexil::tool
