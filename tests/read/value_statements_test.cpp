// Tests of VAL_ and SIG_VALTYPE_ statements: which signals they reach and what they change.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "read/handlers.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::Concat;
using test::Dump;

class ValueTest : public test::DatabaseTest {
  protected:
    static void AddMessage(std::string_view statement) {
        ASSERT_TRUE(HandleMessageStatement(statement, 1));
    }

    // Adds a signal; layout is its start, length, order and sign.
    static void AddSignal(std::string_view name, std::string_view layout = "0|8@1+") {
        ASSERT_TRUE(
            HandleSignalStatement(Concat("SG_ ", name, " : ", layout, " (1,0) [0|1] \"\" N\n"), 1));
    }

    // The value descriptions of a signal of the last message, as they stand in its dump.
    static std::string Enums(std::size_t signal = 0) {
        const std::string dump = Dump(*database.messages.back()->signals[signal]);
        const std::size_t enums = dump.find(" enums=");
        return enums == std::string::npos ? "" : dump.substr(enums);
    }
};

class HandleValueType : public ValueTest {};

TEST_F(HandleValueType, MakesAFloatOfASignalOfTheProperLength) {
    struct Row {
        std::string_view layout;
        std::string_view statement;
        std::string_view after;
    };
    const std::vector<Row> rows = {
        {"0|32@1-", "SIG_VALTYPE_ 5 S : 1;", "0|32@1f"},
        {"0|32@0+", "SIG_VALTYPE_ 5 S : 1;", "0|32@0f"},
        {"0|64@1-", "SIG_VALTYPE_ 5 S : 2;", "0|64@1d"},
        {"0|64@1+", "SIG_VALTYPE_ 5 S : 2;", "0|64@1d"},
        {"0|32@1-", "SIG_VALTYPE_ 5 S : 2;", "0|32@1-"},
        {"0|64@1-", "SIG_VALTYPE_ 5 S : 1;", "0|64@1-"},
        {"0|32@1-", "SIG_VALTYPE_ 5 S : 0;", "0|32@1-"},
        {"0|32@1+", "SIG_VALTYPE_ 5 S : 3;", "0|32@1+"},
        {"0|16@1-", "SIG_VALTYPE_ 5 S : 1;", "0|16@1-"},
        {"0|31@1-", "SIG_VALTYPE_ 5 S : 1;", "0|31@1-"},
        {"0|33@1-", "SIG_VALTYPE_ 5 S : 1;", "0|33@1-"},
        {"0|63@1-", "SIG_VALTYPE_ 5 S : 2;", "0|63@1-"},
        {"0|65@1-", "SIG_VALTYPE_ 5 S : 2;", "0|65@1-"},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 5 M: 8 N\n");
        AddSignal("S", row.layout);
        EXPECT_TRUE(vexil::HandleValueType(row.statement));
        EXPECT_EQ(Dump(*database.messages.back()->signals[0]),
                  Concat("'S' ", row.after, " (1,0) [0|1] '' N"))
            << row.layout << " " << row.statement;
    }
}

