// The tokens of an attribute statement. Only these statements are split into tokens.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <forward_list>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vexil {

enum class TokenClass { Other = 0, QuotedString = 1, Number = 2 };

// The tokens of a statement: views into it, or into the texts that had to be joined. May be moved,
// not copied, and lives no longer than the statement.
struct StatementTokens {
    StatementTokens() = default;
    StatementTokens(const StatementTokens&) = delete;
    StatementTokens(StatementTokens&&) = default;
    StatementTokens& operator=(const StatementTokens&) = delete;
    StatementTokens& operator=(StatementTokens&&) = default;
    ~StatementTokens() = default;

    std::vector<std::string_view> tokens;
    std::forward_list<std::string> joined;
};

// A set of characters that is quick to ask.
class CharSet {
  public:
    explicit constexpr CharSet(std::string_view chars) {
        for (const char ch : chars) {
            members[static_cast<unsigned char>(ch)] = true;
        }
    }

    constexpr bool Contains(char ch) const { return members[static_cast<unsigned char>(ch)]; }

  private:
    std::array<bool, 256> members{};
};

// Cuts text at every run of delimiters and joins again, with one blank, what double quotes hold
// together. So a run of delimiters inside quotes becomes one blank, a quote that a delimiter
// follows directly opens nothing, and an opening quote without a closing one takes the rest of the
// text.
StatementTokens SplitStatementTokens(std::string_view text, const CharSet& delimiters);

// Returns what stands between the first and the last double quote of token, a view into it; empty
// when there are not two.
std::string_view QuotedContent(std::string_view token);

// Tells what a token is: QuotedString when QuotedContent of it is not empty, Number when it begins
// with a digit or "-" and with a number of 64 bits. Kept on purpose: "" is Other.
TokenClass ClassifyToken(std::string_view token);

// The classes of all tokens, in their order.
std::vector<TokenClass> ClassifyTokens(const std::vector<std::string_view>& tokens);

// Whether there are at least as many tokens as classes, and each of the first is of its class.
bool BeginWith(const std::vector<std::string_view>& tokens,
               std::initializer_list<TokenClass> classes);

}  // namespace vexil
