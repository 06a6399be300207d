// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>

#include "text/keyed_hash.h"

namespace vexil {

std::size_t AttributeTable::ValueHash::operator()(const AttributeValue& value) const {
    return KeyedHash(value.messageId, value.signalName);
}

bool AttributeTable::ValueEqual::operator()(const AttributeValue& a,
                                            const AttributeValue& b) const noexcept {
    return a.messageId == b.messageId && a.definition == b.definition &&
           a.signalName == b.signalName;
}

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
    const auto entry = valueIndex.find(wanted);
    return entry == valueIndex.end() ? nullptr : &*entry;
}

void AttributeTable::AddDefinition(const Attribute& definition) {
    if (FindDefinition(definition.name, definition.objectKind, definition.valueType) != nullptr) {
        return;
    }
    Attribute& stored = definitions.emplace_back(definition);
    stored.defaultContent.stringValue = Keep(definition.defaultContent.stringValue);
}

void AttributeTable::AddValue(const AttributeValue& value) {
    AttributeValue stored = value;
    stored.signalName = Keep(value.signalName);
    stored.content.stringValue = Keep(value.content.stringValue);
    const auto [entry, isNew] = valueIndex.insert(stored);
    if (isNew) {
        values.push_back(&*entry);
    }
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
    // Swapped for a new one, since a table that is only cleared keeps its buckets in the memory.
    decltype(valueIndex)(&memory).swap(valueIndex);
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
