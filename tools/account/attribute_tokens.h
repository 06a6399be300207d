// The tokens of an attribute statement, as the library splits it: at white space, commas and
// semicolons that are not inside quotes.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexil::tool {

enum class TokenClass { Other, QuotedString, Number };

struct AttributeToken {
    std::string text;
    TokenClass tokenClass = TokenClass::Other;
};

std::vector<AttributeToken> SplitAttribute(std::string_view statement);

// Returns the text between the first and the last quote of a token; empty if there is none.
std::string_view QuotedContent(std::string_view token);

// Returns the name of the attribute in a BA_, BA_DEF_ or BA_DEF_DEF_ statement: the first quoted
// text. Faster than splitting, since most files have thousands of statements of other attributes.
std::string_view AttributeName(std::string_view statement);

}  // namespace vexil::tool
