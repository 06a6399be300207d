// Tests of SG_ statements as a whole: the order of the steps, what a failure leaves, and where the
// signal goes. The steps themselves are in signal_steps_test.cpp.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "read/handlers.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::Dump;
using test::DumpDatabase;

std::string DumpParsed(std::string_view statement) {
    CANSignal signal;
    signal.Parse(statement);
    return Dump(signal);
}

struct Row {
    std::string_view statement;
    std::string_view signal;  // its dump
};

void CheckRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(DumpParsed(row.statement), row.signal) << row.statement;
    }
}

TEST(CANSignalParse, TakesTheWholeStatement) {
    CheckRows({
        {R"(SG_ S : 0|8@1+ (1,0) [0|255] "" N)", "'S' 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S M : 0|8@1+ (1,0) [0|255] "" N)", "'S' M 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S m12 : 0|8@1+ (1,0) [0|255] "" N)", "'S' m12 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S : 7|8@0- (0.5,-40) [-40|87.5] "degC" A,B)",
         "'S' 7|8@0- (0.5,-40) [-40|87.5] 'degC' A,B"},
        {R"(SG_ : 0|8@1+ (1,0) [0|1] "" N)", "'' 0|8@1+ (1,0) [0|1] '' N"},
        {"\n SG_\tS\n:\n0|8@1+\n(1,0)\n[0|255]\n\"\"\nN\n\n", "'S' 0|8@1+ (1,0) [0|255] '' N"},
        {"SG_ S:0|8@1+(1,0)[0|255]\"\"N\n", "'S' 0|8@1+ (1,0) [0|255] '' N"},
    });
}

TEST(CANSignalParse, StopsAtTheFirstStepThatFails) {
    CheckRows({
        {"SG_ S 0-8 1,0 0-1\n", "empty errors=3"},
        {"SG_ S : 0-8@1+ (1 0) [0 1]\n", "empty errors=4"},
        {"SG_ S : 0|8@2+ (1,0) [0 1]\n", "empty errors=4"},
        {"SG_ S : 0|8@1+ (1 0) [0 1]\n", "empty errors=5"},
        {"SG_ S : 0|8@1+ (1,0) [0 1]\n", "empty errors=6"},
    });
}

TEST(CANSignalParse, RefusesATextWithoutTheKeywordAndGivesNoCode) {
    CheckRows({
        {"", "empty"},
        {"SG_", "empty"},
        {"SG_: 0|8@1+ (1,0) [0|1] \"\" N\n", "empty"},
        {"SG_MUL_VAL_ 1 S M 0-1;\n", "empty"},
        {"sg_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", "empty"},
        {"BO_ 1 M: 8 N\n", "empty"},
    });
}

TEST(CANSignalParse, ResetsWhatWasThereBefore) {
    CANSignal signal;
    ASSERT_TRUE(signal.Parse("SG_ a b m7 : 1|2@0- (3,4) [5|6] \"\xC2\xB0\" A,B\n"));
    signal.comment = std::string("c");
    signal.enums.Add(1, "one");
    signal.startValue = 8;
    signal.inactiveValue = 9;
    signal.hasNameSuffix = true;
    EXPECT_TRUE(signal.Parse("SG_ S : 0|8 (1,0) [0|1]\n"));
    EXPECT_EQ(Dump(signal), "'S' 0|8@1+ (1,0) [0|1] ''");
}

TEST(CANSignalParse, KeepsTheCodeOfAFailureThroughItsResetUntilTheNextParse) {
    CANSignal signal;
    EXPECT_FALSE(signal.Parse("SG_ S m3 : 1|2@0- (3,4) [5|x]\n"));
    EXPECT_EQ(signal.stepErrors, std::vector<std::uint32_t>{StepSignalRange});
    EXPECT_TRUE(signal.isEmpty);
    signal.isEmpty = false;  // to see the members
    signal.stepErrors.clear();
    EXPECT_EQ(Dump(signal), "'' 0|0@1+ (0,0) [0|0] ''");
    EXPECT_FALSE(signal.Parse("SG_ S\n"));
    signal.Reset();
    EXPECT_EQ(signal.stepErrors, std::vector<std::uint32_t>{StepSignalName});
    EXPECT_FALSE(signal.Parse("no signal\n"));
    EXPECT_TRUE(signal.stepErrors.empty());
    EXPECT_FALSE(signal.Parse("SG_ S\n"));
    EXPECT_TRUE(signal.Parse("SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"));
    EXPECT_TRUE(signal.stepErrors.empty());
}

// One row for each beginning of the whole statement: what it is by itself, and with a line feed
// behind it, as the end of a file gives it.
struct PrefixRow {
    std::string_view prefix;
    std::string_view bare;
    std::string_view line;
};

