// Attributes as lines of a file.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "text/constants.h"

namespace vexil {
namespace {

// The keyword of the owner kind and a blank; nothing for the network.
std::string_view OwnerKeyword(AttributeObjectKind kind) {
    constexpr std::array<std::string_view, 3> Keywords = {"", "BO_ ", "SG_ "};
    return Keywords[static_cast<std::size_t>(kind)];
}

void AppendEnumType(LineBuffer& line, const Attribute& definition) {
    line.Append("ENUM");
    std::string_view separator = " ";
    for (const std::string_view entry : definition.enumValues) {
        line.Append(separator, "\"", entry, "\"");
        separator = ",";
    }
}

// Whether the attribute has lines; an unsupported type has none.
bool HasType(const Attribute& definition) {
    return definition.valueType != AttributeValueType::Unsup;
}

void AppendType(LineBuffer& line, const Attribute& definition) {
    if (definition.valueType == AttributeValueType::Int) {
        line.Append("INT ", definition.minValue, " ", definition.maxValue);
    } else if (definition.valueType == AttributeValueType::Enum) {
        AppendEnumType(line, definition);
    } else {
        line.Append("STRING ");
    }
}

enum class EnumForm { Text, Number };

// Whether the content has a text: the index of an Enum may be outside its list.
bool HasText(const Attribute& definition, const AttributeContent& content) {
    return HasType(definition) && (definition.valueType != AttributeValueType::Enum ||
                                   definition.EnumText(content).has_value());
}

// Appends the content in the form of a line. Precondition: it has a text.
void AppendContent(LineBuffer& line, const Attribute& definition, const AttributeContent& content,
                   EnumForm enumForm) {
    if (definition.valueType == AttributeValueType::Int) {
        line.Append(content.intValue);
    } else if (definition.valueType == AttributeValueType::Str) {
        line.Append("\"", content.stringValue, "\"");
    } else if (enumForm == EnumForm::Text) {
        line.Append("\"", *definition.EnumText(content), "\"");
    } else {
        line.Append(content.enumIndex);
    }
}

// Appends: keyword owner "name" and a blank.
void AppendLineHead(LineBuffer& line, std::string_view keyword, std::string_view owner,
                    const Attribute& definition) {
    line.Append(keyword, " ", owner, "\"", definition.name, "\" ");
}

// Appends the line that append composes and a line feed; nothing if it is empty.
template <typename Append>
void AppendLine(LineBuffer& text, Append append) {
    const std::size_t start = text.Size();
    append(text);
    text.Append(text.Size() > start ? "\n" : "");
}

}  // namespace

void AppendAttributeSection(LineBuffer& text, AttributeTable& table) {
    for (const auto& definition : table.definitions) {
        AppendLine(text, [&](LineBuffer& line) { AppendDefinition(line, *definition); });
    }
    for (const auto& definition : table.definitions) {
        AppendLine(text, [&](LineBuffer& line) { AppendDefault(line, *definition); });
    }
    for (std::size_t at = 0; at < table.values.Size(); ++at) {
        AppendLine(text, [&](LineBuffer& line) { AppendValue(line, table.values[at]); });
    }
    text.Cut(text.Size() - std::min<std::size_t>(text.Size(), 1));
}

void AppendDefinition(LineBuffer& line, const Attribute& definition) {
    if (HasType(definition)) {
        AppendLineHead(line, keyword::BA_DEF_, OwnerKeyword(definition.objectKind), definition);
        AppendType(line, definition);
        line.Append(";");
    }
}

void AppendDefault(LineBuffer& line, const Attribute& definition) {
    if (HasText(definition, definition.defaultContent)) {
        AppendLineHead(line, keyword::BA_DEF_DEF_, {}, definition);
        AppendContent(line, definition, definition.defaultContent, EnumForm::Text);
        line.Append(";");
    }
}

void AppendValue(LineBuffer& line, const AttributeValue& value) {
    const Attribute& definition = *value.definition;
    if (definition.objectKind == AttributeObjectKind::Gen || !HasText(definition, value.content)) {
        return;
    }
    AppendLineHead(line, keyword::BA_, {}, definition);
    line.Append(OwnerKeyword(definition.objectKind), value.messageId, " ");
    if (definition.objectKind == AttributeObjectKind::Sig) {
        line.Append(value.signalName, " ");
    }
    AppendContent(line, definition, value.content, EnumForm::Number);
    line.Append(";");
}

}  // namespace vexil
