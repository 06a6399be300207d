// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "attributes/attribute.h"

namespace vexil {

class AttributeTable {
  public:
    // In the order in which they were first seen. Only ClearEntries takes entries away, and none
    // moves before that.
    std::deque<Attribute> definitions;
    std::deque<AttributeValue> values;

    // The names that may enter the table; empty when every name may.
    std::vector<std::string> reservedAttributeNames;

    // Returns the definition of the name, kind and type, owned by the table, or null. The owner in
    // the key plays no part. The search walks the definitions: with the reserved names alone there
    // are few.
    const Attribute* FindDefinition(const AttributeKey& key, AttributeValueType type) const;

    // Returns the value of the name, owner and type, owned by the table, or null.
    const AttributeValue* FindValue(const AttributeKey& key, AttributeValueType type) const;

    // Store an entry. The first of a name, kind and type, and the first value of an owner, stays;
    // later ones are forgotten.
    void AddDefinition(Attribute definition);
    void AddValue(AttributeValue value);  // REQUIRES: its definition is one of this table

    // Whether the name may not enter the table.
    bool IsUnrecognised(std::string_view name) const;

    // Empties the table but for reservedAttributeNames.
    void ClearEntries();

  private:
    // With the texts of definitions and values as keys. A tree, since an attacker who knows the
    // hash of a table can make it slow.
    std::map<std::pair<AttributeKey, AttributeValueType>, const AttributeValue*> valueIndex;
};

}  // namespace vexil