TEST(CANSignalParse, TakesEachBeginningOfAStatementForWhatItIs) {
    constexpr std::string_view Whole = R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,B2)";
    const std::vector<PrefixRow> rows = {
        {"", "empty", "empty"},
        {"S", "empty", "empty"},
        {"SG", "empty", "empty"},
        {"SG_", "empty", "empty errors=3"},
        {"SG_ ", "empty errors=3", "empty errors=3"},
        {"SG_ S", "empty errors=3", "empty errors=3"},
        {"SG_ Sp", "empty errors=3", "empty errors=3"},
        {"SG_ Spe", "empty errors=3", "empty errors=3"},
        {"SG_ Spee", "empty errors=3", "empty errors=3"},
        {"SG_ Speed", "empty errors=3", "empty errors=3"},
        {"SG_ Speed ", "empty errors=3", "empty errors=3"},
        {"SG_ Speed m", "empty errors=3", "empty errors=3"},
        {"SG_ Speed m1", "empty errors=3", "empty errors=3"},
        {"SG_ Speed m1 ", "empty errors=3", "empty errors=3"},
        {"SG_ Speed m1 :", "empty errors=3", "empty errors=4"},
        {"SG_ Speed m1 : ", "empty errors=4", "empty errors=4"},
        {"SG_ Speed m1 : 8", "empty errors=4", "empty errors=4"},
        {"SG_ Speed m1 : 8|", "empty errors=4", "empty errors=4"},
        {"SG_ Speed m1 : 8|1", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@", "empty errors=4", "empty errors=4"},
        {"SG_ Speed m1 : 8|16@1", "empty errors=4", "empty errors=4"},
        {"SG_ Speed m1 : 8|16@1-", "empty errors=4", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- ", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.1", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.1,", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4", "empty errors=5", "empty errors=5"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4)", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) ", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5", "empty errors=6", "empty errors=6"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5]", "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] ''",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] ''"},
        {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] ", "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] ''",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] ''"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] ")",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _", "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "k)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _k",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _k"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_h",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_h"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h")",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h'",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h'"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" )",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h'",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h'"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A"},
        {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,B)",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A,B",
         "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A,B"},
    };
    ASSERT_EQ(rows.size(), Whole.size());
    for (std::size_t length = 0; length < rows.size(); ++length) {
        const PrefixRow& row = rows[length];
        ASSERT_EQ(row.prefix, Whole.substr(0, length));
        EXPECT_EQ(DumpParsed(row.prefix), row.bare) << row.prefix;
        EXPECT_EQ(DumpParsed(test::Concat(row.prefix, "\n")), row.line) << row.prefix;
    }
}

class HandleSignalStatement : public test::DatabaseTest {};

TEST_F(HandleSignalStatement, AddsTheSignalToTheLastMessage) {
    test::Feed({"BO_ 1 A: 8 N\n", "BO_ 2 B: 8 N\n"});
    EXPECT_TRUE(vexil::HandleSignalStatement("SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", 3));
    EXPECT_TRUE(vexil::HandleSignalStatement("SG_ T : 8|8@1+ (1,0) [0|1] \"\" N\n", 4));
    EXPECT_EQ(DumpDatabase(),
              "1 'A' 8 'N'\n"
              "2 'B' 8 'N'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n"
              "  'T' 8|8@1+ (1,0) [0|1] '' N\n"
              "left over: messagesById 2 definitions 0 values 0\n");
}

TEST_F(HandleSignalStatement, RecordsARefusedStatementAndKeepsNothingElseOfIt) {
    test::Feed({"BO_ 1 A: 8 N\n"});
    EXPECT_FALSE(vexil::HandleSignalStatement("SG_ S\n", 2));
    EXPECT_FALSE(vexil::HandleSignalStatement("SG_ S : x\n", 3));
    EXPECT_FALSE(vexil::HandleSignalStatement("SG_ S : 0|8@1+ (1)\n", 4));
    EXPECT_FALSE(vexil::HandleSignalStatement("SG_ S : 0|8@1+ (1,0) [0]\n", 4294967295U));
    EXPECT_EQ(DumpDatabase(),
              "1 'A' 8 'N'\n"
              "error 3 @2 'SG_ S'\n"
              "error 4 @3 'SG_ S : x'\n"
              "error 5 @4 'SG_ S : 0|8@1+ (1)'\n"
              "error 6 @4294967295 'SG_ S : 0|8@1+ (1,0) [0]'\n"
              "left over: messagesById 1 definitions 0 values 0\n");
}

TEST_F(HandleSignalStatement, RecordsNothingForAnotherStatement) {
    test::Feed({"BO_ 1 A: 8 N\n"});
    EXPECT_FALSE(vexil::HandleSignalStatement("SG_MUL_VAL_ 1 S M 0-1;\n", 1));
    EXPECT_TRUE(database.parseErrors.empty());
}

TEST_F(HandleSignalStatement, DropsTheSignalsBeyondTheLimitOfAMessageWithoutARecord) {
    test::Feed({"BO_ 1 A: 8 N\n"});
    for (int number = 0; number < 10002; ++number) {
        const std::string statement =
            test::Concat("SG_ S", std::to_string(number), " : 0|8@1+ (1,0) [0|1] \"\" N\n");
        ASSERT_TRUE(vexil::HandleSignalStatement(statement, 1)) << statement;
    }
    ASSERT_EQ(database.messages[0]->signals.size(), 10000U);
    EXPECT_EQ(database.messages[0]->signals.back()->name, "S9999");
    EXPECT_TRUE(database.parseErrors.empty());
    test::Feed({"BO_ 2 B: 8 N\n", "SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"});
    EXPECT_EQ(database.messages[1]->signals.size(), 1U);
}

}  // namespace
}  // namespace vexil
