// Attribute: its value from a text.
// SPDX-License-Identifier: MIT
#include "attributes/attribute.h"

#include <algorithm>

#include "attributes/tokens.h"
#include "text/lexical.h"

namespace vexil {

const std::string* Attribute::EnumText() const {
    if (enumIndex < 0 || static_cast<std::size_t>(enumIndex) >= EnumCount()) {
        return nullptr;
    }
    return &(*enumValues)[static_cast<std::size_t>(enumIndex)];
}

bool Attribute::SetValueFromText(std::string_view token) {
    std::int32_t number = 0;
    const bool isNumber = TryParseI32(token, number);
    const std::string_view text = QuotedContent(token);
    switch (valueType) {
        case AttributeValueType::Int:
            if (isNumber) {
                intValue = number;
            }
            return isNumber;
        case AttributeValueType::Enum: {
            if (isNumber && number >= 0 && static_cast<std::size_t>(number) < EnumCount()) {
                enumIndex = number;
                return true;
            }
            if (enumValues == nullptr) {
                return false;
            }
            const auto entry = std::find(enumValues->begin(), enumValues->end(), text);
            if (entry == enumValues->end()) {
                return false;
            }
            enumIndex = static_cast<std::int32_t>(entry - enumValues->begin());
            return true;
        }
        case AttributeValueType::Str:
            stringValue = text;
            return true;
        case AttributeValueType::Unsup:
            break;
    }
    return false;
}

}  // namespace vexil
