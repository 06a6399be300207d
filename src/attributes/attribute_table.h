// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "attributes/attribute.h"
#include "text/arena.h"
#include "text/arena_list.h"
#include "text/hash_index.h"

namespace vexil {

class AttributeTable {
  public:
    // In the order of the file. Only ClearEntries removes entries, and they do not move before
    // that.
    std::vector<std::unique_ptr<Attribute>> definitions;
    PagedList<AttributeValue> values;

    // Returns the definition of the name, kind and type, owned by the table, or null. The search is
    // linear, since only reserved names have definitions.
    const Attribute* FindDefinition(std::string_view name, AttributeObjectKind kind,
                                    AttributeValueType type) const;

    // Returns the value of an owner for a definition of this table, owned by the table, or null.
    // For a message signalName is empty; for the network messageId is also 0.
    const AttributeValue* FindValue(const Attribute& definition, std::uint32_t messageId,
                                    std::string_view signalName);

    // Store an entry. The first definition of a name, kind and type and the first value of an owner
    // stay; later ones are dropped. Precondition: the texts live as long as the entries.
    void AddDefinition(Attribute definition);
    void AddValue(const AttributeValue& value);  // Precondition: its definition is of this table.

    // Empties the table and frees its memory.
    void ClearEntries();

  private:
    std::uint32_t* PlaceOf(const AttributeValue& wanted, std::size_t hash);

    Arena memory;     // of the values
    HashIndex index;  // of the values
};

}  // namespace vexil
