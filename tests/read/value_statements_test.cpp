// Tests of VAL_ and SIG_VALTYPE_ statements: which signals they reach and what they change.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::Concat;
using test::EnumsOf;

// layout: start, length, order and sign.
std::string Signal(std::string_view name, std::string_view layout = "0|8@1+") {
    return Concat(" SG_ ", name, " : ", layout, " (1,0) [0|1] \"\" N\n");
}

// Reads the text after a message 5.
void Read(const std::string& text) {
    ASSERT_EQ(test::ReadText(Concat("BO_ 5 M: 8 N\n", text, "\n")), test::GoodRead);
}

class ValueType : public test::DatabaseTest {
  protected:
    // The types of all signals.
    static std::vector<std::uint32_t> Types() {
        std::vector<std::uint32_t> types;
        for (std::size_t at = 0; at < database.messages.Size(); ++at) {
            for (const CANSignal* signal : database.messages[at].signals) {
                types.push_back(signal->valueType);
            }
        }
        return types;
    }
};

TEST_F(ValueType, MakesAFloatOfASignalOfTheProperLength) {
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
        Read(Concat(Signal("S", row.layout), row.statement));
        EXPECT_EQ(test::Dump(*database.messages[0].signals[0]),
                  Concat("'S' ", row.after, " (1,0) [0|1] '' N"))
            << row.layout << " " << row.statement;
    }
}

TEST_F(ValueType, IsTakenOrRefused) {
    struct Row {
        std::string_view statement;
        bool taken;
    };
    const std::vector<Row> rows = {
        {"SIG_VALTYPE_ 5 S : 1;", true},         {" SIG_VALTYPE_\n005\tS\r\n:1;", true},
        {"SIG_VALTYPE_ 5 S : \n 1 ;", true},     {"SIG_VALTYPE_ 5 S : +1.9 2;", true},
        {"SIG_VALTYPE_ 5 S : 1 \"x\n\";", true}, {"SIG_VALTYPE_ 5 S: 1;", false},
        {"SIG_VALTYPE_ 5 S 1;", false},          {"SIG_VALTYPE_ 5 S x : 1;", false},
        {"SIG_VALTYPE_ 5 S : 1", false},         {"SIG_VALTYPE_ 5 S : ;", false},
        {"SIG_VALTYPE_ 5 S :;", false},          {"SIG_VALTYPE_ 5 S : x;", false},
        {"SIG_VALTYPE_ 5 S : -1;", false},       {"SIG_VALTYPE_ 5 S : 4294967297;", false},
        {"SIG_VALTYPE_ 5 S :", false},           {"SIG_VALTYPE_ 5 S", false},
        {"SIG_VALTYPE_ 5 T : 1;", false},        {"SIG_VALTYPE_ 5 SS : 1;", false},
        {"SIG_VALTYPE_ 5 : 1;", false},          {"SIG_VALTYPE_ 5", false},
        {"SIG_VALTYPE_ 6 S : 1;", false},        {"SIG_VALTYPE_ -5 S : 1;", false},
        {"SIG_VALTYPE_ S : 1;", false},
    };
    for (const Row& row : rows) {
        Read(Concat(Signal("S", "0|32@1-"), row.statement));
        EXPECT_EQ(Types()[0], row.taken ? ValueFloat32 : ValueSigned) << row.statement;
    }
}

TEST_F(ValueType, NeverMakesAnIntegerOfAFloat) {
    Read(Concat(Signal("S", "0|32@1+"),
                "SIG_VALTYPE_ 5 S : 1;\nSIG_VALTYPE_ 5 S : 0;\nSIG_VALTYPE_ 5 S : 2;"));
    EXPECT_EQ(Types()[0], ValueFloat32);
}

TEST_F(ValueType, ReachesEverySignalOfTheNameInEveryMessageOfTheId) {
    Read(Concat(Signal("S", "0|32@1+"), Signal("T", "0|32@1+"), Signal("S", "0|32@1-"),
                Signal("S", "0|64@1-"), "BO_ 6 Other: 8 N\n", Signal("S", "0|32@1+"),
                "BO_ 5 Again: 8 N\n", Signal("S", "0|32@1-"), "SIG_VALTYPE_ 5 S : 1;"));
    EXPECT_EQ(Types(), (std::vector<std::uint32_t>{2, 0, 2, 1, 0, 2}));
}

