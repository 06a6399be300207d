// Attributes as lines of a file.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_text.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "text/constants.h"

namespace vexil {
namespace {

void AppendQuoted(std::string& line, std::string_view text) {
    line.append("\"").append(text).append("\"");
}

// The keyword of the owner kind with a blank behind it; nothing for the network.
std::string_view OwnerKeyword(AttributeObjectKind kind) {
    switch (kind) {
        case AttributeObjectKind::Msg:
            return "BO_ ";
        case AttributeObjectKind::Sig:
            return "SG_ ";
        case AttributeObjectKind::Gen:
            break;
    }
    return {};
}

void AppendEnumType(std::string& line, const Attribute& definition) {
    line.append("ENUM");
    for (const std::string& entry : definition.enumValues) {
        line.append(&entry == &definition.enumValues.front() ? " " : ",");
        AppendQuoted(line, entry);
    }
}

// Whether lines can be written: an unsupported type has none.
bool HasType(const Attribute& definition) {
    return definition.valueType == AttributeValueType::Int ||
           definition.valueType == AttributeValueType::Enum ||
           definition.valueType == AttributeValueType::Str;
}

void AppendType(std::string& line, const Attribute& definition) {
    if (definition.valueType == AttributeValueType::Int) {
        line.append("INT ").append(std::to_string(definition.minValue)).append(" ");
        line.append(std::to_string(definition.maxValue));
    } else if (definition.valueType == AttributeValueType::Enum) {
        AppendEnumType(line, definition);
    } else {
        line.append("STRING ");
    }
}

enum class EnumForm { Text, Number };

// Whether the content has a text: an Enum may mean none of its list.
bool HasText(const Attribute& definition, const AttributeContent& content) {
    return HasType(definition) && (definition.valueType != AttributeValueType::Enum ||
                                   definition.EnumText(content) != nullptr);
}

// Appends the content as it stands in a line. REQUIRES: it has a text.
void AppendContent(std::string& line, const Attribute& definition, const AttributeContent& content,
                   EnumForm enumForm) {
    if (definition.valueType == AttributeValueType::Int) {
        line.append(std::to_string(content.intValue));
    } else if (definition.valueType == AttributeValueType::Str) {
        AppendQuoted(line, content.stringValue);
    } else if (enumForm == EnumForm::Text) {
        AppendQuoted(line, *definition.EnumText(content));
    } else {
        line.append(std::to_string(content.enumIndex));
    }
}

// Appends: keyword owner "name" and a blank.
void AppendLineHead(std::string& line, std::string_view keyword, std::string_view owner,
                    const Attribute& definition) {
    line.append(keyword).append(" ").append(owner);
    AppendQuoted(line, definition.name);
    line.append(" ");
}

// The lines of a text with a line feed between each two.
class Lines {
  public:
    // Adds the line that format puts behind a text; none when it puts nothing there.
    template <typename Format>
    void Add(Format format) {
        const std::size_t start = text.size();
        text.append(start == 0 ? "" : "\n");
        const std::size_t lineStart = text.size();
        text = format(std::move(text));
        if (text.size() == lineStart) {
            text.resize(start);
        }
    }

    std::string Text() && { return std::move(text); }

  private:
    std::string text;
};

}  // namespace

std::string AttributeSectionText(const AttributeTable& table) {
    Lines lines;
    for (const Attribute& definition : table.definitions) {
        lines.Add([&](std::string text) { return DefinitionText(definition, std::move(text)); });
    }
    for (const Attribute& definition : table.definitions) {
        lines.Add([&](std::string text) { return DefaultText(definition, std::move(text)); });
    }
    for (const AttributeValue& value : table.values) {
        lines.Add([&](std::string text) { return ValueText(value, std::move(text)); });
    }
    return std::move(lines).Text();
}

std::string DefinitionText(const Attribute& definition, std::string line) {
    if (HasType(definition)) {
        AppendLineHead(line, keyword::BA_DEF_, OwnerKeyword(definition.objectKind), definition);
        AppendType(line, definition);
        line.append(";");
    }
    return line;
}

std::string DefaultText(const Attribute& definition, std::string line) {
    if (HasText(definition, definition.defaultContent)) {
        AppendLineHead(line, keyword::BA_DEF_DEF_, {}, definition);
        AppendContent(line, definition, definition.defaultContent, EnumForm::Text);
        line.append(";");
    }
    return line;
}

std::string ValueText(const AttributeValue& value, std::string line) {
    const Attribute& definition = *value.definition;
    if (definition.objectKind == AttributeObjectKind::Gen || !HasText(definition, value.content)) {
        return line;
    }
    AppendLineHead(line, keyword::BA_, {}, definition);
    line.append(OwnerKeyword(definition.objectKind)).append(std::to_string(value.messageId));
    line.append(" ");
    if (definition.objectKind == AttributeObjectKind::Sig) {
        line.append(value.signalName).append(" ");
    }
    AppendContent(line, definition, value.content, EnumForm::Number);
    line.append(";");
    return line;
}

}  // namespace vexil
