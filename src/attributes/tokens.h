// The tokens of an attribute statement. Only these statements are split into tokens.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexil {

enum class TokenClass { Other = 0, QuotedString = 1, Number = 2 };

// Cuts text at every run of delimiters and joins again, with one blank, what double quotes hold
// together. So a run of delimiters inside quotes becomes one blank, a quote that a delimiter
// follows directly opens nothing, and an opening quote without a closing one takes the rest of the
// text.
std::vector<std::string> SplitStatementTokens(std::string_view text, std::string_view delimiters);

// Returns what stands between the first and the last double quote of token, a view into it; empty
// when there are not two.
std::string_view QuotedContent(std::string_view token);

// Tells of each token what it is: QuotedString when QuotedContent of it is not empty, Number when
// it begins with a digit or "-" and with a number of 64 bits. Kept on purpose: "" is Other.
std::vector<TokenClass> ClassifyTokens(const std::vector<std::string>& tokens);

// Whether classes begins with expected.
bool BeginsWith(const std::vector<TokenClass>& classes, const std::vector<TokenClass>& expected);

}  // namespace vexil
