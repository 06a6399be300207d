// The tokens of an attribute statement in two plain passes: slower than the library, and each step
// to be seen on its own.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexil::test {

// Cuts text at every run of delimiters, whatever quotes it holds.
inline std::vector<std::string> TwinRawTokens(std::string_view text, std::string_view delimiters) {
    std::vector<std::string> raw;
    std::string token;
    for (const char ch : text) {
        if (delimiters.find(ch) == std::string_view::npos) {
            token += ch;
        } else if (!token.empty()) {
            raw.push_back(token);
            token.clear();
        }
    }
    if (!token.empty()) {
        raw.push_back(token);
    }
    return raw;
}

// Joins the tokens between quotes again.
inline std::vector<std::string> TwinJoinedTokens(const std::vector<std::string>& raw) {
    std::vector<std::string> tokens;
    bool open = false;
    for (const std::string& token : raw) {
        const std::size_t first = token.find('"');
        const std::size_t last = token.rfind('"');
        const bool quoteIsLast = last != std::string::npos && last + 1 == token.size();
        if (open) {
            tokens.back() += ' ';
            tokens.back() += token;
            open = !quoteIsLast;
        } else {
            tokens.push_back(token);
            open = first == 0 && !quoteIsLast;
        }
    }
    return tokens;
}

inline std::vector<std::string> TwinTokens(std::string_view text, std::string_view delimiters) {
    return TwinJoinedTokens(TwinRawTokens(text, delimiters));
}

}  // namespace vexil::test
