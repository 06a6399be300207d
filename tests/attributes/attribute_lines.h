// Attributes for tests: made in one line, and described in one line without their defaults.
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "attributes/attribute.h"
#include "attributes/attribute_statements.h"
#include "attributes/attribute_table.h"
#include "text/arena.h"

namespace vexil::test {

using Lines = std::vector<std::string>;

// Texts are views: they must outlive the attributes and values.

inline Attribute MakeAttribute(AttributeObjectKind kind, std::string_view name,
                               AttributeValueType type) {
    Attribute attribute;
    attribute.objectKind = kind;
    attribute.name = name;
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
    std::string line = KindText(definition.objectKind);
    line.append(" ").append(definition.name);
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
        line.append(at == 0 ? " of '" : ",'").append(definition.enumValues[at]).append("'");
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

inline Lines LinesOf(const std::vector<std::unique_ptr<Attribute>>& definitions) {
    Lines lines;
    for (const auto& definition : definitions) {
        lines.push_back(Line(*definition));
    }
    return lines;
}

inline Lines LinesOf(const PagedList<AttributeValue>& values) {
    Lines lines;
    for (std::size_t at = 0; at < values.Size(); ++at) {
        lines.push_back(Line(values[at]));
    }
    return lines;
}

// A table that statements fill.
class ReadTable : public AttributeTable {
  public:
    explicit ReadTable(std::initializer_list<std::string_view> statements) { Read(statements); }

    void Read(std::initializer_list<std::string_view> statements) {
        for (const std::string_view statement : statements) {
            Read(statement);
        }
    }

    void Read(std::string_view statement) {
        // From memory that is freed, like that of a file.
        const std::string text(statement);
        if (text.starts_with("BA_DEF_DEF_")) {
            ParseDefaultStatement(*this, arena, text);
        } else if (text.starts_with("BA_DEF_")) {
            ParseDefinitionStatement(*this, arena, text);
        } else {
            ParseValueStatement(*this, arena, text);
        }
    }

  private:
    Arena arena;
};

}  // namespace vexil::test
