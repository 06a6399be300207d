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
    for (std::size_t at = 0; at < definition.EnumCount(); ++at) {
        text.append(at == 0 ? " " : ",").append(Quoted((*definition.enumValues)[at]));
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

// The value as it stands in a line; empty when the attribute has none.
std::string ValueForm(const Attribute& attribute, EnumForm enumForm) {
    switch (attribute.valueType) {
        case AttributeValueType::Int:
            return std::to_string(attribute.intValue);
        case AttributeValueType::Enum:
            if (attribute.EnumText() == nullptr) {
                return {};
            }
            return enumForm == EnumForm::Text ? Quoted(*attribute.EnumText())
                                              : std::to_string(attribute.enumIndex);
        case AttributeValueType::Str:
            return Quoted(attribute.stringValue);
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
    for (const Attribute& value : table.values) {
        AppendLine(text, ValueText(value));
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
    const std::string value = ValueForm(definition, EnumForm::Text);
    return value.empty() ? std::string() : Line(keyword::BA_DEF_DEF_, {}, definition, value);
}

std::string ValueText(const Attribute& value) {
    const std::string form = ValueForm(value, EnumForm::Number);
    if (value.objectKind == AttributeObjectKind::Gen || form.empty()) {
        return {};
    }
    std::string owner = OwnerKeyword(value.objectKind) + std::to_string(value.messageId) + ' ';
    if (value.objectKind == AttributeObjectKind::Sig) {
        owner.append(value.signalName).append(" ");
    }
    return Line(keyword::BA_, {}, value, owner + form);
}

}  // namespace vexil
