// Tests of attributes/attribute_table.h.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using enum AttributeObjectKind;
using enum AttributeValueType;
using test::IntContent;
using test::Line;
using test::Lines;
using test::LinesOf;
using test::MakeAttribute;
using test::MakeValue;

// The definition in the table, which is added if it is new.
const Attribute& Defined(AttributeTable& table, AttributeObjectKind kind, std::string_view name,
                         AttributeValueType type) {
    table.AddDefinition(MakeAttribute(kind, name, type));
    return *table.FindDefinition(name, kind, type);
}

TEST(AttributeTable, FindsNothingWhenEmpty) {
    AttributeTable table;
    EXPECT_EQ(Line(table.FindDefinition("A", Gen, Int)), "none");
    EXPECT_EQ(Line(table.FindValue(Attribute(), 0, "")), "none");
}

TEST(AttributeTable, KeepsTheFirstDefinitionOfNameKindAndType) {
    AttributeTable table;
    Attribute first = MakeAttribute(Msg, "A", Int);
    first.maxValue = 10;
    Attribute second = first;
    second.maxValue = 20;
    table.AddDefinition(first);
    table.AddDefinition(second);
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg A Int [-2147483648,10]"}));
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Int)), "Msg A Int [-2147483648,10]");
}

TEST(AttributeTable, KeepsDefinitionsApartByNameKindAndType) {
    AttributeTable table;
    table.AddDefinition(MakeAttribute(Sig, "A", Int));
    table.AddDefinition(MakeAttribute(Msg, "A", Int));
    table.AddDefinition(MakeAttribute(Msg, "A", Str));
    table.AddDefinition(MakeAttribute(Msg, "a", Str));
    table.AddDefinition(MakeAttribute(Gen, "A", Int));
    EXPECT_EQ(LinesOf(table.definitions),
              (Lines{"Sig A Int", "Msg A Int", "Msg A Str", "Msg a Str", "Gen A Int"}));
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Str)), "Msg A Str");
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Enum)), "none");
    EXPECT_EQ(Line(table.FindDefinition("A", Sig, Str)), "none");
    EXPECT_EQ(Line(table.FindDefinition("B", Gen, Int)), "none");
}

TEST(AttributeTable, KeepsTheFirstValueOfAnOwner) {
    AttributeTable table;
    const Attribute& definition = Defined(table, Msg, "A", Int);
    table.AddValue(MakeValue(definition, 5, "", IntContent(1)));
    table.AddValue(MakeValue(definition, 5, "", IntContent(2)));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg A message 5 Int = 1"}));
    EXPECT_EQ(Line(table.FindValue(definition, 5, "")), "Msg A message 5 Int = 1");
}

TEST(AttributeTable, KeepsValuesApartByOwner) {
    AttributeTable table;
    const Attribute& ofMessage = Defined(table, Msg, "A", Int);
    const Attribute& ofSignal = Defined(table, Sig, "A", Int);
    table.AddValue(MakeValue(ofMessage, 2560, "", IntContent(1)));
    table.AddValue(MakeValue(ofSignal, 256, "Speed", IntContent(2)));
    EXPECT_EQ(LinesOf(table.values),
              (Lines{"Msg A message 2560 Int = 1", "Sig A message 256 signal Speed Int = 2"}));
    EXPECT_EQ(Line(table.FindValue(ofMessage, 256, "")), "none");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 256, "Spee")), "none");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 256, "Speeds")), "none");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 256, "speed")), "none");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 256, "")), "none");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 25, "Speed")), "none");
    EXPECT_EQ(Line(table.FindValue(ofMessage, 2560, "")), "Msg A message 2560 Int = 1");
    EXPECT_EQ(Line(table.FindValue(ofSignal, 256, "Speed")),
              "Sig A message 256 signal Speed Int = 2");
}

TEST(AttributeTable, KeepsValuesOfOneOwnerApartByDefinition) {
    AttributeTable table;
    const Attribute& number = Defined(table, Msg, "A", Int);
    const Attribute& text = Defined(table, Msg, "A", Str);
    const Attribute& other = Defined(table, Msg, "B", Int);
    table.AddValue(MakeValue(number, 5, "", IntContent(1)));
    table.AddValue(MakeValue(text, 5, "", {}));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg A message 5 Int = 1", "Msg A message 5 Str"}));
    EXPECT_EQ(Line(table.FindValue(text, 5, "")), "Msg A message 5 Str");
    EXPECT_EQ(Line(table.FindValue(other, 5, "")), "none");
}

TEST(AttributeTable, FindsEachOfManyValues) {
    AttributeTable table;
    const Attribute& ofMessage = Defined(table, Msg, "A", Int);
    const Attribute& ofSignal = Defined(table, Sig, "A", Int);
    std::vector<std::string> names;
    for (std::uint32_t id = 0; id < 500; ++id) {
        names.push_back("S" + std::to_string(id));
    }
    for (std::uint32_t id = 1; id < 500; ++id) {
        table.AddValue(MakeValue(ofSignal, id % 20, names[id], IntContent(1)));
        table.AddValue(MakeValue(ofMessage, id, "", IntContent(static_cast<std::int32_t>(id))));
    }
    for (std::uint32_t id = 1; id < 500; ++id) {
        const std::string number = std::to_string(id);
        EXPECT_EQ(Line(table.FindValue(ofMessage, id, "")),
                  "Msg A message " + number + " Int = " + number);
        EXPECT_NE(table.FindValue(ofSignal, id % 20, names[id]), nullptr) << id;
        EXPECT_EQ(table.FindValue(ofSignal, id % 20 + 1, names[id]), nullptr) << id;
    }
    EXPECT_EQ(table.values.Size(), 998U);
}

TEST(AttributeTable, IsEmptyAfterClear) {
    AttributeTable table;
    for (const int number : {1, 2}) {
        const Attribute& definition = Defined(table, Gen, "A", Int);
        EXPECT_EQ(Line(table.FindValue(definition, 0, "")), "none");
        table.AddValue(MakeValue(definition, 0, "", IntContent(number)));
        EXPECT_EQ(LinesOf(table.values), (Lines{"Gen A Int = " + std::to_string(number)}));
        table.ClearEntries();
        EXPECT_EQ(LinesOf(table.definitions), Lines{});
        EXPECT_EQ(LinesOf(table.values), Lines{});
        EXPECT_EQ(Line(table.FindDefinition("A", Gen, Int)), "none");
    }
}

}  // namespace
}  // namespace vexil
