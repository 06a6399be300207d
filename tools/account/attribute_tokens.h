// The words of an attribute statement, as the library takes it apart: white space, commas and
// semicolons separate, quotes hold together.
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

// The text between the first and the last quote of a token; empty if there is none.
std::string_view QuotedContent(std::string_view token);

// The name of the attribute in a BA_, BA_DEF_ or BA_DEF_DEF_ statement: the first quoted text. A
// quick look, since most files have thousands of statements of attributes that are not kept.
std::string_view AttributeName(std::string_view statement);

}  // namespace vexil::tool
