// The attribute statements, and what each puts into a table. A statement that cannot be used leaves
// no trace; of the attributes only the reserved ones can.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "attributes/attribute_table.h"
#include "text/arena.h"

namespace vexil {

// Each takes a whole statement, and keeps what it needs of its text in the arena.

// BA_DEF_ [BO_|SG_] "name" INT min max; or ... ENUM "text","text"; or ... STRING;
// Adds a definition, unless there is one of its name, kind and type.
void ParseDefinitionStatement(AttributeTable& table, Arena& arena, std::string_view text);

// BA_DEF_DEF_ "name" value;
// Sets the default of every definition of the name, over an earlier one.
void ParseDefaultStatement(AttributeTable& table, Arena& arena, std::string_view text);

// BA_ "name" [BO_ id|SG_ id signal] value;
// Adds a value of the first definition of the name, unless its owner has one already.
void ParseValueStatement(AttributeTable& table, Arena& arena, std::string_view text);

}  // namespace vexil