TEST_F(HandleValueType, TakesOrRefuses) {
    struct Row {
        std::string_view statement;
        bool claimed;
        bool taken;
    };
    const std::vector<Row> rows = {
        {"SIG_VALTYPE_ 5 S : 1;\n", true, true},
        {" SIG_VALTYPE_\n005\tS\r\n:1;", true, true},
        {"SIG_VALTYPE_ 5 S : \n 1 ;\n", true, true},
        {"SIG_VALTYPE_ 5 S : +1.9 2;\n", true, true},
        {"SIG_VALTYPE_ 5 S : 1 \"x\n\";\n", true, true},
        {"SIG_VALTYPE_ 5 S: 1;\n", true, false},
        {"SIG_VALTYPE_ 5 S 1;\n", true, false},
        {"SIG_VALTYPE_ 5 S x : 1;\n", true, false},
        {"SIG_VALTYPE_ 5 S : 1\n", true, false},
        {"SIG_VALTYPE_ 5 S : ;\n", true, false},
        {"SIG_VALTYPE_ 5 S :;\n", true, false},
        {"SIG_VALTYPE_ 5 S : x;\n", true, false},
        {"SIG_VALTYPE_ 5 S : -1;\n", true, false},
        {"SIG_VALTYPE_ 5 S : 4294967297;\n", true, false},
        {"SIG_VALTYPE_ 5 S :\n", true, false},
        {"SIG_VALTYPE_ 5 S\n", true, false},
        {"SIG_VALTYPE_ 5 S", true, false},
        {"SIG_VALTYPE_ 5 T : 1;\n", true, false},
        {"SIG_VALTYPE_ 5 SS : 1;\n", true, false},
        {"SIG_VALTYPE_ 5 : 1;\n", true, false},
        {"SIG_VALTYPE_ 5\n", true, false},
        {"SIG_VALTYPE_ 5", false, false},
        {"SIG_VALTYPE_ 6 S : 1;\n", false, false},
        {"SIG_VALTYPE_ -5 S : 1;\n", false, false},
        {"SIG_VALTYPE_ S : 1;\n", false, false},
        {"SIG_VALTYPE_5 S : 1;\n", false, false},
        {"SIGTYPE_VALTYPE_ 5 S : 1;\n", false, false},
        {"VAL_ 5 S : 1;\n", false, false},
        {"", false, false},
    };
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S", "0|32@1-");
    CANSignal& signal = *database.messages[0]->signals[0];
    for (const Row& row : rows) {
        signal.valueType = ValueSigned;
        EXPECT_EQ(vexil::HandleValueType(row.statement), row.claimed) << row.statement;
        EXPECT_EQ(signal.valueType == ValueFloat32, row.taken) << row.statement;
        EXPECT_TRUE(row.taken || signal.valueType == ValueSigned) << row.statement;
    }
}

TEST_F(HandleValueType, DoesNotTurnAFloatBack) {
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S", "0|32@1+");
    vexil::HandleValueType("SIG_VALTYPE_ 5 S : 1;\n");
    vexil::HandleValueType("SIG_VALTYPE_ 5 S : 0;\n");
    vexil::HandleValueType("SIG_VALTYPE_ 5 S : 2;\n");
    EXPECT_EQ(database.messages[0]->signals[0]->valueType, ValueFloat32);
}

TEST_F(HandleValueType, ReachesEverySignalOfTheNameInEveryMessageOfTheId) {
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S", "0|32@1+");
    AddSignal("T", "0|32@1+");
    AddSignal("S", "0|32@1-");
    AddSignal("S", "0|64@1-");
    AddMessage("BO_ 6 Other: 8 N\n");
    AddSignal("S", "0|32@1+");
    AddMessage("BO_ 5 Again: 8 N\n");
    AddSignal("S", "0|32@1-");
    EXPECT_TRUE(vexil::HandleValueType("SIG_VALTYPE_ 5 S : 1;\n"));
    std::vector<std::uint32_t> types;
    for (const auto& message : database.messages) {
        for (const auto& signal : message->signals) {
            types.push_back(signal->valueType);
        }
    }
    EXPECT_EQ(types, (std::vector<std::uint32_t>{2, 0, 2, 1, 0, 2}));
}

class HandleValueDescriptions : public ValueTest {};

TEST_F(HandleValueDescriptions, TakesPairsOfNumberAndText) {
    struct Row {
        std::string_view pairs;
        std::string_view enums;
    };
    const std::vector<Row> rows = {
        {" 2 \"two\" 0 \"zero\" 1 \"one\";", " enums={0:'zero',1:'one',2:'two'}"},
        {" 2 \"two\" 0 \"zero\"\n", " enums={0:'zero',2:'two'}"},
        {" 0 \"zero\" -1 \"none\";", " enums={-1:'none',0:'zero'}"},
        {" 0 \"\";", " enums={0:''}"},
        {" 0\"a\"1\"b\";", " enums={0:'a',1:'b'}"},
        {"\n\t0\n\"a\"\n\n1\r\n\"b\"\n;", " enums={0:'a',1:'b'}"},
        {" 0 \" a\n\tb \";", R"( enums={0:' a\n\tb '})"},
        {" 0 \"\xC3\xA4\xE2\x82\xAC\";", " enums={0:'\xC3\xA4\xE2\x82\xAC'}"},
        {" 0 \"a;b,c\";", " enums={0:'a;b,c'}"},
        {" 0 \"a\\\" 1 \"b\";", R"( enums={0:'a\\',1:'b'})"},
        {" 2147483647 \"max\" -2147483648 \"min\";", " enums={-2147483648:'min',2147483647:'max'}"},
        {" +3 \"a\" 0x1F \"b\" 4.9 \"c\" 5x \"d\" 6 7 \"e\";",
         " enums={0:'b',3:'a',4:'c',5:'d',6:'e'}"},
        {" ;", ""},
        {"\n", ""},
        {" 0;", ""},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 5 M: 8 N\n");
        AddSignal("S");
        EXPECT_TRUE(vexil::HandleValueDescriptions(Concat("VAL_ 5 S", row.pairs)));
        EXPECT_EQ(Enums(), row.enums) << row.pairs;
    }
}

