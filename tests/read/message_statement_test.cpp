// Tests of BO_ statements: what they leave in a message, what is refused, and where the message
// goes.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
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

struct Row {
    std::string_view statement;
    std::string_view message;  // its dump
};

std::string DumpParsed(std::string_view statement) {
    CANMessage message;
    message.Parse(statement);
    return Dump(message);
}

void CheckRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(DumpParsed(row.statement), row.message) << row.statement;
    }
}

TEST(CANMessageParse, TakesIdNameSizeAndTransmitter) {
    CheckRows({
        {"BO_ 291 Engine: 8 ECU1\n", "291 'Engine' 8 'ECU1'"},
        {" \n\tBO_\f\v291\r\nEngine:\n8\nECU1\n\n", "291 'Engine' 8 'ECU1'"},
        {"BO_ 291 Engine:8 ECU1", "291 'Engine' 8 'ECU1'"},
        {"BO_ 291 Engine : 8 ECU1", "291 'Engine' 8 'ECU1'"},
    });
}

TEST(CANMessageParse, TakesAnyIdOf32BitsThatIsDigitsOnly) {
    CheckRows({
        {"BO_ 0 M: 8 N\n", "0 'M' 8 'N'"},
        {"BO_ 007 M: 8 N\n", "7 'M' 8 'N'"},
        {"BO_ 2147483748 M: 8 N\n", "2147483748 'M' 8 'N'"},
        {"BO_ 4294967295 M: 8 N\n", "4294967295 'M' 8 'N'"},
        {"BO_ 4294967296 M: 8 N\n", "empty errors=0"},
        {"BO_ 99999999999999999999 M: 8 N\n", "empty errors=0"},
        {"BO_ +1 M: 8 N\n", "empty errors=0"},
        {"BO_ -1 M: 8 N\n", "empty errors=0"},
        {"BO_ 0x1 M: 8 N\n", "empty errors=0"},
        {"BO_ 1a M: 8 N\n", "empty errors=0"},
        {"BO_ 100: 8 N\n", "empty errors=0"},
        {"BO_ : 8 N\n", "empty errors=0"},
        {"BO_ Name 1: 8 N\n", "empty errors=0"},
        {"BO_ 1", "empty errors=0"},
        {"BO_ \n", "empty errors=0"},
    });
}

TEST(CANMessageParse, TakesAllInFrontOfTheFirstColonAsTheName) {
    CheckRows({
        {"BO_ 1 Two Words: 8 N\n", "1 'Two_Words' 8 'N' long='Two Words'"},
        {"BO_ 1 \tTwo \n\t Words\r: 8 N\n",
         R"(1 'Two____Words' 8 'N' long='Two    Words' raw='Two \n\t Words')"},
        {"BO_ 1 3rd: 8 N\n", "1 '_rd' 8 'N' long='3rd'"},
        {"BO_ 1 Gr\xC3\xB6\xC3\x9F"
         "e: 8 N\n",
         "1 'Gr__e' 8 'N' long='Gr\xC3\xB6\xC3\x9F"
         "e'"},
        {"BO_ 1 abcdefghijklmnopqrstuvwxyz012345: 8 N\n",
         "1 'abcdefghijklmnopqrstuvwxyz012345' 8 'N'"},
        {"BO_ 1 abcdefghijklmnopqrstuvwxyz0123456: 8 N\n",
         "1 'abcdefghijklmnopqrstuvwxyz012345' 8 'N' long='abcdefghijklmnopqrstuvwxyz0123456'"},
        {"BO_ 1 \"Q\": 8 N\n", "1 '_Q_' 8 'N' long='\"Q\"'"},
        {"BO_ 1 A:B: 8 N\n", "empty errors=2"},
        {"BO_ 1 : 8 N\n", "empty errors=1"},
        {"BO_ 1 \t\n : 8 N\n", "empty errors=1"},
        {"BO_ 1 A 8 N\n", "empty errors=1"},
        {"BO_ 1 \n", "empty errors=1"},
    });
}

TEST(CANMessageParse, TakesTheNumberDirectlyBehindTheColonAsTheSize) {
    CheckRows({
        {"BO_ 1 M: 0 N\n", "1 'M' 0 'N'"},
        {"BO_ 1 M: 300 N\n", "1 'M' 300 'N'"},
        {"BO_ 1 M: 008 N\n", "1 'M' 8 'N'"},
        {"BO_ 1 M: \r\n\t 8 N\n", "1 'M' 8 'N'"},
        {"BO_ 1 M: 4294967295 N\n", "1 'M' 4294967295 'N'"},
        {"BO_ 1 M: 4294967296 N\n", "empty errors=2"},
        {"BO_ 1 M:\n", "empty errors=2"},
        {"BO_ 1 M:", "empty errors=2"},
        {"BO_ 1 M: N\n", "empty errors=2"},
        {"BO_ 1 M: N 8\n", "empty errors=2"},
        {"BO_ 1 M: x8 N\n", "empty errors=2"},
        {"BO_ 1 M: -8 N\n", "empty errors=2"},
        {"BO_ 1 M: +8 N\n", "empty errors=2"},
        {"BO_ 1 M: : 8 N\n", "empty errors=2"},
    });
}

