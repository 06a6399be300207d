// The tokens of an attribute statement.
// SPDX-License-Identifier: MIT
#include "attributes/tokens.h"

#include <algorithm>

#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

TokenClass ClassifyToken(std::string_view token) {
    if (!QuotedContent(token).empty()) {
        return TokenClass::QuotedString;
    }
    std::int64_t number = 0;
    const bool isNumber =
        (IsDigit(token.front()) || token.front() == '-') && TryParseI64(token, number);
    return isNumber ? TokenClass::Number : TokenClass::Other;
}

}  // namespace

std::vector<std::string> SplitStatementTokens(std::string_view text, std::string_view delimiters) {
    std::vector<std::string> tokens;
    bool open = false;  // the last token waits for its closing quote
    std::size_t start = text.find_first_not_of(delimiters);
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(text.find_first_of(delimiters, start), text.size());
        const std::string_view piece = text.substr(start, end - start);
        if (open) {
            tokens.back().append(1, ' ').append(piece);
            open = piece.back() != '"';
        } else {
            tokens.emplace_back(piece);
            open = piece.front() == '"' && piece.back() != '"';
        }
        start = text.find_first_not_of(delimiters, end);
    }
    return tokens;
}

std::string_view QuotedContent(std::string_view token) {
    const std::size_t first = token.find('"');
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = token.rfind('"');
    return last == first ? std::string_view() : token.substr(first + 1, last - first - 1);
}

std::vector<TokenClass> ClassifyTokens(const std::vector<std::string>& tokens) {
    std::vector<TokenClass> classes;
    classes.reserve(tokens.size());
    for (const std::string& token : tokens) {
        classes.push_back(ClassifyToken(token));
    }
    return classes;
}

bool BeginsWith(const std::vector<TokenClass>& classes, const std::vector<TokenClass>& expected) {
    return classes.size() >= expected.size() &&
           std::equal(expected.begin(), expected.end(), classes.begin());
}

}  // namespace vexil
