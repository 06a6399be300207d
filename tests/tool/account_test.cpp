// What the account says of statements: causes with their details, one row for each.
// SPDX-License-Identifier: MIT
#include "account/account.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tool/experiment.h"

namespace vexil::test {
namespace {

// Each statement as "line:column keyword cause (detail)".
std::vector<std::string> AccountOf(const std::string& text) {
    Experiment experiment;
    const tool::Snapshot snapshot = experiment.Read(text);
    const tool::SourceText source(text);
    std::vector<std::string> shown;
    for (const tool::AccountedStatement& each : MakeAccount(source, snapshot).statements) {
        shown.push_back(std::to_string(each.line) + ":" + std::to_string(each.column) + " " +
                        std::string(each.keyword) + " " + std::string(NameOf(each.cause)) +
                        (each.detail.empty() ? "" : " (" + each.detail + ")"));
    }
    return shown;
}

using Shown = std::vector<std::string>;

const std::string Message = "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|255] \"\" N\n";

TEST(Account, CountsTheSignalsThatWentWithARefusedMessage) {
    EXPECT_EQ(
        AccountOf("\nBO_ x A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n\n"
                  " SG_ T : 0|8@1+ (1,0) [0|1] \"\" N\n"),
        (Shown{"2:1 BO_ message-id (the form is BO_ 291 Engine: 8 ECU1; 2 signals went with it)",
               "3:2 SG_ signal-of-refused-message (the message in line 2)",
               "5:2 SG_ signal-of-refused-message (the message in line 2)"}));
}

TEST(Account, TellsARefusedStatementFromAnEqualFrontOnTheSameLine) {
    EXPECT_EQ(AccountOf("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n\nSG_  SG_ T : 0|8\n"),
              (Shown{"1:1 BO_ kept", "2:2 SG_ kept",
                     "4:1 SG_ signal-name (the form is SG_ Speed : 0|16@1+ (0.1,0) [0|250] "
                     "\"km/h\" ECU1; 1 signal went with it)",
                     "4:6 SG_ signal-after-refused-signal (after SG_ in line 4)"}));
}

// A parse error has the first 254 bytes of its statement.
TEST(Account, TellsARefusedStatementFromAnEqualFrontOnAnotherLine) {
    const std::string signal = " SG_ " + std::string(252, 'S');
    const Shown account = AccountOf("BO_ 1 A: 8 N\n" + signal + " : 0|8@1+ (1,0) [0|1] \"\" N\n" +
                                    signal + " : 0|8@2+\n");
    ASSERT_EQ(account.size(), 3U);
    EXPECT_TRUE(account[1].starts_with("2:2 SG_ name-cut ")) << account[1];
    EXPECT_TRUE(account[2].starts_with("3:2 SG_ signal-layout ")) << account[2];
}

TEST(Account, NamesTheStatementThatSwallowedAnother) {
    EXPECT_EQ(
        AccountOf("BA_ \"BusType\" \"CAN\"\n" + Message),
        (Shown{"1:1 BA_ attribute-not-defined (BusType)", "2:1 BO_ swallowed (by BA_ in line 1)",
               "3:2 SG_ signal-of-dropped-message (the message in line 2)"}));
}

TEST(Account, SaysThatACommentWithItsOwnerSwallowsNothing) {
    EXPECT_EQ(AccountOf(Message + "CM_ BO_ 1 \"a\"\nBO_ 2 B: 8 N\n"),
              (Shown{"1:1 BO_ kept", "2:2 SG_ kept", "3:1 CM_ kept", "4:1 BO_ kept"}));
}

TEST(Account, NamesWhatEndedTheSignals) {
    EXPECT_EQ(AccountOf(Message + "BU_ : N\n SG_ T : 0|8@1+ (1,0) [0|1] \"\" N\n").back(),
              "4:2 SG_ signal-after-statement (after BU_ in line 3)");
}

TEST(Account, NamesTheKeywordThatCutsAStatement) {
    EXPECT_EQ(AccountOf("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"a VAL_ b\" N\n"
                        " SG_ T : 0|8@1+ (1,0) [0|1] \"\" N\n"),
              (Shown{"1:1 BO_ kept", "2:2 SG_ cut-at-keyword (at VAL_ in line 2)",
                     "3:2 SG_ signal-after-statement (after SG_ in line 2)"}));
}

TEST(Account, SaysWhereTheDroppedDefinitionOfAnAttributeIs) {
    EXPECT_EQ(
        AccountOf(Message + "BA_DEF_ SG_ \"GenSigStartValue\" HEX 0 9;\n"
                            "BA_ \"GenSigStartValue\" SG_ 1 S 1;\n"),
        (Shown{"1:1 BO_ kept", "2:2 SG_ kept",
               "3:1 BA_DEF_ attribute-type (GenSigStartValue is kept as INT of signals)",
               "4:1 BA_ attribute-not-defined (GenSigStartValue; its definition in line 3 was "
               "dropped)"}));
}

TEST(Account, ReportsWhichEncodingInvalidBytesLookLike) {
    EXPECT_EQ(AccountOf("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\xB0"
                        "C\" N\xE4\n")[1],
              "2:2 SG_ invalid-utf8 (line 2, column 30: byte B0 looks like \"\xC2\xB0\" of "
              "Windows-1252; 2 such bytes in the statement)");
}

TEST(Account, FindsTheSignalsOfBothMessagesWithOneId) {
    EXPECT_EQ(
        AccountOf(Message + "BO_ 1 B: 8 N\n SG_ T : 0|32@1- (1,0) [0|1] \"\" N\n"
                            "SIG_VALTYPE_ 1 T : 1;\nSIG_VALTYPE_ 1 S : 1;\n"),
        (Shown{"1:1 BO_ kept", "2:2 SG_ kept", "3:1 BO_ kept", "4:2 SG_ kept",
               "5:1 SIG_VALTYPE_ kept", "6:1 SIG_VALTYPE_ value-type-length (type 1 on 8 bits)"}));
}

TEST(Account, SaysOfAttributesWhetherTheySayAnything) {
    EXPECT_EQ(
        AccountOf(Message + "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n"
                            "BA_DEF_DEF_ \"GenMsgCycleTime\" 5;\n"
                            "BA_ \"GenMsgCycleTime\" BO_ 1 5;\n"
                            "BO_ 2 B: 8 N\n"
                            "BA_ \"GenMsgCycleTime\" BO_ 2 6;\n"
                            "BA_ \"GenMsgCycleTime\" BO_ 3 7;\n"),
        (Shown{"1:1 BO_ kept", "2:2 SG_ kept", "3:1 BA_DEF_ kept",
               "4:1 BA_DEF_DEF_ kept-without-effect (it says what holds without it)",
               "5:1 BA_ kept-without-effect (the value is what holds without it)", "6:1 BO_ kept",
               "7:1 BA_ kept", "8:1 BA_ unknown-message (no message has the id 3)"}));
}

TEST(Account, CountsStatementsByFateAndCause) {
    Experiment experiment;
    const std::string text = "VERSION \"\"\nBO_ x A: 8 N\n" + Message + "CM_ BO_ 9 \"a\";\n";
    const tool::Snapshot snapshot = experiment.Read(text);
    const tool::SourceText source(text);
    const tool::Account account = MakeAccount(source, snapshot);
    EXPECT_EQ(account.CountsByFate(), (std::array<std::size_t, 5>{1, 1, 0, 1, 2}));
    EXPECT_EQ(account.CountsByCause(),
              (std::map<tool::Cause, std::size_t>{{tool::Cause::MessageId, 1},
                                                  {tool::Cause::UnknownMessage, 1},
                                                  {tool::Cause::Version, 1},
                                                  {tool::Cause::Kept, 2}}));
}

}  // namespace
}  // namespace vexil::test