TEST(CANMessageParse, TakesAllBehindTheSizeAsTheTransmitter) {
    CheckRows({
        {"BO_ 1 M: 8", "1 'M' 8 ''"},
        {"BO_ 1 M: 8\n", "1 'M' 8 ''"},
        {"BO_ 1 M: 8 \t\n \n", "1 'M' 8 ''"},
        {"BO_ 1 M: 8ECU\n", "1 'M' 8 'ECU'"},
        {"BO_ 1 M: 8.5 N\n", "1 'M' 8 '_5_N'"},
        {"BO_ 1 M: 8 A B\n", "1 'M' 8 'A_B'"},
        {"BO_ 1 M: 8 A,B\n", "1 'M' 8 'A_B'"},
        {"BO_ 1 M: 8 A\nstray text;\n", "1 'M' 8 'A_stray_text_'"},
        {"BO_ 1 M: 8 1st\n", "1 'M' 8 '_st'"},
        {"BO_ 1 M: 8 Marrowby\n", "1 'M' 8 'Marrowby'"},
        {"BO_ 1 M: 8 N\xC3\xB6rd\n", "1 'M' 8 'N_rd'"},
        {"BO_ 1 M: 8 abcdefghijklmnopqrstuvwxyz0123456\n",
         "1 'M' 8 'abcdefghijklmnopqrstuvwxyz012345'"},
    });
}

TEST(CANMessageParse, MissesATransmitterOfOneLetterThatEndsTheTextBehindTheSize) {
    CheckRows({
        {"BO_ 1 M: 8X", "1 'M' 8 ''"},
        {"BO_ 1 M: 8X\n", "1 'M' 8 'X'"},
        {"BO_ 1 M: 8 X", "1 'M' 8 'X'"},
    });
}

TEST(CANMessageParse, RefusesATextWithoutTheKeywordAndGivesNoCode) {
    CheckRows({
        {"", "empty"},
        {" \n", "empty"},
        {"BO_", "empty"},
        {"BO_1 M: 8 N\n", "empty"},
        {"BO_:\n", "empty"},
        {"bo_ 1 M: 8 N\n", "empty"},
        {"BO_TX_BU_ 1 : A,B;\n", "empty"},
        {"SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", "empty"},
    });
}

TEST(CANMessageParse, ResetsWhatWasThereBefore) {
    CANMessage message;
    ASSERT_TRUE(message.Parse("BO_ 1 Two Words: 8 N\n"));
    message.comment = "c";
    message.sendType = "s";
    message.cycleTime = 5;
    message.AddSignal(std::make_shared<CANSignal>());
    EXPECT_TRUE(message.Parse("BO_ 2 M: 1\n"));
    EXPECT_EQ(Dump(message), "2 'M' 1 ''");
    EXPECT_TRUE(message.signals.empty());
}

TEST(CANMessageParse, KeepsTheCodeOfAFailureThroughItsResetUntilTheNextParse) {
    CANMessage message;
    EXPECT_FALSE(message.Parse("BO_ 1 M: 4294967296 N\n"));
    EXPECT_EQ(message.stepErrors, std::vector<std::uint32_t>{StepMessageSize});
    EXPECT_EQ(message.id, 0U);
    EXPECT_EQ(message.name, "");
    EXPECT_EQ(message.longName, "");
    EXPECT_EQ(message.rawName, "");
    EXPECT_EQ(message.dlc, 0U);
    message.Reset();
    EXPECT_EQ(message.stepErrors, std::vector<std::uint32_t>{StepMessageSize});
    EXPECT_FALSE(message.Parse("no message\n"));
    EXPECT_TRUE(message.stepErrors.empty());
    EXPECT_FALSE(message.Parse("BO_ x\n"));
    EXPECT_TRUE(message.Parse("BO_ 1 M: 8 N\n"));
    EXPECT_TRUE(message.stepErrors.empty());
}

// One row for each beginning of the whole statement: what it is by itself, and with a line feed
// behind it, as the end of a file gives it.
struct PrefixRow {
    std::string_view prefix;
    std::string_view bare;
    std::string_view line;
};

