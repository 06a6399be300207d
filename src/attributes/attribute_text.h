// Attributes as lines of a file. No text in them is escaped or converted.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "attributes/attribute_table.h"

namespace vexil {

// Returns the lines of the table with a line feed between each two: all definitions, then all
// defaults, then all values. Empty when the table has no definition.
std::string AttributeSectionText(const AttributeTable& table);

// Each returns line with a line behind it, without a line end; line as it is when the attribute has
// no such line.

// The BA_DEF_ line.
std::string DefinitionText(const Attribute& definition, std::string line = {});

// The BA_DEF_DEF_ line; an Enum is given by its text.
std::string DefaultText(const Attribute& definition, std::string line = {});

// The BA_ line; an Enum is given by its number. The network has none: its attributes reach a file
// only through their defaults.
std::string ValueText(const AttributeValue& value, std::string line = {});

}  // namespace vexil
