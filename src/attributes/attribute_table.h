// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <memory_resource>
#include <set>
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
    std::vector<const AttributeValue*> values;  // never null

    // The names that may enter the table; empty when every name may.
    std::vector<std::string> reservedAttributeNames;

    // Returns the definition of the name, kind and type, owned by the table, or null. The owner in
    // the key plays no part. The search walks the definitions: with the reserved names alone there
    // are few.
    const Attribute* FindDefinition(const AttributeKey& key, AttributeValueType type) const;

    // Returns the value of the name, owner and type, owned by the table, or null.
    const AttributeValue* FindValue(const AttributeKey& key, AttributeValueType type) const;

    // Store an entry with copies of its texts. The first definition of a name, kind and type and
    // the first value of an owner stay; later ones are forgotten.
    void AddDefinition(const Attribute& definition);
    void AddValue(const AttributeValue& value);  // REQUIRES: its definition is one of this table

    // Sets the default of a definition of this table from a token.
    void SetDefault(Attribute& definition, std::string_view token);

    // Whether the name may not enter the table.
    bool IsUnrecognised(std::string_view name) const;

    // Empties the table but for reservedAttributeNames.
    void ClearEntries();

  private:
    struct ValueIdentity {
        ValueIdentity(const AttributeKey& attributeKey, AttributeValueType valueType)
            : key(attributeKey), type(valueType) {}
        explicit ValueIdentity(const AttributeValue& value);
        auto operator<=>(const ValueIdentity&) const = default;

        AttributeKey key;
        AttributeValueType type;
    };

    struct IdentityLess {
        using is_transparent = void;
        template <typename A, typename B>
        bool operator()(const A& a, const B& b) const {
            return ValueIdentity(a) < ValueIdentity(b);
        }
    };

    // Returns a copy of the text that lives until ClearEntries.
    std::string_view Keep(std::string_view text);

    // What lives until ClearEntries: one allocation for many entries, and none to give back singly.
    std::pmr::monotonic_buffer_resource memory;

    // A tree, since an attacker who knows the hash of a table can make it slow.
    std::pmr::set<AttributeValue, IdentityLess> valueIndex{&memory};
};

}  // namespace vexil