TEST(CANMessageParse, TakesEachBeginningOfAStatementForWhatItIs) {
    constexpr std::string_view Whole = "BO_ 291 Engine: 8 ECU1";
    const std::vector<PrefixRow> rows = {
        {"", "empty", "empty"},
        {"B", "empty", "empty"},
        {"BO", "empty", "empty"},
        {"BO_", "empty", "empty errors=0"},
        {"BO_ ", "empty errors=0", "empty errors=0"},
        {"BO_ 2", "empty errors=0", "empty errors=1"},
        {"BO_ 29", "empty errors=0", "empty errors=1"},
        {"BO_ 291", "empty errors=0", "empty errors=1"},
        {"BO_ 291 ", "empty errors=1", "empty errors=1"},
        {"BO_ 291 E", "empty errors=1", "empty errors=1"},
        {"BO_ 291 En", "empty errors=1", "empty errors=1"},
        {"BO_ 291 Eng", "empty errors=1", "empty errors=1"},
        {"BO_ 291 Engi", "empty errors=1", "empty errors=1"},
        {"BO_ 291 Engin", "empty errors=1", "empty errors=1"},
        {"BO_ 291 Engine", "empty errors=1", "empty errors=1"},
        {"BO_ 291 Engine:", "empty errors=2", "empty errors=2"},
        {"BO_ 291 Engine: ", "empty errors=2", "empty errors=2"},
        {"BO_ 291 Engine: 8", "291 'Engine' 8 ''", "291 'Engine' 8 ''"},
        {"BO_ 291 Engine: 8 ", "291 'Engine' 8 ''", "291 'Engine' 8 ''"},
        {"BO_ 291 Engine: 8 E", "291 'Engine' 8 'E'", "291 'Engine' 8 'E'"},
        {"BO_ 291 Engine: 8 EC", "291 'Engine' 8 'EC'", "291 'Engine' 8 'EC'"},
        {"BO_ 291 Engine: 8 ECU", "291 'Engine' 8 'ECU'", "291 'Engine' 8 'ECU'"},
    };
    ASSERT_EQ(rows.size(), Whole.size());
    for (std::size_t length = 0; length < rows.size(); ++length) {
        const PrefixRow& row = rows[length];
        ASSERT_EQ(row.prefix, Whole.substr(0, length));
        EXPECT_EQ(DumpParsed(row.prefix), row.bare) << row.prefix;
        EXPECT_EQ(DumpParsed(test::Concat(row.prefix, "\n")), row.line) << row.prefix;
    }
}

class HandleMessageStatement : public test::DatabaseTest {};

TEST_F(HandleMessageStatement, AddsTheMessageToTheListAndUnderItsId) {
    EXPECT_TRUE(vexil::HandleMessageStatement("BO_ 5 A: 8 N\n", 1));
    EXPECT_TRUE(vexil::HandleMessageStatement("BO_ 7 B: 8 N\n", 2));
    EXPECT_TRUE(vexil::HandleMessageStatement("BO_ 5 C: 8 N\n", 3));
    EXPECT_EQ(DumpDatabase(),
              "5 'A' 8 'N'\n"
              "7 'B' 8 'N'\n"
              "5 'C' 8 'N'\n"
              "left over: messagesById 2 definitions 0 values 0\n");
    const MessageList& all = database.messages;
    EXPECT_EQ(database.messagesById.Find(5)->Messages(), (MessageList{all[0], all[2]}));
    EXPECT_EQ(database.messagesById.Find(7)->Messages(), (MessageList{all[1]}));
}

TEST_F(HandleMessageStatement, RecordsARefusedStatementAndKeepsNothingElseOfIt) {
    EXPECT_FALSE(vexil::HandleMessageStatement("BO_ x M: 8 N\n", 3));
    EXPECT_FALSE(vexil::HandleMessageStatement("BO_ 1 M 8 N\n", 4));
    EXPECT_FALSE(vexil::HandleMessageStatement("BO_ 1 M:\n", 4294967295U));
    EXPECT_EQ(DumpDatabase(),
              "error 0 @3 'BO_ x M: 8 N'\n"
              "error 1 @4 'BO_ 1 M 8 N'\n"
              "error 2 @4294967295 'BO_ 1 M:'\n");
}

TEST_F(HandleMessageStatement, RecordsNothingForAnotherStatement) {
    EXPECT_FALSE(vexil::HandleMessageStatement("BO_TX_BU_ 1 : A,B;\n", 1));
    EXPECT_FALSE(vexil::HandleMessageStatement("", 1));
    EXPECT_EQ(DumpDatabase(), "");
}

TEST_F(HandleMessageStatement, ReachesAllMessagesOfAnIdWithACommentButOnlyTheLastWithASignal) {
    test::ReadText(
        "BO_ 5 A: 8 N\n"
        "BO_ 5 B: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
        "CM_ BO_ 5 \"both\";\n");
    EXPECT_EQ(DumpDatabase(),
              "5 'A' 8 'N' comment='both'\n"
              "5 'B' 8 'N' comment='both'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n");
}

}  // namespace
}  // namespace vexil
