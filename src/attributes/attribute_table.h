// AttributeTable, the attribute definitions and values of one file.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "attributes/attribute.h"

namespace vexil {

// The key of a definition: name, kind and type, "GenMsgCycleTime$$Msg$$Int".
std::string MakeDefinitionKey(const AttributeKey& key, AttributeValueType type);

// The key of a value: name, owner and type, "GenSigStartValue$$Sig$$256$$Speed$$Int".
std::string MakeValueKey(const AttributeKey& key, AttributeValueType type);

class AttributeTable {
  public:
    // In the order in which they were first seen.
    std::vector<std::shared_ptr<Attribute>> definitions;
    std::vector<std::shared_ptr<Attribute>> values;

    // The names that may enter the table; empty when every name may.
    std::vector<std::string> reservedAttributeNames;

    // Return the entry of the key and type, owned by the table until ClearEntries, or null. For a
    // definition the owner in the key plays no part.
    const Attribute* FindDefinition(const AttributeKey& key, AttributeValueType type) const;
    const Attribute* FindValue(const AttributeKey& key, AttributeValueType type) const;

    // Store a copy under its own key and type. The first entry of a key stays; later ones are
    // forgotten.
    void AddDefinition(const Attribute& definition);
    void AddValue(const Attribute& value);

    // Whether the name may not enter the table.
    bool IsUnrecognised(std::string_view name) const;

    // Empties the table but for reservedAttributeNames.
    void ClearEntries();

  private:
    using Index = std::unordered_map<std::string, std::shared_ptr<Attribute>>;

    Index definitionIndex;
    Index valueIndex;
};

}  // namespace vexil
