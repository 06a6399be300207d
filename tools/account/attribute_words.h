// Functions for all kinds of attribute statements.
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

// Describes the owner and the type with which the library reads the attribute.
std::string KeptFor(const KeptAttribute& attribute);

// Returns the outcome of a statement whose attribute is not reserved.
Outcome OtherAttribute(std::string_view name);

// Returns whether the name is neither empty nor that of a reserved attribute.
bool IsOtherAttribute(std::string_view name);

// Returns whether the tokens begin with these classes.
bool HasClasses(const AttributeTokens& tokens, std::initializer_list<TokenClass> classes);

// Returns the owner that BO_ or SG_ stands for.
std::optional<AttributeOwner> OwnerOf(std::string_view token);

}  // namespace vexil::tool