TEST_F(HandleValueDescriptions, JoinsTheTextsOfAValueThatStandsTwice) {
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S");
    vexil::HandleValueDescriptions("VAL_ 5 S 0 \"a\" 0 \"b\" 0 \"c\";");
    EXPECT_EQ(Enums(), " enums={0:'a - b - c'}");
    vexil::HandleValueDescriptions("VAL_ 5 S 1 \"x\" 0 \"\";");
    EXPECT_EQ(Enums(), " enums={0:'a - b - c - ',1:'x'}");
    vexil::HandleValueDescriptions("VAL_ 5 S 0 \"d\";");
    EXPECT_EQ(Enums(), " enums={0:'a - b - c -  - d',1:'x'}");
}

TEST_F(HandleValueDescriptions, SortsValuesAndJoinsTextsWhateverTheirOrder) {
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S");
    std::mt19937 random(1);
    std::map<std::int32_t, std::string> expected;
    std::string statement = "VAL_ 5 S";
    for (int number = 0; number < 2000; ++number) {
        const std::int32_t value = static_cast<std::int32_t>(random() % 500) - 250;
        const std::string text = std::to_string(number);
        statement += Concat(" ", std::to_string(value), " \"", text, "\"");
        const auto [entry, isNew] = expected.emplace(value, text);
        if (!isNew) {
            entry->second += Concat(" - ", text);
        }
    }
    vexil::HandleValueDescriptions(Concat(statement, ";\n"));
    std::string enums;
    for (const auto& [value, text] : expected) {
        enums += Concat(enums.empty() ? " enums={" : ",", std::to_string(value), ":'", text, "'");
    }
    EXPECT_EQ(Enums(), Concat(enums, "}"));
}

TEST_F(HandleValueDescriptions, ShiftsThePairsByOneQuoteBehindABadNumber) {
    struct Row {
        std::string_view pairs;
        std::string_view enums;
    };
    const std::vector<Row> rows = {
        {"x \"1\" 2 \"b\";", " enums={1:' 2 '}"},
        {"x \"a\" 2 \"b\";", " enums={2:'b'}"},
        {"\"a\" 0 \"b\";", " enums={0:'b'}"},
        {"0 \"a\" x \"1\" 2 \"b\";", " enums={0:'a',1:' 2 '}"},
        {"2147483648 \"over\" 1 \"b\";", " enums={1:'b'}"},
        {"-2147483649 \"7\" 1 \"b\";", " enums={7:' 1 '}"},
        {"0 \"a\"\"1\"\"b\";", " enums={0:'a',1:''}"},
        {"0 \"a \"quoted\" b\" 1 \"c\";", " enums={0:'a ',1:'c'}"},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 5 M: 8 N\n");
        AddSignal("S");
        EXPECT_TRUE(vexil::HandleValueDescriptions(Concat("VAL_ 5 S ", row.pairs)));
        EXPECT_EQ(Enums(), row.enums) << row.pairs;
    }
}

TEST_F(HandleValueDescriptions, StoresAnEmptyTextWhereTheClosingQuoteIsMissing) {
    AddMessage("BO_ 5 M: 8 N\n");
    AddSignal("S");
    vexil::HandleValueDescriptions("VAL_ 5 S 0 \"a\" 1 \"b");
    EXPECT_EQ(Enums(), " enums={0:'a',1:''}");
}

