// Attributes as lines of a file. No text in them is escaped or converted.
// SPDX-License-Identifier: MIT
#pragma once

#include "attributes/attribute_table.h"
#include "text/line_buffer.h"

namespace vexil {

// Appends the lines of the table, separated by line feeds: all definitions, then all defaults, then
// all values. Nothing when the table has no definition.
void AppendAttributeSection(LineBuffer& text, AttributeTable& table);

// Each function appends a line without its line feed; nothing if the attribute has no such line.

// The BA_DEF_ line.
void AppendDefinition(LineBuffer& line, const Attribute& definition);

// The BA_DEF_DEF_ line, with the text of an Enum.
void AppendDefault(LineBuffer& line, const Attribute& definition);

// The BA_ line, with the number of an Enum. The network has none: its attributes are written only
// as defaults.
void AppendValue(LineBuffer& line, const AttributeValue& value);

}  // namespace vexil
