// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>

namespace vexil {

AttributeTable::ValueIdentity::ValueIdentity(const AttributeValue& value)
    : key{.messageId = value.messageId,
          .objectKind = value.definition->objectKind,
          .name = value.definition->name,
          .signalName = value.signalName},
      type(value.definition->valueType) {}

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
    const auto entry = valueIndex.find(ValueIdentity(key, type));
    return entry == valueIndex.end() ? nullptr : &*entry;
}

void AttributeTable::AddDefinition(const Attribute& definition) {
    const AttributeKey key{.objectKind = definition.objectKind, .name = definition.name};
    if (FindDefinition(key, definition.valueType) != nullptr) {
        return;
    }
    Attribute& stored = definitions.emplace_back(definition);
    stored.defaultContent.stringValue = Keep(definition.defaultContent.stringValue);
}

void AttributeTable::AddValue(const AttributeValue& value) {
    const auto place = valueIndex.lower_bound(value);
    if (place != valueIndex.end() && ValueIdentity(*place) == ValueIdentity(value)) {
        return;
    }
    AttributeValue stored = value;
    stored.signalName = Keep(value.signalName);
    stored.content.stringValue = Keep(value.content.stringValue);
    values.push_back(&*valueIndex.insert(place, stored));
}

void AttributeTable::SetDefault(Attribute& definition, std::string_view token) {
    AttributeContent content = definition.defaultContent;
    if (definition.SetValueFromText(content, token)) {
        content.stringValue = Keep(content.stringValue);
        definition.defaultContent = content;
    }
}

bool AttributeTable::IsUnrecognised(std::string_view name) const {
    return !reservedAttributeNames.empty() &&
           std::find(reservedAttributeNames.begin(), reservedAttributeNames.end(), name) ==
               reservedAttributeNames.end();
}

void AttributeTable::ClearEntries() {
    definitions.clear();
    values.clear();
    valueIndex.clear();
    memory.release();
}

std::string_view AttributeTable::Keep(std::string_view text) {
    if (text.empty()) {
        return {};
    }
    auto* copy = static_cast<char*>(memory.allocate(text.size(), alignof(char)));
    std::copy(text.begin(), text.end(), copy);
    return {copy, text.size()};
}

}  // namespace vexil
