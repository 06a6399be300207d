// Tests of attributes/attribute.h.
// SPDX-License-Identifier: MIT
#include "attributes/attribute.h"

#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using enum AttributeValueType;
using test::EnumContent;
using test::IntContent;
using test::Line;
using test::MakeValue;
using test::StrContent;

// Entries at positions 0 to 4; one of them is a digit, one is there twice.
Attribute EnumAttribute() {
    Attribute attribute = test::MakeAttribute(AttributeObjectKind::Msg, "E", Enum);
    attribute.enumValues = {"Cyclic", "Event", "1", "Event", "a b"};
    return attribute;
}

// The content described with its attribute.
std::string Line(const Attribute& attribute, const AttributeContent& content) {
    return Line(MakeValue(attribute, 0, {}, content));
}

TEST(Attribute, HasItsDefaults) {
    const Attribute attribute;
    EXPECT_EQ(attribute.name, "");
    EXPECT_EQ(attribute.objectKind, AttributeObjectKind::Gen);
    EXPECT_EQ(attribute.valueType, Int);
    EXPECT_EQ(attribute.minValue, -2147483647 - 1);
    EXPECT_EQ(attribute.maxValue, 2147483647);
    EXPECT_EQ(attribute.enumValues.size(), 0U);
    EXPECT_EQ(attribute.defaultContent.intValue, 0);
    EXPECT_EQ(attribute.defaultContent.enumIndex, 0);
    EXPECT_EQ(attribute.defaultContent.stringValue, "");
}

TEST(Attribute, HoldsItsKindsAndTypesAsNumbers) {
    EXPECT_EQ(static_cast<std::uint32_t>(AttributeObjectKind::Gen), 0U);
    EXPECT_EQ(static_cast<std::uint32_t>(AttributeObjectKind::Msg), 1U);
    EXPECT_EQ(static_cast<std::uint32_t>(AttributeObjectKind::Sig), 2U);
    EXPECT_EQ(static_cast<std::uint32_t>(Unsup), 0U);
    EXPECT_EQ(static_cast<std::uint32_t>(Int), 1U);
    EXPECT_EQ(static_cast<std::uint32_t>(Enum), 2U);
    EXPECT_EQ(static_cast<std::uint32_t>(Str), 3U);
}

TEST(EnumText, ReturnsTheEntryAtTheIndexOrNothing) {
    const Attribute attribute = EnumAttribute();
    EXPECT_EQ(*attribute.EnumText(EnumContent(0)), "Cyclic");
    EXPECT_EQ(*attribute.EnumText(EnumContent(4)), "a b");
    EXPECT_EQ(attribute.EnumText(EnumContent(5)), std::nullopt);
    EXPECT_EQ(attribute.EnumText(EnumContent(-1)), std::nullopt);
    EXPECT_EQ(Attribute().EnumText(EnumContent(0)), std::nullopt);
}

TEST(FindEnumText, FindsTheFirstEntryOfATextInAListThatGrows) {
    Attribute attribute = EnumAttribute();
    EXPECT_EQ(attribute.FindEnumText("Cyclic"), 0);
    EXPECT_EQ(attribute.FindEnumText("Event"), 1);
    EXPECT_EQ(attribute.FindEnumText("a b"), 4);
    EXPECT_EQ(attribute.FindEnumText("a"), std::nullopt);
    EXPECT_EQ(attribute.FindEnumText("zz"), std::nullopt);
    EXPECT_EQ(Attribute().FindEnumText(""), std::nullopt);
    attribute.enumValues.emplace_back("zz");
    EXPECT_EQ(attribute.FindEnumText("zz"), 5);
    for (int count = 0; count < 100; ++count) {
        attribute.enumValues.insert(attribute.enumValues.end(), {"zz", "Event", "new"});
    }
    EXPECT_EQ(attribute.FindEnumText("Event"), 1);
    EXPECT_EQ(attribute.FindEnumText("zz"), 5);
    EXPECT_EQ(attribute.FindEnumText("new"), 8);
}

struct NumberCase {
    std::string_view token;
    bool taken;
    std::int32_t value;  // the former one where it stays
};

TEST(SetValueFromText, TakesTheLeadingNumberOfAnInt) {
    const NumberCase cases[] = {
        {"0", true, 0},
        {"100", true, 100},
        {"-5", true, -5},
        {"+5", true, 5},
        {"1.5", true, 1},
        {"12abc", true, 12},
        {"0x10", true, 0},
        {"2147483647", true, 2147483647},
        {"2147483648", false, 77},
        {"-2147483648", true, -2147483647 - 1},
        {"-2147483649", false, 77},
        {"4294967296", false, 77},
        {"99999999999999999999", false, 77},
        {"\"1\"", false, 77},
        {"\"\"", false, 77},
        {"", false, 77},
        {"-", false, 77},
        {"abc", false, 77},
    };
    const Attribute attribute = test::MakeAttribute(AttributeObjectKind::Gen, "I", Int);
    for (const NumberCase& row : cases) {
        AttributeContent content = IntContent(77);
        EXPECT_EQ(attribute.SetValueFromText(content, row.token), row.taken) << row.token;
        EXPECT_EQ(Line(attribute, content), Line(attribute, IntContent(row.value))) << row.token;
    }
}

