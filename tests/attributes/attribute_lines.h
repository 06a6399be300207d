// Attributes of tests: made in one line, and told in one line that leaves out what is a default.
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "attributes/attribute.h"
#include "attributes/attribute_statements.h"
#include "attributes/attribute_table.h"
#include "attributes/reserved_names.h"

namespace vexil::test {

using Lines = std::vector<std::string>;

inline Attribute MakeAttribute(AttributeObjectKind kind, std::string_view name,
                               AttributeValueType type) {
    Attribute attribute;
    attribute.objectKind = kind;
    attribute.name = std::string(name);
    attribute.valueType = type;
    return attribute;
}

inline AttributeValue MakeValue(const Attribute& definition, std::uint32_t messageId,
                                std::string_view signalName, const AttributeContent& content) {
    AttributeValue value;
    value.definition = &definition;
    value.messageId = messageId;
    value.signalName = signalName;
    value.content = content;
    return value;
}

inline AttributeContent IntContent(std::int32_t number) {
    AttributeContent content;
    content.intValue = number;
    return content;
}

inline AttributeContent EnumContent(std::int32_t index) {
    AttributeContent content;
    content.enumIndex = index;
    return content;
}

// Of a text that outlives it.
inline AttributeContent StrContent(std::string_view text) {
    AttributeContent content;
    content.stringValue = text;
    return content;
}

inline std::string KindText(AttributeObjectKind kind) {
    switch (kind) {
        case AttributeObjectKind::Gen:
            return "Gen";
        case AttributeObjectKind::Msg:
            return "Msg";
        case AttributeObjectKind::Sig:
            return "Sig";
    }
    return "?";
}

inline std::string TypeText(AttributeValueType type) {
    switch (type) {
        case AttributeValueType::Unsup:
            return "Unsup";
        case AttributeValueType::Int:
            return "Int";
        case AttributeValueType::Enum:
            return "Enum";
        case AttributeValueType::Str:
            return "Str";
    }
    return "?";
}

// All of the value: definition, owner and content. Every member that is not said to be otherwise
// has its default.
inline std::string Line(const AttributeValue& value) {
    const Attribute& definition = *value.definition;
    const Attribute plain;
    std::string line = KindText(definition.objectKind) + ' ' + definition.name;
    if (value.messageId != 0) {
        line += " message " + std::to_string(value.messageId);
    }
    if (!value.signalName.empty()) {
        line.append(" signal ").append(value.signalName);
    }
    line += ' ' + TypeText(definition.valueType);
    if (definition.minValue != plain.minValue || definition.maxValue != plain.maxValue) {
        line += " [" + std::to_string(definition.minValue) + ',' +
                std::to_string(definition.maxValue) + ']';
    }
    for (std::size_t at = 0; at < definition.enumValues.size(); ++at) {
        line += (at == 0 ? " of '" : ",'") + definition.enumValues[at] + '\'';
    }
    if (value.content.intValue != 0) {
        line += " = " + std::to_string(value.content.intValue);
    }
    if (value.content.enumIndex != 0) {
        line += " = #" + std::to_string(value.content.enumIndex);
    }
    if (!value.content.stringValue.empty()) {
        line.append(" = '").append(value.content.stringValue).append("'");
    }
    return line;
}

// All of the definition, with its default in the place of a value.
inline std::string Line(const Attribute& definition) {
    return Line(MakeValue(definition, 0, {}, definition.defaultContent));
}

template <typename Entry>
std::string Line(const Entry* entry) {
    return entry == nullptr ? "none" : Line(*entry);
}

template <typename List>
Lines LinesOf(const List& entries) {
    Lines lines;
    for (const auto& entry : entries) {
        lines.push_back(Line(entry));
    }
    return lines;
}

// A table that takes the reserved names alone, as that of the database does.
class ReservedTable : public AttributeTable {
  public:
    explicit ReservedTable(std::initializer_list<std::string_view> statements) {
        reservedAttributeNames = ReservedAttributeNames;
        Read(statements);
    }

    void Read(std::initializer_list<std::string_view> statements) {
        for (const std::string_view statement : statements) {
            // From memory that goes away, as that of a file does.
            const std::string text(statement);
            ParseAttributeStatement(*this, text);
        }
    }
};

}  // namespace vexil::test