TEST_F(HandleValueDescriptions, TakesOrRefuses) {
    struct Row {
        std::string_view statement;
        bool claimed;
        std::string_view enums;
    };
    const std::vector<Row> rows = {
        {"VAL_ 5 S 0 \"x\";\n", true, " enums={0:'x'}"},
        {" \nVAL_\t005\nS\r0 \"x\";\n", true, " enums={0:'x'}"},
        {"VAL_ 5 S;\n", true, ""},
        {"VAL_ 5 S", true, ""},
        {"VAL_ 5 S0 \"x\";\n", true, ""},
        {"VAL_ 5 T 0 \"x\";\n", true, ""},
        {"VAL_ 5 s 0 \"x\";\n", true, ""},
        {"VAL_ 5 0 \"x\";\n", true, ""},
        {"VAL_ 5\n", true, ""},
        {"VAL_ 5", false, ""},
        {"VAL_ 6 S 0 \"x\";\n", false, ""},
        {"VAL_ S 0 \"x\";\n", false, ""},
        {"VAL_ Name 0 \"x\";\n", false, ""},
        {"VAL_ 5S 0 \"x\";\n", false, ""},
        {"VAL_TABLE_ 5 S 0 \"x\";\n", false, ""},
        {"SIG_VALTYPE_ 5 S : 1;\n", false, ""},
        {"", false, ""},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 5 M: 8 N\n");
        AddSignal("S");
        EXPECT_EQ(vexil::HandleValueDescriptions(row.statement), row.claimed) << row.statement;
        EXPECT_EQ(Enums(), row.enums) << row.statement;
    }
}

TEST_F(HandleValueDescriptions, ReachesEverySignalOfTheNameInEveryMessageOfTheId) {
    test::ReadText(
        "BO_ 5 M: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\"\n"
        " SG_ T : 0|8@1+ (1,0) [0|1] \"\"\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\"\n"
        "BO_ 6 Other: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\"\n"
        "VAL_ 5 S 0 \"early\";\n"
        "BO_ 5 Again: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\"\n"
        "VAL_ 5 S 0 \"late\";\n");
    EXPECT_EQ(test::DumpDatabase(),
              "5 'M' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' enums={0:'early - late'}\n"
              "  'T' 0|8@1+ (1,0) [0|1] ''\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' enums={0:'early - late'}\n"
              "6 'Other' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] ''\n"
              "5 'Again' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' enums={0:'late'}\n");
}

// Two signals of message 7 and one statement: what each gets when one name begins the other.
TEST_F(HandleValueDescriptions, OffersTheStatementToEverySignalWhoseNameBeginsIt) {
    struct Row {
        std::string_view first;
        std::string_view second;
        std::string_view statement;  // behind the id
        std::string_view firstEnums;
        std::string_view secondEnums;
    };
    constexpr std::string_view Name33 = "abcdefghijklmnopqrstuvwxyz0123456";
    const std::vector<Row> rows = {
        {"A", "A B", "A 0 \"x\";", " enums={0:'x'}", ""},
        {"A", "A B", "A B 0 \"x\";", "", " enums={0:'x'}"},
        {"A", "A B", "A B 0 \"1\" 2 \"y\";", " enums={1:' 2 '}", " enums={0:'1',2:'y'}"},
        {"A", "A 1", "A 1 \"x\" 2 \"y\";", " enums={1:'x',2:'y'}", " enums={2:'y'}"},
        {"A", "AB", "AB 0 \"x\";", "", " enums={0:'x'}"},
        {"A", "A\tB", "A\tB 0 \"x\";", "", " enums={0:'x'}"},
        {"A B", "A\tB", "A B 0 \"x\";", " enums={0:'x'}", ""},
        {"A B", "A\nB", "A\nB 0 \"x\";", "", " enums={0:'x'}"},
        {"A B", "A  B", "A  B 0 \"x\";", "", " enums={0:'x'}"},
        {"", "0", "0 1 \"x\";", "", " enums={1:'x'}"},
        {"", "A", " 0 \"x\";", "", ""},
        {Name33, "abcdefghijklmnopqrstuvwxyz012345", "abcdefghijklmnopqrstuvwxyz012345 0 \"x\";",
         "", " enums={0:'x'}"},
        {Name33, "B", "abcdefghijklmnopqrstuvwxyz0123456 0 \"x\";", " enums={0:'x'}", ""},
        {"1st", "_st", "1st 0 \"x\";", " enums={0:'x'}", ""},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 7 M: 8 N\n");
        AddSignal(row.first);
        AddSignal(row.second);
        vexil::HandleValueDescriptions(Concat("VAL_ 7 ", row.statement));
        EXPECT_EQ(Enums(0), row.firstEnums) << row.first << " for " << row.statement;
        EXPECT_EQ(Enums(1), row.secondEnums) << row.second << " for " << row.statement;
    }
}

