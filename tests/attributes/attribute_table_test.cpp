// Tests of attributes/attribute_table.h.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string_view>

#include "attributes/attribute_lines.h"
#include "frame/can_database.h"

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

constexpr std::array<std::string_view, 2> AAndBc = {"A", "Bc"};
constexpr std::array<std::string_view, 1> OnlyA = {"A"};
constexpr std::array<std::string_view, 1> OnlyX = {"X"};

Lines NamesOf(const AttributeTable& table) {
    return {table.reservedAttributeNames.begin(), table.reservedAttributeNames.end()};
}

// The definition in the table, which is added if it is new.
const Attribute& Defined(AttributeTable& table, AttributeObjectKind kind, std::string_view name,
                         AttributeValueType type) {
    table.AddDefinition(MakeAttribute(kind, name, type));
    return *table.FindDefinition(name, kind, type);
}

TEST(AttributeTable, FindsNothingWhenEmpty) {
    const AttributeTable table;
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

TEST(AttributeTable, StoresCopiesOfDefinitions) {
    AttributeTable table;
    std::string text = "text";
    Attribute definition = MakeAttribute(Msg, "A", Str);
    definition.defaultContent.stringValue = text;
    table.AddDefinition(definition);
    definition.maxValue = 9;
    text = "gone";
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Msg A Str = 'text'"}));
}

TEST(AttributeTable, ShowsADefaultInTheLookup) {
    AttributeTable table;
    table.AddDefinition(MakeAttribute(Msg, "A", Int));
    table.AddDefinition(MakeAttribute(Msg, "A", Str));
    table.SetDefault(table.definitions.front(), "9");
    table.SetDefault(table.definitions.back(), std::string("\"text\""));
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Int)), "Msg A Int = 9");
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Str)), "Msg A Str = 'text'");
    // What sets nothing leaves the earlier default.
    table.SetDefault(table.definitions.front(), "\"9\"");
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Int)), "Msg A Int = 9");
    table.SetDefault(table.definitions.back(), "text");
    EXPECT_EQ(Line(table.FindDefinition("A", Msg, Str)), "Msg A Str");
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

TEST(AttributeTable, StoresCopiesOfValues) {
    AttributeTable table;
    const Attribute& definition = Defined(table, Sig, "A", Str);
    std::string signalName = "Speed";
    std::string text = "text";
    table.AddValue(MakeValue(definition, 5, signalName, test::StrContent(text)));
    signalName = "Other";
    text = "gone";
    EXPECT_EQ(LinesOf(table.values), (Lines{"Sig A message 5 signal Speed Str = 'text'"}));
    EXPECT_EQ(Line(table.FindValue(definition, 5, "Speed")),
              "Sig A message 5 signal Speed Str = 'text'");
}

TEST(AttributeTable, LeavesValuesWhenADefaultChanges) {
    AttributeTable table;
    table.AddDefinition(MakeAttribute(Msg, "A", Int));
    table.AddValue(MakeValue(table.definitions.front(), 5, "", IntContent(1)));
    table.SetDefault(table.definitions.front(), "9");
    EXPECT_EQ(LinesOf(table.values), (Lines{"Msg A message 5 Int = 1"}));
}

TEST(AttributeTable, FindsEachOfManyValues) {
    AttributeTable table;
    const Attribute& ofMessage = Defined(table, Msg, "A", Int);
    const Attribute& ofSignal = Defined(table, Sig, "A", Int);
    const auto name = [](std::uint32_t number) {
        return std::string("S").append(std::to_string(number));
    };
    for (std::uint32_t id = 1; id < 500; ++id) {
        table.AddValue(MakeValue(ofSignal, id % 20, name(id), IntContent(1)));
        table.AddValue(MakeValue(ofMessage, id, "", IntContent(static_cast<std::int32_t>(id))));
    }
    for (std::uint32_t id = 1; id < 500; ++id) {
        const std::string number = std::to_string(id);
        EXPECT_EQ(Line(table.FindValue(ofMessage, id, "")),
                  "Msg A message " + number + " Int = " + number);
        EXPECT_NE(table.FindValue(ofSignal, id % 20, name(id)), nullptr) << id;
        EXPECT_EQ(table.FindValue(ofSignal, id % 20 + 1, name(id)), nullptr) << id;
    }
    EXPECT_EQ(table.values.size(), 998U);
}

TEST(AttributeTable, RecognisesEveryNameWhenNoneIsReserved) {
    const AttributeTable table;
    EXPECT_FALSE(table.IsUnrecognised("A"));
    EXPECT_FALSE(table.IsUnrecognised(""));
}

TEST(AttributeTable, RecognisesOnlyReservedNames) {
    AttributeTable table;
    table.reservedAttributeNames = AAndBc;
    EXPECT_FALSE(table.IsUnrecognised("A"));
    EXPECT_FALSE(table.IsUnrecognised("Bc"));
    EXPECT_TRUE(table.IsUnrecognised("bc"));
    EXPECT_TRUE(table.IsUnrecognised("B"));
    EXPECT_TRUE(table.IsUnrecognised("Bcd"));
    EXPECT_TRUE(table.IsUnrecognised(""));
}

TEST(AttributeTable, AddsWithoutAskingForReservedNames) {
    AttributeTable table;
    table.reservedAttributeNames = OnlyA;
    table.AddValue(MakeValue(Defined(table, Gen, "B", Int), 0, "", {}));
    EXPECT_EQ(LinesOf(table.definitions), (Lines{"Gen B Int"}));
    EXPECT_EQ(LinesOf(table.values), (Lines{"Gen B Int"}));
}

TEST(AttributeTable, ClearsEntriesAndKeepsReservedNames) {
    AttributeTable table;
    table.reservedAttributeNames = OnlyA;
    for (int round = 0; round < 2; ++round) {
        const Attribute& definition = Defined(table, Gen, "A", Int);
        table.AddValue(MakeValue(definition, 0, "", IntContent(round)));
        EXPECT_EQ(LinesOf(table.values), (Lines{round == 0 ? "Gen A Int" : "Gen A Int = 1"}));
        table.ClearEntries();
        EXPECT_EQ(LinesOf(table.definitions), Lines{});
        EXPECT_EQ(LinesOf(table.values), Lines{});
        EXPECT_EQ(Line(table.FindDefinition("A", Gen, Int)), "none");
    }
    EXPECT_EQ(NamesOf(table), (Lines{"A"}));
    EXPECT_EQ(Line(table.FindValue(Defined(table, Gen, "A", Int), 0, "")), "none");
}

TEST(AttributeTable, OfTheDatabaseHasTheNineReservedNamesAndNoEntries) {
    AttributeTable& table = database.attributes;
    table.reservedAttributeNames = OnlyX;
    table.AddValue(MakeValue(Defined(table, Gen, "X", Int), 0, "", {}));
    database.Reset();
    EXPECT_EQ(NamesOf(table), (Lines{"BusType", "J1939PGN", "IsNMEA", "Marrowby_Msg_Name",
                                     "GenMsgSendType", "GenMsgCycleTime", "Marrowby_Sig_Name",
                                     "GenSigStartValue", "GenSigInactiveValue"}));
    EXPECT_EQ(LinesOf(table.definitions), Lines{});
    EXPECT_EQ(LinesOf(table.values), Lines{});
    EXPECT_EQ(Line(table.FindDefinition("X", Gen, Int)), "none");
}

}  // namespace
}  // namespace vexil
