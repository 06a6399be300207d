// Tests of attributes/attribute_text.h.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_text.h"

#include <gtest/gtest.h>

#include "attributes/attribute_lines.h"

namespace vexil {
namespace {

using enum AttributeObjectKind;
using enum AttributeValueType;
using test::MakeAttribute;
using test::MakeValue;

// What append adds to an empty line.
template <typename Source>
std::string Appended(void (*append)(LineBuffer&, Source&), Source& source) {
    LineBuffer line;
    append(line, source);
    return std::string(line.Text());
}

std::string DefinitionLine(const Attribute& attribute) {
    return Appended(AppendDefinition, attribute);
}

std::string DefaultLine(const Attribute& attribute) {
    return Appended(AppendDefault, attribute);
}

std::string SectionOf(AttributeTable& table) {
    return Appended(AppendAttributeSection, table);
}

constexpr AttributeObjectKind Kinds[] = {Gen, Msg, Sig};

Attribute IntAttribute(AttributeObjectKind kind, std::int32_t min, std::int32_t max,
                       std::int32_t value) {
    Attribute attribute = MakeAttribute(kind, "A", Int);
    attribute.minValue = min;
    attribute.maxValue = max;
    attribute.defaultContent.intValue = value;
    return attribute;
}

Attribute StrAttribute(AttributeObjectKind kind, std::string_view text) {
    Attribute attribute = MakeAttribute(kind, "A", Str);
    attribute.defaultContent.stringValue = text;
    return attribute;
}

Attribute EnumAttribute(AttributeObjectKind kind, std::vector<std::string_view> texts,
                        std::int32_t index) {
    Attribute attribute = MakeAttribute(kind, "A", Enum);
    attribute.enumValues = std::move(texts);
    attribute.defaultContent.enumIndex = index;
    return attribute;
}

// The BA_ line of an owner whose value is the default of the attribute.
std::string ValueLine(const Attribute& attribute, std::uint32_t messageId,
                      std::string_view signalName) {
    const AttributeValue value =
        MakeValue(attribute, messageId, signalName, attribute.defaultContent);
    return Appended(AppendValue, value);
}

TEST(AppendDefinition, FormatsEachKindAndType) {
    EXPECT_EQ(DefinitionLine(IntAttribute(Gen, 0, 1, 1)), "BA_DEF_ \"A\" INT 0 1;");
    EXPECT_EQ(DefinitionLine(IntAttribute(Msg, -5, 65535, 9)), "BA_DEF_ BO_ \"A\" INT -5 65535;");
    EXPECT_EQ(DefinitionLine(MakeAttribute(Sig, "A", Int)),
              "BA_DEF_ SG_ \"A\" INT -2147483648 2147483647;");
    EXPECT_EQ(DefinitionLine(StrAttribute(Gen, "x")), "BA_DEF_ \"A\" STRING ;");
    EXPECT_EQ(DefinitionLine(StrAttribute(Msg, "")), "BA_DEF_ BO_ \"A\" STRING ;");
    EXPECT_EQ(DefinitionLine(EnumAttribute(Gen, {"x"}, 0)), "BA_DEF_ \"A\" ENUM \"x\";");
    EXPECT_EQ(DefinitionLine(EnumAttribute(Sig, {"x", "", "y z"}, 0)),
              "BA_DEF_ SG_ \"A\" ENUM \"x\",\"\",\"y z\";");
}

TEST(AppendDefinition, FormatsAnEnumWithoutEntries) {
    EXPECT_EQ(DefinitionLine(MakeAttribute(Msg, "A", Enum)), "BA_DEF_ BO_ \"A\" ENUM;");
}

TEST(AppendDefault, FormatsEachTypeWithoutItsKind) {
    for (const AttributeObjectKind kind : Kinds) {
        EXPECT_EQ(DefaultLine(IntAttribute(kind, 0, 1, -7)), "BA_DEF_DEF_ \"A\" -7;");
        EXPECT_EQ(DefaultLine(StrAttribute(kind, "CAN FD")), "BA_DEF_DEF_ \"A\" \"CAN FD\";");
        EXPECT_EQ(DefaultLine(StrAttribute(kind, "")), "BA_DEF_DEF_ \"A\" \"\";");
        EXPECT_EQ(DefaultLine(EnumAttribute(kind, {"x", "y z"}, 1)), "BA_DEF_DEF_ \"A\" \"y z\";");
        EXPECT_EQ(DefaultLine(EnumAttribute(kind, {"x", ""}, 1)), "BA_DEF_DEF_ \"A\" \"\";");
    }
}

TEST(AppendValue, FormatsEachKindAndType) {
    EXPECT_EQ(ValueLine(IntAttribute(Msg, 0, 1, -7), 256, ""), "BA_ \"A\" BO_ 256 -7;");
    EXPECT_EQ(ValueLine(StrAttribute(Msg, "Eng data"), 4294967295U, ""),
              "BA_ \"A\" BO_ 4294967295 \"Eng data\";");
    EXPECT_EQ(ValueLine(StrAttribute(Sig, ""), 0, "Rpm"), "BA_ \"A\" SG_ 0 Rpm \"\";");
    EXPECT_EQ(ValueLine(IntAttribute(Sig, 0, 1, 2147483647), 5, "Rpm"),
              "BA_ \"A\" SG_ 5 Rpm 2147483647;");
    EXPECT_EQ(ValueLine(EnumAttribute(Msg, {"x", "y"}, 1), 5, ""), "BA_ \"A\" BO_ 5 1;");
    EXPECT_EQ(ValueLine(EnumAttribute(Sig, {"x", "y"}, 0), 5, "Rpm"), "BA_ \"A\" SG_ 5 Rpm 0;");
}

TEST(AppendValue, IgnoresTheSignalNameOfAMessageAttribute) {
    EXPECT_EQ(ValueLine(IntAttribute(Msg, 0, 1, 1), 5, "Rpm"), "BA_ \"A\" BO_ 5 1;");
}

TEST(AppendValue, KeepsTwoBlanksForAnEmptySignalName) {
    EXPECT_EQ(ValueLine(IntAttribute(Sig, 0, 1, 1), 5, ""), "BA_ \"A\" SG_ 5  1;");
}

TEST(AppendValue, WritesNoValueOfANetworkAttribute) {
    EXPECT_EQ(ValueLine(IntAttribute(Gen, 0, 1, 1), 0, ""), "");
    EXPECT_EQ(ValueLine(StrAttribute(Gen, "x"), 0, ""), "");
    EXPECT_EQ(ValueLine(EnumAttribute(Gen, {"x"}, 0), 0, ""), "");
}

TEST(AttributeLines, AreEmptyWithoutAnEntryAtTheIndexOfAnEnum) {
    const Attribute below = EnumAttribute(Msg, {"x"}, -1);
    const Attribute beyond = EnumAttribute(Msg, {"x"}, 1);
    for (const Attribute& attribute : {MakeAttribute(Msg, "A", Enum), below, beyond}) {
        EXPECT_EQ(DefaultLine(attribute), "");
        EXPECT_EQ(ValueLine(attribute, 5, ""), "");
    }
    EXPECT_EQ(DefinitionLine(below), "BA_DEF_ BO_ \"A\" ENUM \"x\";");
    EXPECT_EQ(DefinitionLine(beyond), "BA_DEF_ BO_ \"A\" ENUM \"x\";");
}

TEST(AttributeLines, AreEmptyForAnUnsupportedType) {
    for (const AttributeObjectKind kind : Kinds) {
        const Attribute attribute = MakeAttribute(kind, "A", Unsup);
        EXPECT_EQ(DefinitionLine(attribute), "");
        EXPECT_EQ(DefaultLine(attribute), "");
        EXPECT_EQ(ValueLine(attribute, 5, "S"), "");
    }
}

TEST(AttributeLines, EscapeNothing) {
    const Attribute attribute = StrAttribute(Msg, "a\"b\\c\nd\xC3\xA4");
    EXPECT_EQ(DefaultLine(attribute), "BA_DEF_DEF_ \"A\" \"a\"b\\c\nd\xC3\xA4\";");
    EXPECT_EQ(ValueLine(attribute, 5, ""), "BA_ \"A\" BO_ 5 \"a\"b\\c\nd\xC3\xA4\";");
}

TEST(AppendAttributeSection, IsEmptyWithoutDefinitions) {
    AttributeTable table;
    EXPECT_EQ(SectionOf(table), "");
}

TEST(AppendAttributeSection, JoinsDefinitionsDefaultsAndValuesInTheirOrder) {
    AttributeTable table;
    table.AddDefinition(StrAttribute(Sig, ""));
    table.AddDefinition(IntAttribute(Gen, 0, 9, 0));
    const Attribute& definition = *table.definitions.front();
    table.AddValue(MakeValue(definition, 7, "S", test::StrContent("x")));
    table.AddValue(MakeValue(definition, 5, "S", test::StrContent("y")));
    EXPECT_EQ(SectionOf(table),
              "BA_DEF_ SG_ \"A\" STRING ;\n"
              "BA_DEF_ \"A\" INT 0 9;\n"
              "BA_DEF_DEF_ \"A\" \"\";\n"
              "BA_DEF_DEF_ \"A\" 0;\n"
              "BA_ \"A\" SG_ 7 S \"x\";\n"
              "BA_ \"A\" SG_ 5 S \"y\";");
}

TEST(AppendAttributeSection, SkipsEmptyLines) {
    AttributeTable table;
    table.AddDefinition(MakeAttribute(Msg, "U", Unsup));
    table.AddDefinition(MakeAttribute(Msg, "E", Enum));
    table.AddDefinition(StrAttribute(Gen, "x"));
    table.AddValue(MakeValue(*table.definitions.back(), 0, "", test::StrContent("y")));
    table.AddValue(MakeValue(*table.definitions[1], 5, "", {}));
    EXPECT_EQ(SectionOf(table),
              "BA_DEF_ BO_ \"E\" ENUM;\n"
              "BA_DEF_ \"A\" STRING ;\n"
              "BA_DEF_DEF_ \"A\" \"x\";");
}

}  // namespace
}  // namespace vexil