// What the longer names get is taken apart when somebody looks, long after the statement has gone.
TEST_F(HandleValueDescriptions, ReachesEachOfManyNamesThatBeginOneAnother) {
    AddMessage("BO_ 7 M: 8 N\n");
    for (const std::string_view name : {"A 1 2", "A", "A 1 2 3", "A 1"}) {
        AddSignal(name);
    }
    {
        const std::string statement = "VAL_ 7 A 1 2 3 \"x\" 0 \"y\" ;\n";
        EXPECT_TRUE(vexil::HandleValueDescriptions(statement));
    }
    EXPECT_EQ(Enums(0), " enums={0:'y',3:'x'}");
    EXPECT_EQ(Enums(1), " enums={0:'y',1:'x'}");
    EXPECT_EQ(Enums(2), " enums={0:'y'}");
    EXPECT_EQ(Enums(3), " enums={0:'y',2:'x'}");
}

TEST_F(HandleValueType, ReachesSignalsThatCameAfterAnEarlierStatement) {
    AddMessage("BO_ 5 M: 8 N\n");
    for (int messages = 0; messages < 3; ++messages) {
        AddSignal("S", "0|32@1+");
        AddSignal("S", "0|64@1+");
        AddSignal("S", "0|32@1+");
        vexil::HandleValueType("SIG_VALTYPE_ 5 S : 1;\n");
        AddSignal("S", "0|64@1+");
        AddSignal("S", "0|32@1+");
        vexil::HandleValueType("SIG_VALTYPE_ 5 S : 2;\n");
        AddMessage("BO_ 5 M: 8 N\n");
    }
    std::vector<std::uint32_t> types;
    for (const auto& message : database.messages) {
        for (const auto& signal : message->signals) {
            types.push_back(signal->valueType);
        }
    }
    // The last signal of 32 bits came after the last statement for such.
    EXPECT_EQ(types, (std::vector<std::uint32_t>{2, 3, 2, 3, 2, 2, 3, 2, 3, 2, 2, 3, 2, 3, 0}));
}

TEST(MatchSignalName, TellsWhereTheNameEndsAndForgetsItOtherwise) {
    CANSignal signal;
    signal.rawName = "A B";
    Position end = 0;
    EXPECT_TRUE(signal.MatchSignalName("7  A B 1", 1, end));
    EXPECT_EQ(end, 6U);
    EXPECT_FALSE(signal.MatchSignalName("7  A C 1", 1, end));
    EXPECT_EQ(end, npos);
    end = 0;
    EXPECT_FALSE(signal.MatchSignalName("7 ", 1, end));
    EXPECT_EQ(end, npos);
}

TEST_F(HandleValueType, NeedsTheWholeNameBehindTheId) {
    struct Row {
        std::string_view name;
        std::string_view asked;
        bool found;
    };
    const std::vector<Row> rows = {
        {"A", "A", true},         {"A", "A B", false},    {"A B", "A", false},
        {"A B", "A B", true},     {"A B", "A\tB", false}, {"A\tB", "A\tB", true},
        {"A\nB", "A\nB", true},   {"A\nB", "A B", false}, {"", "", false},
        {"1st", "1st", true},     {"1st", "_st", false},  {"\xC3\xA4", "\xC3\xA4", true},
        {"\xC3\xA4", "_", false}, {"A", "a", false},
    };
    for (const Row& row : rows) {
        AddMessage("BO_ 7 M: 8 N\n");
        AddSignal(row.name, "0|64@1-");
        EXPECT_TRUE(vexil::HandleValueType(Concat("SIG_VALTYPE_ 7 ", row.asked, " : 2;")));
        EXPECT_EQ(database.messages.back()->signals[0]->valueType,
                  row.found ? ValueFloat64 : ValueSigned)
            << row.name << " asked as " << row.asked;
    }
}

}  // namespace
}  // namespace vexil
