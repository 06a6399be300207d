// The attribute statements, which fill a table. A statement that cannot be used is dropped, and so
// is every statement of an attribute that is not reserved.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "attributes/attribute_table.h"
#include "text/arena.h"

namespace vexil {

// Each takes a whole statement, and copies the texts that it needs into the arena.

// BA_DEF_ [BO_|SG_] "name" INT min max; or ... ENUM "text","text"; or ... STRING;
// Adds a definition, unless one of the same name, kind and type exists.
void ParseDefinitionStatement(AttributeTable& table, Arena& arena, std::string_view text);

// BA_DEF_DEF_ "name" value;
// Sets the default of every definition of the name; replaces an earlier default.
void ParseDefaultStatement(AttributeTable& table, Arena& arena, std::string_view text);

// BA_ "name" [BO_ id|SG_ id signal] value;
// Adds a value of the first definition of the name, unless the owner has one.
void ParseValueStatement(AttributeTable& table, Arena& arena, std::string_view text);

}  // namespace vexil