TEST_F(ValueType, ReachesSignalsThatCameAfterAnEarlierStatement) {
    const std::string message =
        Concat("BO_ 5 M: 8 N\n", Signal("S", "0|32@1+"), Signal("S", "0|64@1+"));
    const std::string ofBoth = Concat(message, "SIG_VALTYPE_ 5 S : 1;\n", message);
    Read(Concat(ofBoth, "SIG_VALTYPE_ 5 S : 2;\n", ofBoth, "SIG_VALTYPE_ 5 S : 2;\n"));
    // The last signal of 32 bits came after the last statement for such.
    EXPECT_EQ(Types(), (std::vector<std::uint32_t>{2, 3, 2, 3, 2, 3, 0, 3}));
}

TEST_F(ValueType, NeedsTheWholeNameAfterTheId) {
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
        Read(Concat(Signal(row.name, "0|64@1-"), "SIG_VALTYPE_ 5 ", row.asked, " : 2;"));
        EXPECT_EQ(Types()[0], row.found ? ValueFloat64 : ValueSigned)
            << row.name << " asked as " << row.asked;
    }
}

class ValueDescriptions : public test::DatabaseTest {
  protected:
    struct Row {
        std::string_view text;
        std::string_view enums;  // of the signal S of message 5
    };

    static void CheckRows(std::string_view front, const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            Read(Concat(Signal("S"), front, row.text));
            EXPECT_EQ(Enums(), row.enums) << front << row.text;
        }
    }

    static std::string Enums(std::size_t at = 0) {
        return EnumsOf(*database.messages[0].signals[at]);
    }
};

TEST_F(ValueDescriptions, ArePairsOfNumberAndText) {
    CheckRows(
        "VAL_ 5 S",
        {
            {" 2 \"two\" 0 \"zero\" 1 \"one\";", "0:'zero',1:'one',2:'two'"},
            {" 2 \"two\" 0 \"zero\"", "0:'zero',2:'two'"},
            {" 0 \"zero\" -1 \"none\";", "-1:'none',0:'zero'"},
            {" 0 \"\";", "0:''"},
            {" 0\"a\"1\"b\";", "0:'a',1:'b'"},
            {"\n\t0\n\"a\"\n\n1\r\n\"b\"\n;", "0:'a',1:'b'"},
            {" 0 \" a\n\tb \";", R"(0:' a\n\tb ')"},
            {" 0 \"\xC3\xA4\xE2\x82\xAC\";", "0:'\xC3\xA4\xE2\x82\xAC'"},
            {" 0 \"a;b,c\";", "0:'a;b,c'"},
            {" 0 \"a\\\" 1 \"b\";", R"(0:'a\\',1:'b')"},
            {" 2147483647 \"max\" -2147483648 \"min\";", "-2147483648:'min',2147483647:'max'"},
            {" +3 \"a\" 0x1F \"b\" 4.9 \"c\" 5x \"d\" 6 7 \"e\";", "0:'b',3:'a',4:'c',5:'d',6:'e'"},
            {" ;", ""},
            {"", ""},
            {" 0;", ""},
        });
}

TEST_F(ValueDescriptions, ShiftByOneQuoteAfterAnInvalidNumber) {
    CheckRows("VAL_ 5 S ", {
                               {"x \"1\" 2 \"b\";", "1:' 2 '"},
                               {"x \"a\" 2 \"b\";", "2:'b'"},
                               {"\"a\" 0 \"b\";", "0:'b'"},
                               {"0 \"a\" x \"1\" 2 \"b\";", "0:'a',1:' 2 '"},
                               {"2147483648 \"over\" 1 \"b\";", "1:'b'"},
                               {"-2147483649 \"7\" 1 \"b\";", "7:' 1 '"},
                               {"0 \"a\"\"1\"\"b\";", "0:'a',1:''"},
                               {"0 \"a \"quoted\" b\" 1 \"c\";", "0:'a ',1:'c'"},
                           });
}

