// The tokens of an attribute statement. Only these statements are split into tokens.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <forward_list>
#include <initializer_list>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace vexil {

enum class TokenClass { Other = 0, QuotedString = 1, Number = 2 };

// The tokens of a statement: views into it, or into texts of this object that had to be joined.
// White space, ";" and "," separate them. Text between double quotes is one token, with a blank in
// place of each run of separators. A quote that a separator follows directly opens no text, and an
// opening quote without a closing one takes the rest of the statement.
class StatementTokens {
  public:
    // text: lives as long as the object.
    explicit StatementTokens(std::string_view text);

    std::size_t Size() const { return tokens.size(); }
    std::string_view operator[](std::size_t position) const { return tokens[position]; }

    // Whether there are at least as many tokens as classes, and each of the first is of its class.
    bool BeginWith(std::initializer_list<TokenClass> classes) const;

  private:
    // Enough for ordinary statements, which need no other memory.
    std::array<std::byte, 256> space;
    std::pmr::monotonic_buffer_resource memory{space.data(), space.size(),
                                               std::pmr::new_delete_resource()};
    std::pmr::vector<std::string_view> tokens{&memory};
    std::forward_list<std::string> joined;
};

// Returns the text between the first and the last double quote of token, a view into it; empty if
// there are not two.
std::string_view QuotedContent(std::string_view token);

// Returns the class of a token: QuotedString when its QuotedContent is not empty, Number when it
// begins with a digit or "-" and with a number of 64 bits. Intentional: "" is Other.
TokenClass ClassifyToken(std::string_view token);

}  // namespace vexil
