// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <list>
#include <memory_resource>
#include <span>
#include <string_view>
#include <vector>

#include "attributes/attribute.h"
#include "text/hash_index.h"

namespace vexil {

class AttributeTable {
  public:
    // In the order in which they were first seen. Only ClearEntries takes entries away, and no
    // definition moves before that. A list, since an empty one needs no memory: none must be
    // wanting when the library is loaded.
    std::list<Attribute> definitions;
    std::vector<AttributeValue> values;

    // The names that may enter the table, owned by whoever set them; empty when every name may.
    std::span<const std::string_view> reservedAttributeNames;

    // Returns the definition of the name, kind and type, owned by the table, or null. The search
    // walks the definitions: with the reserved names alone there are few.
    const Attribute* FindDefinition(std::string_view name, AttributeObjectKind kind,
                                    AttributeValueType type) const;

    // Returns the value that an owner has of a definition of this table, owned by the table until
    // the next AddValue, or null. A message has no signalName, and the network no messageId either:
    // 0.
    const AttributeValue* FindValue(const Attribute& definition, std::uint32_t messageId,
                                    std::string_view signalName) const;

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
    // The position in values of the one of the same definition and owner, or npos.
    std::size_t PositionOf(const AttributeValue& wanted, std::size_t hash) const;

    // Returns a copy of the text that lives until ClearEntries.
    std::string_view Keep(std::string_view text);

    // The texts: one allocation for many of them, and none to give back singly.
    std::pmr::monotonic_buffer_resource memory;

    HashIndex valueIndex;  // of values
};

}  // namespace vexil
