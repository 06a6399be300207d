// Tests of write/value_sections.cpp.
// SPDX-License-Identifier: MIT
#include <utility>

#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

using test::Text;

class ValueSections : public test::ModelTest {
  protected:
    // statement: the value descriptions, as a VAL_ statement has them after the name.
    static CANSignal& AddValues(CANMessage& message, std::string_view name, std::uint32_t valueType,
                                std::string_view statement = {}) {
        CANSignal& signal = AddSignal(message, name);
        signal.valueType = valueType;
        if (!statement.empty()) {
            signal.notes.statements = database.arena.New<Note>(statement);
        }
        return signal;
    }

    std::string ValueLines() const { return Written(WriteValueDescriptions); }

    std::string TypeLines() const { return Written(WriteSignalValueTypes); }
};

TEST_F(ValueSections, WriteValuesInAscendingOrder) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {" 1 \"On\" 0 \"Off\"", "0 \"Off\" 1 \"On\";\n"},
        {" 0 \"zero\" -1 \"none\"", "-1 \"none\" 0 \"zero\";\n"},
        {" 2147483647 \"max\" -2147483648 \"min\"", "-2147483648 \"min\" 2147483647 \"max\";\n"},
        {" 0 \"\"", "0 \"\";\n"},
        {" 0 \"a\\; \xC3\xA4\n\"", "0 \"a\\; \xC3\xA4\n\";\n"},
        {" 0 \"a\" 0 \"b\"", "0 \"a - b\";\n"},
    };
    for (const auto& [statement, values] : cases) {
        test::ClearDatabase();
        AddValues(AddMessage(4294967295U, "M"), "S", ValueUnsigned, statement);
        EXPECT_EQ(ValueLines(), std::string("VAL_ 4294967295 S ").append(values));
    }
}

// What a statement has as it is written is copied; all else is put into that form.
TEST_F(ValueSections, WriteStatementsInOneForm) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {" -2147483648 \"\" -1 \"a\" 0 \"b  c\" 2147483647 \"d\" ; x",
         " -2147483648 \"\" -1 \"a\" 0 \"b  c\" 2147483647 \"d\";\n"},
        {" 01 \"a\"", " 1 \"a\";\n"},
        {" 00 \"a\"", " 0 \"a\";\n"},
        {" -0 \"a\"", " 0 \"a\";\n"},
        {" -01 \"a\"", " -1 \"a\";\n"},
        {" +1 \"a\"", " 1 \"a\";\n"},
        {"  1 \"a\"", " 1 \"a\";\n"},
        {"1 \"a\"", " 1 \"a\";\n"},
        {" 1\"a\"", " 1 \"a\";\n"},
        {" 1  \"a\"", " 1 \"a\";\n"},
        {"\n1 \"a\"", " 1 \"a\";\n"},
        {" 1\n\"a\"", " 1 \"a\";\n"},
        {" 1 V \"a\"", " 1 \"a\";\n"},
        {" 1 \"a\"  2 \"b\"", " 1 \"a\" 2 \"b\";\n"},
        {" 1 \"a\" 1 \"b\"", " 1 \"a - b\";\n"},
        {" 1 \"a\" 2 \"b", " 1 \"a\" 2 \"\";\n"},
        {" 1 \"a\" x \"2\" 3 \"", " 1 \"a\" 2 \" 3 \";\n"},
        {" 2147483648 \"a\" 1 \"b\"", " 1 \"b\";\n"},
    };
    for (const auto& [statement, values] : cases) {
        test::ClearDatabase();
        AddValues(AddMessage(5, "M"), "S", ValueUnsigned, statement);
        EXPECT_EQ(ValueLines(), std::string("VAL_ 5 S").append(values)) << statement;
    }
    for (const std::string_view statement : {" ;", " 1 ;", " x \"y", " \"", "\"\"", " \"\" ;"}) {
        test::ClearDatabase();
        AddValues(AddMessage(5, "M"), "S", ValueUnsigned, statement);
        EXPECT_EQ(ValueLines(), "") << statement;
    }
}

