// The attribute statements: which statement is one, and what each puts into the table. A statement
// that cannot be used leaves no trace.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "attributes/attribute_table.h"

namespace vexil {

// Whether the statement begins with BA_, BA_DEF_ or BA_DEF_DEF_.
bool IsAttributeStatement(std::string_view text);

// Splits the statement into tokens and hands them to the one of the three below that its keyword
// names.
void ParseAttributeStatement(AttributeTable& table, std::string_view text);

// BA_DEF_ [BO_|SG_] "name" INT min max; or ... ENUM "text","text"; or ... STRING;
// Adds a definition, unless one of its name, kind and type stands already.
void ParseDefinitionStatement(AttributeTable& table, const std::vector<std::string_view>& tokens);

// BA_DEF_DEF_ "name" value;
// Sets the default of every definition of the name, over an earlier one.
void ParseDefaultStatement(AttributeTable& table, const std::vector<std::string_view>& tokens);

// BA_ "name" [BO_ id|SG_ id signal] value;
// Adds a value of the first definition of the name, unless its owner has one already.
void ParseValueStatement(AttributeTable& table, const std::vector<std::string_view>& tokens);

}  // namespace vexil
