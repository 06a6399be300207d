// Tests of the read driver: which handler sees which statement, when signals find their message,
// and what a read leaves and returns.
// SPDX-License-Identifier: MIT
#include "read/read_driver.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"
#include "text/keywords.h"

namespace vexil {
namespace {

using test::Concat;
using test::DumpDatabase;
using test::GoodRead;
using test::ReadPath;
using test::ReadResult;
using test::ReadText;

class ReadDbcFile : public test::DatabaseTest {};

TEST_F(ReadDbcFile, ReadsAFileWithoutStatementsAsAnEmptyDatabase) {
    for (const std::string_view text : {"", "\n", "\n \n\t\n", "no keyword\n", "BO_1 x: 8\n"}) {
        EXPECT_EQ(ReadText(text), GoodRead) << text;
        EXPECT_EQ(DumpDatabase(), "") << text;
    }
}

TEST_F(ReadDbcFile, HandlesAStatementWithoutALineEnd) {
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N"), GoodRead);
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n");
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N"), GoodRead);
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n  'S' 0|8@1+ (1,0) [0|1] '' N\n");
    EXPECT_EQ(ReadText("BO_"), GoodRead);
    EXPECT_EQ(DumpDatabase(), "error 0 @0 'BO_'\n");
}

// -- Opening --

TEST_F(ReadDbcFile, ReturnsAStreamErrorWhenReadingFails) {
    const test::TempFolder folder;
    EXPECT_EQ(ReadPath(folder.File("")), (ReadResult{false, StateStreamError}));
    EXPECT_EQ(DumpDatabase(), "");
}

// -- Signals and their message --

// A signal after a statement shows whether the statement left the message open for signals.
constexpr std::string_view Probe = " SG_ Probe : 0|8@1+ (1,0) [0|1] \"\" N\n";
constexpr std::string_view ProbeLine = "  'Probe' 0|8@1+ (1,0) [0|1] '' N\n";
constexpr std::string_view Open = "BO_ 1 A: 8 N\n";
constexpr std::string_view Closed = "BO_ 1 A: 8 N\nBU_ :\n";

TEST_F(ReadDbcFile, OpensAMessageWithEachGoodMessageStatement) {
    for (const std::string_view before : {Open, Closed}) {
        ReadText(Concat(before, "BO_ 2 B: 8 N\n", Probe));
        EXPECT_EQ(DumpDatabase(), Concat("1 'A' 8 'N'\n2 'B' 8 'N'\n", ProbeLine)) << before;
    }
    ReadText(Concat("BO_ 2 B: 8 N\n", Probe));
    EXPECT_EQ(DumpDatabase(), Concat("2 'B' 8 'N'\n", ProbeLine));
}

TEST_F(ReadDbcFile, ClosesTheMessageWithEachRefusedMessageStatement) {
    for (const std::string_view before : {Open, Closed}) {
        ReadText(Concat(before, "BO_ 2 B\n", Probe));
        EXPECT_EQ(DumpDatabase(),
                  Concat("1 'A' 8 'N'\nerror 1 @", before == Open ? "2" : "3", " 'BO_ 2 B\\n'\n"))
            << before;
    }
}

TEST_F(ReadDbcFile, KeepsTheMessageOpenAfterAValidSignal) {
    ReadText(Concat(Open, "SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", Probe));
    EXPECT_EQ(DumpDatabase(), Concat("1 'A' 8 'N'\n  'S' 0|8@1+ (1,0) [0|1] '' N\n", ProbeLine));
}

TEST_F(ReadDbcFile, ClosesTheMessageAfterARefusedSignal) {
    ReadText(Concat(Open, "SG_ S\n", Probe));
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\nerror 3 @2 'SG_ S\\n'\n");
}

TEST_F(ReadDbcFile, IgnoresSignalsWhileNoMessageIsOpen) {
    ReadText(Concat(Closed, "SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", "SG_ bad\n", Probe));
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n");
    ReadText(Concat("SG_ bad\n", Probe, Open));
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n");
}

TEST_F(ReadDbcFile, ClosesTheMessageWithAStatementOfAnyOtherKeyword) {
    for (const KeywordRow& row : keywordTable) {
        if (row.keyword == keyword::BO_ || row.keyword == keyword::SG_) {
            continue;
        }
        for (const std::string_view before : {Open, Closed}) {
            ReadText(Concat(before, row.keyword, " \"x\";\n", Probe));
            EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n") << before << row.keyword;
        }
    }
}

TEST_F(ReadDbcFile, KeepsAFullMessageOpenUntilTheNextStatementOfAnotherKind) {
    std::string text(Open);
    for (int number = 0; number < 10001; ++number) {
        text += "SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n";
    }
    ReadText(Concat(text, "SG_ bad\n", Probe, "BO_ 2 B: 8 N\n", Probe));
    ASSERT_EQ(database.messages.Size(), 2U);
    EXPECT_EQ(database.messages[0].signals.Size(), 10000U);
    EXPECT_EQ(database.messages[1].signals.Size(), 1U);
    ASSERT_EQ(database.parseErrors.Size(), 1U);
    EXPECT_EQ(database.parseErrors[0].line, 10003U);
}

// -- Handlers --

TEST_F(ReadDbcFile, PassesEachKindOfStatementToItsHandlerOrDropsIt) {
    // The ends of the dumps of message 1 and its signals S and F.
    struct Row {
        std::string_view statement;
        std::string_view info;
        std::string_view message;
        std::string_view signal;
        std::string_view type;
    };
    std::vector<Row> rows = {
        {"CM_ BO_ 1 \"c\";", "", " comment='c'", "", "-"},
        {"CM_ SG_ 1 S \"c\";", "", "", " comment='c'", "-"},
        {"SIG_VALTYPE_ 1 F : 1;", "", "", "", "f"},
        {"VAL_ 1 S 0 \"off\";", "", "", " enums={0:'off'}", "-"},
        {"BA_DEF_ \"BusType\" STRING;\nBA_DEF_DEF_ \"BusType\" \"CAN FD\";", "info 0/1\n", "", "",
         "-"},
        {"BA_DEF_ \"BusType\" STRING;\nBA_ \"BusType\" \"CAN FD\";", "info 0/1\n", "", "", "-"},
    };
    for (const std::string_view dropped :
         {"CM_ \"c\";", "CM_ BU_ N \"c\";", "CM_ EV_ V \"c\";", "VERSION \"1\"", "NS_ :", "BS_: 1",
          "BS_ : 1", "BU_ : N M", "EV_ V: 0 [0|1] \"\" 0 1 N N;", "VAL_TABLE_ T 0 \"off\";",
          "BO_TX_BU_ 1 : N,M;", "SG_MUL_VAL_ 1 S F 0-1;", "SIG_GROUP_ 1 G 1 : S F;",
          "BA_DEF_REL_ BU_SG_REL_ \"BusType\" STRING;", "BA_REL_ \"BusType\" \"CAN FD\";"}) {
        rows.push_back({dropped, "", "", "", "-"});
    }
    for (const Row& row : rows) {
        database.info.busType = BusClassicCan;
        ReadText(
            Concat("BO_ 1 A: 8 N\n"
                   " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
                   " SG_ F : 8|32@1- (1,0) [0|1] \"\" N\n"
                   "BU_ :\n",
                   row.statement, "\n"));
        EXPECT_EQ(DumpDatabase(),
                  Concat(row.info, "1 'A' 8 'N'", row.message, "\n  'S' 0|8@1+ (1,0) [0|1] '' N",
                         row.signal, "\n  'F' 8|32@1", row.type, " (1,0) [0|1] '' N\n"))
            << row.statement;
    }
}

TEST_F(ReadDbcFile, DropsStatementsBeforeTheirMessage) {
    ReadText(
        "CM_ BO_ 1 \"c\";\n"
        "VAL_ 1 F 0 \"off\";\n"
        "SIG_VALTYPE_ 1 F : 1;\n"
        "BO_ 1 A: 8 N\n"
        " SG_ F : 8|32@1- (1,0) [0|1] \"\" N\n");
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n  'F' 8|32@1- (1,0) [0|1] '' N\n");
}

TEST_F(ReadDbcFile, AppliesAttributesBeforeAndAfterMessages) {
    constexpr std::string_view Attributes =
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
        "BA_DEF_DEF_ \"GenMsgCycleTime\" 7;\n"
        "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n";
    constexpr std::string_view Messages = "BO_ 1 A: 8 N\nBO_ 2 B: 8 N\n";
    constexpr std::string_view Dumped = "1 'A' 8 'N' cycle=100\n2 'B' 8 'N' cycle=7\n";
    ReadText(Concat(Attributes, Messages));
    EXPECT_EQ(DumpDatabase(), Dumped);
    ReadText(Concat(Messages, Attributes));
    EXPECT_EQ(DumpDatabase(), Dumped);
    ReadText(
        "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"
        "BA_DEF_DEF_ \"GenMsgCycleTime\" 7;\n"
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
        "BO_ 1 A: 8 N\n");
    EXPECT_EQ(DumpDatabase(), "1 'A' 8 'N'\n");
}

// -- What a read leaves --

// Such a read empties no tables.
TEST_F(ReadDbcFile, ClearsTablesLeftByAReadThatRanOutOfMemory) {
    CANMessage message;
    database.owners.AddMessage(message);
    database.attributes.AddDefinition({});
    EXPECT_EQ(ReadPath("/missing/net.dbc"), (ReadResult{false, StateOpenFailed}));
    EXPECT_EQ(database.owners.FindMessage(0), nullptr);
    EXPECT_TRUE(database.attributes.definitions.empty());
}

TEST_F(ReadDbcFile, ReplacesTheDatabaseButKeepsTheBusType) {
    ReadText(
        "BO_ 1 A: 8 N\nBO_ x\n"
        "BA_DEF_ \"BusType\" STRING ;\nBA_DEF_DEF_ \"BusType\" \"CAN FD\";\n"
        "BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_DEF_DEF_ \"J1939PGN\" 1;\n");
    EXPECT_EQ(DumpDatabase(), "info 1/1\n1 'A' 8 'N'\nerror 0 @2 'BO_ x'\n");
    ReadText("BO_ 2 B: 8 N\n");
    EXPECT_EQ(DumpDatabase(), "info 0/1\n2 'B' 8 'N'\n");
    ReadText("BA_DEF_ \"BusType\" STRING ;\n");
    EXPECT_EQ(DumpDatabase(), "");
}

TEST_F(ReadDbcFile, LineOfAnErrorIsTheLineBeforeTheNextKeyword) {
    EXPECT_EQ(ReadText("\n\nBO_ a\n\n\nBO_ b\nstray\nBO_ c\nBO_ d\n\n"), GoodRead);
    EXPECT_EQ(DumpDatabase(),
              "error 0 @5 'BO_ a\\n\\n'\n"
              "error 0 @7 'BO_ b\\nstray'\n"
              "error 0 @8 'BO_ c'\n"
              "error 0 @9 'BO_ d\\n'\n");
}

}  // namespace
}  // namespace vexil
