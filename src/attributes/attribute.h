// Attribute, which serves as a definition with its default and as a value alike.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vexil {

// What an attribute belongs to.
enum class AttributeObjectKind : std::uint32_t { Gen = 0, Msg = 1, Sig = 2 };

enum class AttributeValueType : std::uint32_t { Unsup = 0, Int = 1, Enum = 2, Str = 3 };

// The identity of an attribute.
struct AttributeKey {
    std::string name;  // without quotes, case-sensitive
    AttributeObjectKind objectKind = AttributeObjectKind::Gen;
    std::uint32_t messageId = 0;  // of the owner, for Msg and Sig
    std::string signalName;       // of the owner, for Sig: its identifier
};

struct Attribute : AttributeKey {
    AttributeValueType valueType = AttributeValueType::Int;
    std::int32_t intValue = 0;  // of an Int
    // Bounds of an Int definition, kept to be written and never checked.
    std::int32_t minValue = std::numeric_limits<std::int32_t>::min();
    std::int32_t maxValue = std::numeric_limits<std::int32_t>::max();
    std::int32_t enumIndex = 0;  // of an Enum: position in enumValues
    // The texts of an Enum definition in the order of the statement; null for none. Shared with the
    // values of the definition, since there may be as many of those as a file has lines.
    std::shared_ptr<const std::vector<std::string>> enumValues;
    std::string stringValue;  // of a Str

    // Number of texts in enumValues.
    std::size_t EnumCount() const { return enumValues == nullptr ? 0 : enumValues->size(); }

    // The text at enumIndex, owned by enumValues, or null when there is none.
    const std::string* EnumText() const;

    // Sets the value from a token, with its quotes if it has any: an Int from its leading number,
    // an Enum from a number inside the list or from one of its texts in quotes, a Str from what
    // stands between the quotes. Returns whether a value was set; if not, nothing has changed.
    bool SetValueFromText(std::string_view token);
};

}  // namespace vexil