TEST(SetValueFromText, DoesNotCompareAnIntWithItsBounds) {
    Attribute attribute = test::MakeAttribute(AttributeObjectKind::Gen, "I", Int);
    attribute.minValue = 0;
    attribute.maxValue = 10;
    AttributeContent content;
    EXPECT_TRUE(attribute.SetValueFromText(content, "11"));
    EXPECT_EQ(Line(attribute, content), "Gen I Int [0,10] = 11");
    EXPECT_TRUE(attribute.SetValueFromText(content, "-1"));
    EXPECT_EQ(Line(attribute, content), "Gen I Int [0,10] = -1");
}

TEST(SetValueFromText, TakesAnEnumByNumberOrByQuotedText) {
    const NumberCase cases[] = {
        {"0", true, 0},
        {"3", true, 3},
        {"4", true, 4},
        {"2.9", true, 2},
        {"5", false, 7},
        {"-1", false, 7},
        {"4294967296", false, 7},
        {"\"Cyclic\"", true, 0},
        {"\"Event\"", true, 1},
        {"\"a b\"", true, 4},
        // A digit in quotes is a text.
        {"\"1\"", true, 2},
        {"\"0\"", false, 7},
        {"\"event\"", false, 7},
        {"\"Missing\"", false, 7},
        {"\"\"", false, 7},
        {"Event", false, 7},
        // A number outside the list goes on to be looked up as a text.
        {"9\"Event\"", true, 1},
        {"9\"Missing\"", false, 7},
    };
    const Attribute attribute = EnumAttribute();
    for (const NumberCase& row : cases) {
        AttributeContent content = EnumContent(7);
        EXPECT_EQ(attribute.SetValueFromText(content, row.token), row.taken) << row.token;
        EXPECT_EQ(Line(attribute, content), Line(attribute, EnumContent(row.value))) << row.token;
    }
}

TEST(SetValueFromText, FindsAnEmptyEntryOfAnEnum) {
    Attribute attribute = test::MakeAttribute(AttributeObjectKind::Msg, "E", Enum);
    attribute.enumValues = {"A", ""};
    AttributeContent content;
    EXPECT_TRUE(attribute.SetValueFromText(content, "\"\""));
    EXPECT_EQ(content.enumIndex, 1);
}

TEST(SetValueFromText, FailsForAnEnumWithoutEntries) {
    const Attribute attribute = test::MakeAttribute(AttributeObjectKind::Msg, "E", Enum);
    AttributeContent content;
    EXPECT_FALSE(attribute.SetValueFromText(content, "0"));
    EXPECT_FALSE(attribute.SetValueFromText(content, "\"\""));
    EXPECT_EQ(Line(attribute, content), "Msg E Enum");
}

TEST(SetValueFromText, TakesTheTextBetweenTheQuotesOfAString) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"\"CAN FD\"", "CAN FD"},
        {"\"\"", ""},
        {"CAN", ""},
        {"12", ""},
        {"", ""},
        {"x\"a\"y", "a"},
        {"\"a\\\"b\"", "a\\\"b"},
        {"\"", ""},
        {"\"a\"b\"", "a\"b"},
    };
    const Attribute attribute = test::MakeAttribute(AttributeObjectKind::Gen, "S", Str);
    for (const auto& [token, text] : cases) {
        AttributeContent content = StrContent("old");
        EXPECT_TRUE(attribute.SetValueFromText(content, token)) << token;
        EXPECT_EQ(Line(attribute, content), Line(attribute, StrContent(text))) << token;
    }
}

TEST(SetValueFromText, IgnoresAnUnknownType) {
    for (const auto type : {Unsup, static_cast<AttributeValueType>(4)}) {
        const Attribute attribute = test::MakeAttribute(AttributeObjectKind::Gen, "U", type);
        AttributeContent content = IntContent(77);
        EXPECT_FALSE(attribute.SetValueFromText(content, "1"));
        EXPECT_FALSE(attribute.SetValueFromText(content, "\"a\""));
        EXPECT_EQ(Line(attribute, content), Line(attribute, IntContent(77)));
    }
}

}  // namespace
}  // namespace vexil
