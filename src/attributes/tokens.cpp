// The tokens of an attribute statement.
// SPDX-License-Identifier: MIT
#include "attributes/tokens.h"

#include <algorithm>
#include <iterator>

#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

constexpr std::size_t OrdinaryTokenCount = 8;

// The first character of text at or behind from that is, or is not, in the set; the size of the
// text when there is none.
std::size_t Find(std::string_view text, std::size_t from, const CharSet& set, bool isMember) {
    while (from < text.size() && set.Contains(text[from]) != isMember) {
        ++from;
    }
    return from;
}

}  // namespace

StatementTokens SplitStatementTokens(std::string_view text, const CharSet& delimiters) {
    StatementTokens split;
    split.tokens.reserve(OrdinaryTokenCount);
    bool open = false;              // the last token waits for its closing quote
    std::string* joined = nullptr;  // where it is joined from pieces, if it is
    std::size_t start = Find(text, 0, delimiters, false);
    while (start < text.size()) {
        const std::size_t end = Find(text, start, delimiters, true);
        const std::string_view piece = text.substr(start, end - start);
        if (!open) {
            split.tokens.push_back(piece);
            open = piece.front() == '"' && piece.back() != '"';
            joined = nullptr;
        } else {
            if (joined == nullptr) {
                joined = &split.joined.emplace_front(split.tokens.back());
            }
            joined->append(1, ' ').append(piece);
            split.tokens.back() = *joined;
            open = piece.back() != '"';
        }
        start = Find(text, end, delimiters, false);
    }
    return split;
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

std::vector<TokenClass> ClassifyTokens(const std::vector<std::string_view>& tokens) {
    std::vector<TokenClass> classes;
    classes.reserve(tokens.size());
    std::transform(tokens.begin(), tokens.end(), std::back_inserter(classes), ClassifyToken);
    return classes;
}

bool BeginWith(const std::vector<std::string_view>& tokens,
               std::initializer_list<TokenClass> classes) {
    return tokens.size() >= classes.size() &&
           std::equal(classes.begin(), classes.end(), tokens.begin(),
                      [](TokenClass tokenClass, std::string_view token) {
                          return ClassifyToken(token) == tokenClass;
                      });
}

}  // namespace vexil
