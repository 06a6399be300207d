// What the handlers of attribute statements share.
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/attribute_book.h"

namespace vexil::tool {

using AttributeTokens = std::vector<AttributeToken>;

std::string_view WordOf(AttributeType type);

// For what owner and with which type the attribute is kept, in words.
std::string KeptFor(const KeptAttribute& attribute);

// The outcome of an attribute that is not one of the nine.
Outcome OtherAttribute(std::string_view name);

// Whether the name is given and not one of the nine, at a quick look.
bool IsOtherAttribute(std::string_view name);

// Whether the tokens begin with these classes.
bool HasClasses(const AttributeTokens& tokens, std::initializer_list<TokenClass> classes);

// The owner that BO_ or SG_ says.
std::optional<AttributeOwner> OwnerOf(std::string_view token);

}  // namespace vexil::tool
