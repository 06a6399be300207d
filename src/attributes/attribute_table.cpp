// AttributeTable: finding and adding.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "text/keyed_hash.h"

namespace vexil {
namespace {

// The key of a value is its definition, which has name, kind and type, and its owner.
std::size_t HashOf(const AttributeValue& value) {
    return KeyedHash(std::hash<const Attribute*>()(value.definition) + value.messageId,
                     value.signalName);
}

}  // namespace

const Attribute* AttributeTable::FindDefinition(std::string_view name, AttributeObjectKind kind,
                                                AttributeValueType type) const {
    const auto entry = std::find_if(definitions.begin(), definitions.end(), [&](const auto& known) {
        return known->objectKind == kind && known->valueType == type && known->name == name;
    });
    return entry == definitions.end() ? nullptr : entry->get();
}

const AttributeValue* AttributeTable::FindValue(const Attribute& definition,
                                                std::uint32_t messageId,
                                                std::string_view signalName) {
    const AttributeValue wanted{&definition, signalName, {}, messageId};
    const std::uint32_t* place = PlaceOf(wanted, HashOf(wanted));
    return place == nullptr ? nullptr : &values[*place];
}

void AttributeTable::AddDefinition(Attribute definition) {
    if (FindDefinition(definition.name, definition.objectKind, definition.valueType) == nullptr) {
        definitions.push_back(std::make_unique<Attribute>(std::move(definition)));
    }
}

void AttributeTable::AddValue(const AttributeValue& value) {
    const std::size_t hash = HashOf(value);
    if (PlaceOf(value, hash) == nullptr) {
        values.Add(memory, value);
        index.Add(hash, values.Size() - 1);
    }
}

void AttributeTable::ClearEntries() {
    definitions = decltype(definitions)();
    values.Clear();
    index.Clear();
    memory.Release();
}

std::uint32_t* AttributeTable::PlaceOf(const AttributeValue& wanted, std::size_t hash) {
    return index.Find(hash, [&](std::uint32_t position) {
        const AttributeValue& value = values[position];
        return value.messageId == wanted.messageId && value.definition == wanted.definition &&
               value.signalName == wanted.signalName;
    });
}

}  // namespace vexil
