// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>
#include <utility>

namespace vexil {

namespace {

AttributeKey KeyOf(const AttributeValue& value) {
    return {.messageId = value.messageId,
            .objectKind = value.definition->objectKind,
            .name = value.definition->name,
            .signalName = value.signalName};
}

}  // namespace

const Attribute* AttributeTable::FindDefinition(const AttributeKey& key,
                                                AttributeValueType type) const {
    const auto entry =
        std::find_if(definitions.begin(), definitions.end(), [&](const Attribute& definition) {
            return definition.objectKind == key.objectKind && definition.valueType == type &&
                   definition.name == key.name;
        });
    return entry == definitions.end() ? nullptr : &*entry;
}

const AttributeValue* AttributeTable::FindValue(const AttributeKey& key,
                                                AttributeValueType type) const {
    const auto entry = valueIndex.find({key, type});
    return entry == valueIndex.end() ? nullptr : entry->second;
}

void AttributeTable::AddDefinition(Attribute definition) {
    const AttributeKey key{.objectKind = definition.objectKind, .name = definition.name};
    if (FindDefinition(key, definition.valueType) == nullptr) {
        definitions.push_back(std::move(definition));
    }
}

void AttributeTable::AddValue(AttributeValue value) {
    const AttributeValue& stored = values.emplace_back(std::move(value));
    if (!valueIndex.try_emplace({KeyOf(stored), stored.definition->valueType}, &stored).second) {
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
