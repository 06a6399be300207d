// Attributes: a value from a text, and the text of an enumeration.
// SPDX-License-Identifier: MIT
#include "attributes/attribute.h"

#include <algorithm>

#include "attributes/tokens.h"
#include "text/lexical.h"

namespace vexil {
namespace {

bool IsInside(std::int32_t index, const std::vector<std::string>& list) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

// By number, or else by text. Both may be right: a list may hold the text of a number.
bool SetEnumIndex(std::int32_t& enumIndex, const std::vector<std::string>& texts,
                  std::string_view token) {
    std::int32_t number = 0;
    if (TryParseI32(token, number) && IsInside(number, texts)) {
        enumIndex = number;
        return true;
    }
    const auto entry = std::find(texts.begin(), texts.end(), QuotedContent(token));
    if (entry == texts.end()) {
        return false;
    }
    enumIndex = static_cast<std::int32_t>(entry - texts.begin());
    return true;
}

}  // namespace

bool Attribute::SetValueFromText(AttributeContent& content, std::string_view token) const {
    switch (valueType) {
        case AttributeValueType::Int: {
            std::int32_t number = 0;
            if (!TryParseI32(token, number)) {
                return false;
            }
            content.intValue = number;
            return true;
        }
        case AttributeValueType::Enum:
            return SetEnumIndex(content.enumIndex, enumValues, token);
        case AttributeValueType::Str:
            content.stringValue = QuotedContent(token);
            return true;
        case AttributeValueType::Unsup:
            break;
    }
    return false;
}

const std::string* Attribute::EnumText(const AttributeContent& content) const {
    return IsInside(content.enumIndex, enumValues)
               ? &enumValues[static_cast<std::size_t>(content.enumIndex)]
               : nullptr;
}

}  // namespace vexil
