// Attributes: parsing a value, and the texts of an enumeration.
// SPDX-License-Identifier: MIT
#include "attributes/attribute.h"

#include <algorithm>
#include <numeric>

#include "attributes/tokens.h"
#include "text/lexical.h"

namespace vexil {
namespace {

bool IsInside(std::int32_t index, const std::vector<std::string_view>& list) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

// By number first, then by text: the list may contain the text of a number.
bool SetEnumIndex(const Attribute& attribute, std::int32_t& enumIndex, std::string_view token) {
    std::int32_t number = 0;
    if (TryParseI32(token, number) && IsInside(number, attribute.enumValues)) {
        enumIndex = number;
        return true;
    }
    const std::optional<std::int32_t> position = attribute.FindEnumText(QuotedContent(token));
    enumIndex = position.value_or(enumIndex);
    return position.has_value();
}

}  // namespace

bool Attribute::SetValueFromText(AttributeContent& content, std::string_view token) const {
    switch (valueType) {
        case AttributeValueType::Int: {
            std::int32_t number = 0;
            const bool isNumber = TryParseI32(token, number);
            content.intValue = isNumber ? number : content.intValue;
            return isNumber;
        }
        case AttributeValueType::Enum:
            return SetEnumIndex(*this, content.enumIndex, token);
        case AttributeValueType::Str:
            content.stringValue = QuotedContent(token);
            return true;
        case AttributeValueType::Unsup:
            break;
    }
    return false;
}

std::optional<std::int32_t> Attribute::FindEnumText(std::string_view text) const {
    const auto textAt = [this](std::int32_t position) {
        return enumValues[static_cast<std::size_t>(position)];
    };
    if (positionsByText.size() != enumValues.size()) {
        positionsByText.resize(enumValues.size());
        std::iota(positionsByText.begin(), positionsByText.end(), 0);
        std::stable_sort(positionsByText.begin(), positionsByText.end(),
                         [&](std::int32_t a, std::int32_t b) { return textAt(a) < textAt(b); });
    }
    const auto entry = std::lower_bound(
        positionsByText.begin(), positionsByText.end(), text,
        [&](std::int32_t position, std::string_view wanted) { return textAt(position) < wanted; });
    if (entry == positionsByText.end() || textAt(*entry) != text) {
        return std::nullopt;
    }
    return *entry;
}

std::optional<std::string_view> Attribute::EnumText(const AttributeContent& content) const {
    if (!IsInside(content.enumIndex, enumValues)) {
        return std::nullopt;
    }
    return enumValues[static_cast<std::size_t>(content.enumIndex)];
}

}  // namespace vexil
