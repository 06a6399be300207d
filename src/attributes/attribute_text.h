// Attributes as lines of a file. No text in them is escaped or converted.
// SPDX-License-Identifier: MIT
#pragma once

#include "attributes/attribute_table.h"
#include "text/line_buffer.h"

namespace vexil {

// Appends the lines of the table with a line feed between each two: all definitions, then all
// defaults, then all values. Nothing when the table has no definition.
void AppendAttributeSection(LineBuffer& text, AttributeTable& table);

// Each appends a line without its end; nothing when the attribute has no such line.

// The BA_DEF_ line.
void AppendDefinition(LineBuffer& line, const Attribute& definition);

// The BA_DEF_DEF_ line; an Enum is given by its text.
void AppendDefault(LineBuffer& line, const Attribute& definition);

// The BA_ line; an Enum is given by its number. The network has none: its attributes reach a file
// only through their defaults.
void AppendValue(LineBuffer& line, const AttributeValue& value);

}  // namespace vexil
