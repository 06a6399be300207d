// Splits a statement at separators, then joins the parts inside quotes.
// SPDX-License-Identifier: MIT
#include "account/attribute_tokens.h"

#include <charconv>
#include <cstdint>

#include "source/keywords.h"

namespace vexil::tool {
namespace {

bool IsSeparator(char ch) {
    return IsSpace(ch) || ch == ';' || ch == ',';
}

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
    constexpr std::size_t UsualTokens = 8;
    std::vector<AttributeToken> tokens;
    tokens.reserve(UsualTokens);
    bool isOpen = false;
    std::size_t at = 0;
    for (;;) {
        while (at < statement.size() && IsSeparator(statement[at])) {
            ++at;
        }
        if (at == statement.size()) {
            break;
        }
        const std::size_t begin = at;
        while (at < statement.size() && !IsSeparator(statement[at])) {
            ++at;
        }
        const std::string_view word = statement.substr(begin, at - begin);
        if (isOpen) {
            tokens.back().text += ' ';
            tokens.back().text += word;
            isOpen = !EndsWithQuote(word);
        } else {
            tokens.push_back({std::string(word), TokenClass::Other});
            isOpen = word.front() == '"' && !EndsWithQuote(word);
        }
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
