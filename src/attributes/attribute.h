// Attributes: their definitions, and the values of their owners.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace vexil {

// What an attribute belongs to: the network, a message or a signal.
enum class AttributeObjectKind : std::uint32_t { Gen = 0, Msg = 1, Sig = 2 };

enum class AttributeValueType : std::uint32_t { Unsup = 0, Int = 1, Enum = 2, Str = 3 };

// A value or a default. The type of the attribute determines which member is used. All texts of
// attributes are views.
struct AttributeContent {
    std::int32_t intValue = 0;
    std::int32_t enumIndex = 0;  // position in the enumValues of the definition
    std::string_view stringValue = {};
};

// The definition of an attribute.
struct Attribute {
    std::string_view name;
    AttributeObjectKind objectKind = AttributeObjectKind::Gen;
    AttributeValueType valueType = AttributeValueType::Int;
    // Bounds of an Int. They are written, and never checked.
    std::int32_t minValue = std::numeric_limits<std::int32_t>::min();
    std::int32_t maxValue = std::numeric_limits<std::int32_t>::max();
    std::vector<std::string_view>
        enumValues;  // the texts of an Enum, in the order of the statement
    AttributeContent defaultContent;

    // Sets content from a token, with its quotes if it has any: an Int from its leading number, an
    // Enum from a number inside the list or from one of its texts in quotes, a Str from the text
    // between the quotes, as a view. Returns false and changes nothing if the token does not fit.
    bool SetValueFromText(AttributeContent& content, std::string_view token) const;

    // The position of the text in enumValues, the first one; nothing when it is not there.
    std::optional<std::int32_t> FindEnumText(std::string_view text) const;

    // The text of an Enum's content; nothing when there is none.
    std::optional<std::string_view> EnumText(const AttributeContent& content) const;

  private:
    // Positions in enumValues by text, for a list that many statements search. Made at the first
    // search.
    mutable std::vector<std::int32_t> positionsByText;
};

// The value that one owner has of an attribute.
struct AttributeValue {
    const Attribute* definition = nullptr;  // never null in a table
    std::string_view signalName = {};
    AttributeContent content = {};
    std::uint32_t messageId = 0;
};

}  // namespace vexil
