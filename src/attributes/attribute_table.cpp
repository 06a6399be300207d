// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>
#include <functional>

#include "text/keyed_hash.h"

namespace vexil {

namespace {

// A value is known by its definition, which tells name, kind and type, and its owner.
std::size_t HashOf(const AttributeValue& value) {
    return KeyedHash(std::hash<const Attribute*>()(value.definition) + value.messageId,
                     value.signalName);
}

bool IsOfSameOwner(const AttributeValue& a, const AttributeValue& b) {
    return a.messageId == b.messageId && a.definition == b.definition &&
           a.signalName == b.signalName;
}

}  // namespace

const Attribute* AttributeTable::FindDefinition(std::string_view name, AttributeObjectKind kind,
                                                AttributeValueType type) const {
    const auto entry =
        std::find_if(definitions.begin(), definitions.end(), [&](const Attribute& definition) {
            return definition.objectKind == kind && definition.valueType == type &&
                   definition.name == name;
        });
    return entry == definitions.end() ? nullptr : &*entry;
}

const AttributeValue* AttributeTable::FindValue(const Attribute& definition,
                                                std::uint32_t messageId,
                                                std::string_view signalName) const {
    AttributeValue wanted;
    wanted.definition = &definition;
    wanted.messageId = messageId;
    wanted.signalName = signalName;
    const std::size_t position = PositionOf(wanted, HashOf(wanted));
    return position == npos ? nullptr : &values[position];
}

void AttributeTable::AddDefinition(const Attribute& definition) {
    if (FindDefinition(definition.name, definition.objectKind, definition.valueType) != nullptr) {
        return;
    }
    Attribute& stored = definitions.emplace_back(definition);
    stored.defaultContent.stringValue = Keep(definition.defaultContent.stringValue);
}

void AttributeTable::AddValue(const AttributeValue& value) {
    const std::size_t hash = HashOf(value);
    if (PositionOf(value, hash) != npos) {
        return;
    }
    AttributeValue& stored = values.emplace_back(value);
    stored.signalName = Keep(value.signalName);
    stored.content.stringValue = Keep(value.content.stringValue);
    valueIndex.Add(hash, values.size() - 1);
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
    valueIndex.Clear();
    memory.release();
}

std::size_t AttributeTable::PositionOf(const AttributeValue& wanted, std::size_t hash) const {
    return valueIndex.Find(
        hash, [&](std::size_t position) { return IsOfSameOwner(values[position], wanted); });
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
