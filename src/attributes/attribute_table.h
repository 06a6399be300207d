// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute.h"

namespace vexil {

class AttributeTable {
  public:
    // In the order in which they were first seen. Only ClearEntries takes entries away, and none
    // moves before that.
    std::deque<Attribute> definitions;
    std::deque<Attribute> values;

    // The names that may enter the table; empty when every name may.
    std::vector<std::string> reservedAttributeNames;

    // Returns the definition of the name, kind and type, owned by the table, or null. The owner in
    // the key plays no part. The search walks the definitions: with the reserved names alone there
    // are few.
    const Attribute* FindDefinition(const AttributeKey& key, AttributeValueType type) const;

    // Returns the value of the name, owner and type, owned by the table, or null.
    const Attribute* FindValue(const AttributeKey& key, AttributeValueType type) const;

    // Store the attribute. The first entry of an identity stays; later ones are forgotten.
    void AddDefinition(Attribute definition);
    void AddValue(Attribute value);

    // Whether the name may not enter the table.
    bool IsUnrecognised(std::string_view name) const;

    // Empties the table but for reservedAttributeNames.
    void ClearEntries();

  private:
    // Which value it is, with the texts of the value itself. In a tree, since an attacker who knows
    // the hash of a table can make it slow; the id comes first because it tells most values apart.
    struct ValueIdentity {
        ValueIdentity(const AttributeKey& key, AttributeValueType type);
        auto operator<=>(const ValueIdentity&) const = default;

        std::uint32_t messageId = 0;
        AttributeObjectKind objectKind;
        AttributeValueType valueType;
        std::string_view name;
        std::string_view signalName;
    };

    std::map<ValueIdentity, const Attribute*> valueIndex;
};

}  // namespace vexil
