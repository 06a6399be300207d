// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>
#include <utility>

namespace vexil {

// Only what the kind of owner knows tells values apart.
AttributeTable::ValueIdentity::ValueIdentity(const AttributeKey& key, AttributeValueType type)
    : objectKind(key.objectKind), valueType(type), name(key.name) {
    if (objectKind != AttributeObjectKind::Gen) {
        messageId = key.messageId;
    }
    if (objectKind == AttributeObjectKind::Sig) {
        signalName = key.signalName;
    }
}

const Attribute* AttributeTable::FindDefinition(const AttributeKey& key,
                                                AttributeValueType type) const {
    const auto entry =
        std::find_if(definitions.begin(), definitions.end(), [&](const Attribute& definition) {
            return definition.objectKind == key.objectKind && definition.valueType == type &&
                   definition.name == key.name;
        });
    return entry == definitions.end() ? nullptr : &*entry;
}

const Attribute* AttributeTable::FindValue(const AttributeKey& key, AttributeValueType type) const {
    const auto entry = valueIndex.find({key, type});
    return entry == valueIndex.end() ? nullptr : entry->second;
}

void AttributeTable::AddDefinition(Attribute definition) {
    if (FindDefinition(definition, definition.valueType) == nullptr) {
        definitions.push_back(std::move(definition));
    }
}

void AttributeTable::AddValue(Attribute value) {
    values.push_back(std::move(value));
    const Attribute& stored = values.back();
    if (!valueIndex.try_emplace({stored, stored.valueType}, &stored).second) {
        values.pop_back();
    }
}

bool AttributeTable::IsUnrecognised(std::string_view name) const {
    return !reservedAttributeNames.empty() &&
           std::find(reservedAttributeNames.begin(), reservedAttributeNames.end(), name) ==
               reservedAttributeNames.end();
}

void AttributeTable::ClearEntries() {
    definitions.clear();
    valueIndex.clear();
    values.clear();
}

}  // namespace vexil
