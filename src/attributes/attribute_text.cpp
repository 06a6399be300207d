// Attributes as lines of a file.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_text.h"

#include <string_view>

#include "text/constants.h"

namespace vexil {
namespace {

std::string Quoted(std::string_view text) {
    return std::string("\"").append(text).append("\"");
}

// The keyword of the owner kind with a blank behind it; nothing for the network.
std::string OwnerKeyword(AttributeObjectKind kind) {
    switch (kind) {
        case AttributeObjectKind::Msg:
            return std::string(keyword::BO_) + ' ';
        case AttributeObjectKind::Sig:
            return std::string(keyword::SG_) + ' ';
        case AttributeObjectKind::Gen:
            break;
    }
    return {};
}

std::string EnumTypeText(const Attribute& definition) {
    std::string text = "ENUM";
    for (const std::string& entry : definition.enumValues) {
        text.append(&entry == &definition.enumValues.front() ? " " : ",").append(Quoted(entry));
    }
    return text;
}

std::string TypeText(const Attribute& definition) {
    switch (definition.valueType) {
        case AttributeValueType::Int:
            return "INT " + std::to_string(definition.minValue) + ' ' +
                   std::to_string(definition.maxValue);
        case AttributeValueType::Enum:
            return EnumTypeText(definition);
        case AttributeValueType::Str:
            return "STRING ";
        case AttributeValueType::Unsup:
            break;
    }
    return {};
}

enum class EnumForm { Text, Number };

// The content as it stands in a line; empty when the attribute has none.
std::string ContentText(const Attribute& definition, const AttributeContent& content,
                        EnumForm enumForm) {
    switch (definition.valueType) {
        case AttributeValueType::Int:
            return std::to_string(content.intValue);
        case AttributeValueType::Enum: {
            const std::string* text = definition.EnumText(content);
            if (text == nullptr) {
                return {};
            }
            return enumForm == EnumForm::Text ? Quoted(*text) : std::to_string(content.enumIndex);
        }
        case AttributeValueType::Str:
            return Quoted(content.stringValue);
        case AttributeValueType::Unsup:
            break;
    }
    return {};
}

// keyword "name" rest;
std::string Line(std::string_view keyword, const std::string& owner, const Attribute& attribute,
                 const std::string& rest) {
    return std::string(keyword) + ' ' + owner + Quoted(attribute.name) + ' ' + rest + ';';
}

void AppendLine(std::string& text, const std::string& line) {
    if (!line.empty()) {
        text.append(text.empty() ? "" : "\n").append(line);
    }
}

}  // namespace

std::string AttributeSectionText(const AttributeTable& table) {
    std::string text;
    if (table.definitions.empty()) {
        return text;
    }
    for (const Attribute& definition : table.definitions) {
        AppendLine(text, DefinitionText(definition));
    }
    for (const Attribute& definition : table.definitions) {
        AppendLine(text, DefaultText(definition));
    }
    for (const AttributeValue* value : table.values) {
        AppendLine(text, ValueText(*value));
    }
    return text;
}

std::string DefinitionText(const Attribute& definition) {
    const std::string type = TypeText(definition);
    return type.empty()
               ? std::string()
               : Line(keyword::BA_DEF_, OwnerKeyword(definition.objectKind), definition, type);
}

std::string DefaultText(const Attribute& definition) {
    const std::string value = ContentText(definition, definition.defaultContent, EnumForm::Text);
    return value.empty() ? std::string() : Line(keyword::BA_DEF_DEF_, {}, definition, value);
}

std::string ValueText(const AttributeValue& value) {
    const Attribute& definition = *value.definition;
    const std::string content = ContentText(definition, value.content, EnumForm::Number);
    if (definition.objectKind == AttributeObjectKind::Gen || content.empty()) {
        return {};
    }
    std::string owner = OwnerKeyword(definition.objectKind) + std::to_string(value.messageId) + ' ';
    if (definition.objectKind == AttributeObjectKind::Sig) {
        owner.append(value.signalName).append(" ");
    }
    return Line(keyword::BA_, {}, definition, owner + content);
}

}  // namespace vexil
