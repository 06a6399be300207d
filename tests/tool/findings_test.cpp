// What is found of files as a whole, of layouts and of rewrites.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "account/account.h"
#include "tool/experiment.h"

namespace vexil::test {
namespace {

using Shown = std::vector<std::string>;

Shown Show(const std::vector<tool::Finding>& findings) {
    Shown shown;
    for (const tool::Finding& each : findings) {
        shown.push_back(std::to_string(each.line) + " " + std::string(NameOf(each.cause)) +
                        (each.detail.empty() ? "" : " (" + each.detail + ")"));
    }
    return shown;
}

class Findings : public testing::Test {
  protected:
    Shown OfFile(const std::string& text) {
        const tool::Snapshot snapshot = experiment.Read(text);
        return Show(MakeAccount(tool::SourceText(text), snapshot).fileFindings);
    }

    Shown OfLayout(const std::string& text) {
        const tool::Snapshot snapshot = experiment.Read(text);
        const tool::SourceText source(text);
        return Show(FindLayoutFaults(MakeAccount(source, snapshot), snapshot));
    }

    Shown OfRewrite(const std::string& text) {
        const tool::Snapshot snapshot = experiment.Read(text);
        const tool::SourceText source(text);
        return Show(FindRewriteLosses(MakeAccount(source, snapshot), snapshot));
    }

    static std::string Signal(const std::string& name, const std::string& layout,
                              const std::string& range = "(1,0) [0|0]") {
        return " SG_ " + name + " : " + layout + " " + range + " \"\" N\n";
    }