TEST_F(ValueDescriptions, HaveAnEmptyTextWhereTheClosingQuoteIsMissing) {
    CheckRows("VAL_ 5 S ", {{"0 \"a\" 1 \"b", "0:'a',1:''"}});
}

TEST_F(ValueDescriptions, AreTakenOrRefused) {
    CheckRows("", {
                      {"VAL_ 5 S 0 \"x\";", "0:'x'"},
                      {" \nVAL_\t005\nS\r0 \"x\";", "0:'x'"},
                      {"VAL_ 5 S;", ""},
                      {"VAL_ 5 S", ""},
                      {"VAL_ 5 S0 \"x\";", ""},
                      {"VAL_ 5 T 0 \"x\";", ""},
                      {"VAL_ 5 s 0 \"x\";", ""},
                      {"VAL_ 5 0 \"x\";", ""},
                      {"VAL_ 5", ""},
                      {"VAL_ 6 S 0 \"x\";", ""},
                      {"VAL_ S 0 \"x\";", ""},
                      {"VAL_ Name 0 \"x\";", ""},
                      {"VAL_ 5S 0 \"x\";", ""},
                  });
}

TEST_F(ValueDescriptions, ReachEverySignalOfTheNameInEveryMessageOfTheId) {
    Read(Concat(Signal("S"), Signal("T"), Signal("S"), "BO_ 6 Other: 8 N\n", Signal("S"),
                "VAL_ 5 S 0 \"early\";\n"
                "BO_ 5 Again: 8 N\n",
                Signal("S"), "VAL_ 5 S 0 \"late\";"));
    EXPECT_EQ(test::DumpDatabase(),
              "5 'M' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N enums={0:'early - late'}\n"
              "  'T' 0|8@1+ (1,0) [0|1] '' N\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N enums={0:'early - late'}\n"
              "6 'Other' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n"
              "5 'Again' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N enums={0:'late'}\n");
}

// Two signals and one statement: the descriptions of each when one name is a prefix of the other.
TEST_F(ValueDescriptions, ReachEverySignalWhoseNameIsAPrefix) {
    struct Names {
        std::string_view first;
        std::string_view second;
        std::string_view statement;  // after the id
        std::string_view firstEnums;
        std::string_view secondEnums;
    };
    constexpr std::string_view Name33 = "abcdefghijklmnopqrstuvwxyz0123456";
    const std::vector<Names> rows = {
        {"A", "A B", "A 0 \"x\";", "0:'x'", ""},
        {"A", "A B", "A B 0 \"x\";", "", "0:'x'"},
        {"A", "A B", "A B 0 \"1\" 2 \"y\";", "1:' 2 '", "0:'1',2:'y'"},
        {"A", "A 1", "A 1 \"x\" 2 \"y\";", "1:'x',2:'y'", "2:'y'"},
        {"A", "AB", "AB 0 \"x\";", "", "0:'x'"},
        {"A", "A\tB", "A\tB 0 \"x\";", "", "0:'x'"},
        {"A B", "A\tB", "A B 0 \"x\";", "0:'x'", ""},
        {"A B", "A\nB", "A\nB 0 \"x\";", "", "0:'x'"},
        {"A B", "A  B", "A  B 0 \"x\";", "", "0:'x'"},
        {"", "0", "0 1 \"x\";", "", "1:'x'"},
        {"", "A", " 0 \"x\";", "", ""},
        {Name33, "abcdefghijklmnopqrstuvwxyz012345", "abcdefghijklmnopqrstuvwxyz012345 0 \"x\";",
         "", "0:'x'"},
        {Name33, "B", "abcdefghijklmnopqrstuvwxyz0123456 0 \"x\";", "0:'x'", ""},
        {"1st", "_st", "1st 0 \"x\";", "0:'x'", ""},
    };
    for (const Names& row : rows) {
        Read(Concat(Signal(row.first), Signal(row.second), "VAL_ 5 ", row.statement));
        EXPECT_EQ(Enums(0), row.firstEnums) << row.first << " for " << row.statement;
        EXPECT_EQ(Enums(1), row.secondEnums) << row.second << " for " << row.statement;
    }
}

}  // namespace
}  // namespace vexil
