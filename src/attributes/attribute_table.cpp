// AttributeTable: keys, finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>

namespace vexil {
namespace {

std::string_view TypeTag(AttributeValueType type) {
    switch (type) {
        case AttributeValueType::Unsup:
            return "$$Unsup";
        case AttributeValueType::Int:
            return "$$Int";
        case AttributeValueType::Enum:
            return "$$Enum";
        case AttributeValueType::Str:
            return "$$Str";
    }
    return {};
}

std::string_view KindTag(AttributeObjectKind kind) {
    switch (kind) {
        case AttributeObjectKind::Gen:
            return "$$Gen";
        case AttributeObjectKind::Msg:
            return "$$Msg";
        case AttributeObjectKind::Sig:
            return "$$Sig";
    }
    return {};
}

}  // namespace

std::string MakeDefinitionKey(const AttributeKey& key, AttributeValueType type) {
    std::string text = key.name;
    text.append(KindTag(key.objectKind)).append(TypeTag(type));
    return text;
}

std::string MakeValueKey(const AttributeKey& key, AttributeValueType type) {
    std::string text = key.name;
    text.append(KindTag(key.objectKind));
    if (key.objectKind == AttributeObjectKind::Msg || key.objectKind == AttributeObjectKind::Sig) {
        text.append("$$").append(std::to_string(key.messageId));
    }
    if (key.objectKind == AttributeObjectKind::Sig) {
        text.append("$$").append(key.signalName);
    }
    text.append(TypeTag(type));
    return text;
}

const Attribute* AttributeTable::FindDefinition(const AttributeKey& key,
                                                AttributeValueType type) const {
    const auto entry = definitionIndex.find(MakeDefinitionKey(key, type));
    return entry == definitionIndex.end() ? nullptr : entry->second.get();
}

const Attribute* AttributeTable::FindValue(const AttributeKey& key, AttributeValueType type) const {
    const auto entry = valueIndex.find(MakeValueKey(key, type));
    return entry == valueIndex.end() ? nullptr : entry->second.get();
}

void AttributeTable::AddDefinition(const Attribute& definition) {
    const auto [entry, isNew] =
        definitionIndex.try_emplace(MakeDefinitionKey(definition, definition.valueType));
    if (isNew) {
        entry->second = std::make_shared<Attribute>(definition);
        definitions.push_back(entry->second);
    }
}

void AttributeTable::AddValue(const Attribute& value) {
    const auto [entry, isNew] = valueIndex.try_emplace(MakeValueKey(value, value.valueType));
    if (isNew) {
        entry->second = std::make_shared<Attribute>(value);
        values.push_back(entry->second);
    }
}

bool AttributeTable::IsUnrecognised(std::string_view name) const {
    return !reservedAttributeNames.empty() &&
           std::find(reservedAttributeNames.begin(), reservedAttributeNames.end(), name) ==
               reservedAttributeNames.end();
}

void AttributeTable::ClearEntries() {
    definitions.clear();
    definitionIndex.clear();
    values.clear();
    valueIndex.clear();
}

}  // namespace vexil