    Experiment experiment;
};

TEST_F(Findings, OfAnOrdinaryFileAreNone) {
    const std::string text = "BO_ 1 A: 8 N\n" + Signal("S", "0|8@1+") + Signal("T", "8|8@1+");
    EXPECT_EQ(OfFile(text), Shown());
    EXPECT_EQ(OfLayout(text), Shown());
    EXPECT_EQ(OfRewrite(text), Shown());
}

TEST_F(Findings, OfAFileAreIdsAndNamesThatAreNotUnique) {
    EXPECT_EQ(
        OfFile("BO_ 1 A: 8 N\nBO_ 2 A: 8 N\nBO_ 1 B: 8 N\n"),
        (Shown{"2 same-message-name (A as in line 1)", "3 same-message-id (id 1 as in line 1)"}));
}

TEST_F(Findings, OfAFileAreNamesThatTheNextWriteNumbers) {
    EXPECT_EQ(
        OfFile("BO_ 1 A: 8 N\n" + Signal("S-1", "0|8@1+") + Signal("S+1", "8|8@1+") +
               Signal("T", "16|8@1+") + Signal("T", "24|8@1+")),
        (Shown{"3 names-numbered (S_1 as in line 2)", "5 same-signal-name (T as in line 4)"}));
}

TEST_F(Findings, OfAFileAreCommentsThatDouble) {
    EXPECT_EQ(OfFile("BO_ 1 A: 8 N\n" + Signal("S", "0|8@1+") + "BO_ 1 B: 8 N\n" +
                     Signal("S", "0|8@1+") + Signal("T", "8|8@1+") + "CM_ SG_ 1 S \"a\";\n"),
              (Shown{"3 same-message-id (id 1 as in line 1)",
                     "4 comments-double (signal S of message 1)"}));
    EXPECT_EQ(OfFile("BO_ 1 A: 8 N\nBO_ 1 B: 8 N\nCM_ BO_ 1 \"a\";\n"),
              (Shown{"2 same-message-id (id 1 as in line 1)", "2 comments-double (message 1)"}));
}

TEST_F(Findings, OfALayoutAreOverlapsInBothByteOrders) {
    EXPECT_EQ(OfLayout("BO_ 1 A: 8 N\n" + Signal("S", "0|8@1+") + Signal("T", "7|4@0+")),
              (Shown{"3 signals-overlap (T with S in line 2)"}));
    EXPECT_EQ(OfLayout("BO_ 1 A: 8 N\n" + Signal("S", "7|16@0+") + Signal("T", "16|8@1+")),
              Shown());
    EXPECT_EQ(OfLayout("BO_ 1 A: 8 N\n" + Signal("S", "3|8@0+") + Signal("T", "12|4@1+")),
              (Shown{"3 signals-overlap (T with S in line 2)"}));
    EXPECT_EQ(OfLayout("BO_ 1 A: 8 N\n" + Signal("S", "3|8@0+") + Signal("T", "8|4@1+")), Shown());
}

TEST_F(Findings, OfALayoutLetSignalsOfOtherSelectorValuesShareBits) {
    const std::string selector = "BO_ 1 A: 8 N\n" + Signal("M0 M", "0|8@1+");
    EXPECT_EQ(OfLayout(selector + Signal("S m0", "8|8@1+") + Signal("T m1", "8|8@1+")), Shown());
    EXPECT_EQ(OfLayout(selector + Signal("S m1", "8|8@1+") + Signal("T m1", "8|8@1+")),
              (Shown{"4 signals-overlap (T with S in line 3)"}));
    EXPECT_EQ(OfLayout(selector + Signal("S m1", "0|8@1+")),
              (Shown{"3 signals-overlap (S with M0 in line 2)"}));
}

TEST_F(Findings, OfALayoutAreSignalsOutsideTheirMessage) {
    EXPECT_EQ(OfLayout("BO_ 1 A: 1 N\n" + Signal("S", "0|8@1+") + Signal("T", "8|1@1+")),
              (Shown{"3 signal-outside-message (T reaches byte 2 of 1)"}));
    EXPECT_EQ(OfLayout("BO_ 3221225472 Independent: 0 N\n" + Signal("S", "0|8@1+")), Shown());
}

TEST_F(Findings, OfALayoutAreMultiplexedSignalsWithoutASelector) {
    EXPECT_EQ(OfLayout("BO_ 1 A: 8 N\n" + Signal("S m0", "0|8@1+") + Signal("T m1", "0|8@1+")),
              (Shown{"2 multiplexed-without-selector (message 1)"}));
}

TEST_F(Findings, OfALayoutAreRangesThatNoRawValueReaches) {
    const std::string message = "BO_ 1 A: 8 N\n";
    EXPECT_EQ(OfLayout(message + Signal("S", "0|8@1+", "(1,0) [0|256]")), Shown());
    EXPECT_EQ(OfLayout(message + Signal("S", "0|8@1+", "(1,0) [0|257]")),
              (Shown{"2 range-beyond-raw-values ([0|257] of S, whose raw values reach [0|255])"}));
    EXPECT_EQ(
        OfLayout(message + Signal("S", "0|8@1-", "(0.5,0) [-65|0]")),
        (Shown{"2 range-beyond-raw-values ([-65|0] of S, whose raw values reach [-64|63.5])"}));
    EXPECT_EQ(OfLayout(message + Signal("S", "0|8@1+", "(-1,0) [-255|0]")), Shown());
}

TEST_F(Findings, OfARewriteAreDigitsAndPlaceholders) {
    EXPECT_EQ(OfRewrite("BO_ 1 A: 8\n SG_ S : 0|8@1+ (0.12345678901,0) [0|9999999999] \"\"\n"),
              (Shown{"1 placeholder-node (no sender)",
                     "2 more-than-ten-digits (0.12345678901 is written as 0.123456789)",
                     "2 placeholder-node (no receivers)"}));
}

TEST_F(Findings, OfARewriteAreAttributesThatAreOnlyRead) {
    EXPECT_EQ(OfRewrite("BO_ 1 A: 8 N\n"
                        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n"
                        "BA_DEF_ \"BusType\" STRING ;\n"
                        "BA_ \"GenMsgCycleTime\" BO_ 1 5;\n"
                        "BA_ \"GenMsgCycleTime\" BO_ 2 5;\n"),
              (Shown{"2 attribute-not-written (GenMsgCycleTime)",
                     "4 attribute-not-written (GenMsgCycleTime)"}));
}

}  // namespace
}  // namespace vexil::test