// Shown by descriptions that the database keeps: others would take their place.
TEST_F(ValueSections, ParseNoStatementThatHasTheWrittenForm) {
    for (const std::string_view statement :
         {" 0 \"a\" ;\n", " 10 \"\" 20 \"b  c\";", " -10 \"a\" -9 \"b\" 0 \"c\" 1 \"d\" ;",
          " -2147483648 \"a\" 2147483647 \"b\" ;"}) {
        test::ClearDatabase();
        Note note{" 7 \"a\""};
        CANSignal fetched;
        fetched.notes.statements = &note;
        EXPECT_EQ(database.DescriptionsOf(fetched).Count(), 1U);
        note.text = "";
        CANMessage& message = AddMessage(5, "M");
        for (const std::string_view name : {"A", "B", "C", "D"}) {
            AddValues(message, name, ValueUnsigned, statement);
        }
        EXPECT_NE(ValueLines(), "");
        EXPECT_EQ(database.DescriptionsOf(fetched).Count(), 1U) << statement;
    }
}

TEST_F(ValueSections, JoinStatementsAndAppendedDescriptions) {
    CANMessage& message = AddMessage(5, "M");
    CANSignal& appended = AddValues(message, "A", ValueUnsigned, " 1 \"a\" 3 \"c\"");
    CanEnumRecord record{2, "b"};
    EXPECT_TRUE(appended.AddEnum(database.arena, &record));
    CANSignal& twice = AddValues(message, "T", ValueUnsigned, " 1 \"a\" 3 \"c\"");
    twice.notes.statements->next = database.arena.New<Note>(" 1 \"d\" 4 \"e\"");
    EXPECT_EQ(ValueLines(),
              Text({"VAL_ 5 A 1 \"a\" 2 \"b\" 3 \"c\";", "VAL_ 5 T 1 \"a - d\" 3 \"c\" 4 \"e\";"}));
}

// A record of a host may bring any type and any text.
TEST_F(ValueSections, WriteDescriptionsOfIntegersAndTypesOfFloats) {
    struct Case {
        std::uint32_t type;
        std::string_view valueLine;
        std::string_view typeLine;
    };
    constexpr std::string_view ValueLine = "VAL_ 5 S 1 \"a\"b\";\n";
    const Case cases[] = {
        {0, ValueLine, ""},
        {1, ValueLine, ""},
        {2, "", "SIG_VALTYPE_ 5 S : 1;\n"},
        {3, "", "SIG_VALTYPE_ 5 S : 2;\n"},
        {4, ValueLine, ""},
        {4294967295U, ValueLine, ""},
    };
    CanEnumRecord record{1, "a\"b"};
    for (const Case& row : cases) {
        test::ClearDatabase();
        CANSignal& signal = AddValues(AddMessage(5, "M"), "S", row.type);
        EXPECT_EQ(ValueLines(), "");
        EXPECT_TRUE(signal.AddEnum(database.arena, &record));
        EXPECT_EQ(ValueLines(), row.valueLine);
        EXPECT_EQ(TypeLines(), row.typeLine);
        // The file loses the descriptions of a float, the model keeps them.
        EXPECT_EQ(database.DescriptionsOf(signal).Count(), 1U);
    }
}

TEST_F(ValueSections, HaveALineForEachSignalOfTheirKind) {
    CANMessage& first = AddMessage(1, "A");
    AddValues(first, "F", ValueFloat32, " 0 \"lost\"");
    AddValues(first, "N", ValueUnsigned, " 0 \"n\"");
    AddValues(first, "P", ValueUnsigned);
    CANMessage& second = AddMessage(2, "B");
    AddValues(second, "G", ValueFloat64);
    AddValues(second, "O", ValueSigned, " -1 \"o\"");
    EXPECT_EQ(ValueLines(), Text({"VAL_ 1 N 0 \"n\";", "VAL_ 2 O -1 \"o\";"}));
    EXPECT_EQ(TypeLines(), Text({"SIG_VALTYPE_ 1 F : 1;", "SIG_VALTYPE_ 2 G : 2;"}));
}

}  // namespace
}  // namespace vexil
