// The statements of a text as their author meant them.
// SPDX-License-Identifier: MIT
#include "source/statement_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

// Each statement: stray text in <>, an open one with ... after it, a glued keyword with ! before
// it.
std::vector<std::string> Scan(std::string_view text) {
    std::vector<std::string> statements;
    for (const tool::SourceStatement& each : tool::ScanStatements(text)) {
        std::string shown(text.substr(each.begin, each.end - each.begin));
        shown = each.keyword == tool::Keyword::None ? "<" + shown + ">" : shown;
        statements.push_back((each.isGlued ? "!" : "") + shown + (each.isClosed ? "" : "..."));
    }
    return statements;
}

using Statements = std::vector<std::string>;

TEST(ScanStatements, FindsNoneInWhiteSpace) {
    EXPECT_EQ(Scan(""), Statements());
    EXPECT_EQ(Scan(" \r\n\t\n"), Statements());
}

TEST(ScanStatements, EndsMessagesAndSignalsAtTheNextKeyword) {
    EXPECT_EQ(Scan("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n\nBO_ 2 B: 8 N"),
              (Statements{"BO_ 1 A: 8 N", "SG_ S : 0|8@1+ (1,0) [0|1] \"\" N", "BO_ 2 B: 8 N"}));
    EXPECT_EQ(Scan("BO_ 1 A: 8 N BO_ 2 B: 8 N"), (Statements{"BO_ 1 A: 8 N", "BO_ 2 B: 8 N"}));
}

TEST(ScanStatements, EndsOtherStatementsAtTheirSemicolon) {
    EXPECT_EQ(Scan("CM_ BO_ 1 \"a\"; VAL_ 1 S 0 \"b\" ;BO_ 1 A: 8 N"),
              (Statements{"CM_ BO_ 1 \"a\";", "VAL_ 1 S 0 \"b\" ;", "BO_ 1 A: 8 N"}));
    EXPECT_EQ(Scan("BA_ \"X\" 1; ;;\nBU_ : N"), (Statements{"BA_ \"X\" 1; ;;", "BU_ : N"}));
}

TEST(ScanStatements, HonoursQuotes) {
    EXPECT_EQ(Scan("CM_ BO_ 1 \"a; BO_ 2 b\";\nBU_ : N"),
              (Statements{"CM_ BO_ 1 \"a; BO_ 2 b\";", "BU_ : N"}));
    EXPECT_EQ(Scan("CM_ \"one\nBO_ 2 two\";\nBU_ : N"),
              (Statements{"CM_ \"one\nBO_ 2 two\";", "BU_ : N"}));
    EXPECT_EQ(Scan("CM_ \"a \\\" ; b\";\nBU_ : N"), (Statements{"CM_ \"a \\\" ; b\";", "BU_ : N"}));
    EXPECT_EQ(Scan("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"a VAL_ b\" N\nBU_ : N"),
              (Statements{"BO_ 1 A: 8 N", "SG_ S : 0|8@1+ (1,0) [0|1] \"a VAL_ b\" N", "BU_ : N"}));
}

TEST(ScanStatements, EndsAStatementWithoutItsSemicolonWhereALineBeginsTheNext) {
    EXPECT_EQ(Scan("CM_ \"a\"\nBO_ 1 A: 8 N"), (Statements{"CM_ \"a\"...", "BO_ 1 A: 8 N"}));
    EXPECT_EQ(Scan("BA_ \"X\" 1\n  BA_ \"Y\" 2;"), (Statements{"BA_ \"X\" 1...", "BA_ \"Y\" 2;"}));
    EXPECT_EQ(Scan("VAL_ 1 S 0 \"a\""), (Statements{"VAL_ 1 S 0 \"a\"..."}));
}

TEST(ScanStatements, EndsATextWithoutItsQuoteWhereALineBeginsTheNext) {
    EXPECT_EQ(
        Scan("CM_ BO_ 1 \"open\nBO_ 2 B: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"x\" N"),
        (Statements{"CM_ BO_ 1 \"open...", "BO_ 2 B: 8 N", "SG_ S : 0|8@1+ (1,0) [0|1] \"x\" N"}));
    EXPECT_EQ(Scan("CM_ BO_ 1 \"5\" wide\";\nCM_ BO_ 2 \"next\";"),
              (Statements{"CM_ BO_ 1 \"5\" wide\";", "CM_ BO_ 2 \"next\";"}));
}

TEST(ScanStatements, TakesTheOwnerOnTheNextLineIntoTheStatement) {
    EXPECT_EQ(Scan("CM_\nBO_ 1 \"a\";\nBU_ : N"), (Statements{"CM_\nBO_ 1 \"a\";", "BU_ : N"}));
}

TEST(ScanStatements, TakesTheSymbolsIntoTheirStatement) {
    EXPECT_EQ(Scan("NS_ :\n NS_DESC_\n CM_ BA_\n\n FILTER\n OWN_\n\nBS_:\nBU_: N\nCM_ \"a\";"),
              (Statements{"NS_ :\n NS_DESC_\n CM_ BA_\n\n FILTER\n OWN_", "!BS_:", "!BU_: N",
                          "CM_ \"a\";"}));
    EXPECT_EQ(Scan("NS_ :\n CM_\nCM_ BO_ 1 \"a\";"),
              (Statements{"NS_ :\n CM_", "CM_ BO_ 1 \"a\";"}));
}

TEST(ScanStatements, FindsTextThatBelongsToNoStatement) {
    EXPECT_EQ(Scan("a list\nof words\nBO_ 1 A: 8 N"),
              (Statements{"<a list\nof words>", "BO_ 1 A: 8 N"}));
    EXPECT_EQ(Scan("VAL_ 1 S 0 \"a\" ; // note\n more\nBU_ : N"),
              (Statements{"VAL_ 1 S 0 \"a\" ;", "<// note\n more>", "BU_ : N"}));
}

TEST(ScanStatements, SkipsAByteOrderMark) {
    EXPECT_EQ(Scan("\xEF\xBB\xBFVERSION \"\"\nBU_ : N"), (Statements{"VERSION \"\"", "BU_ : N"}));
}

TEST(ScanStatements, TakesACarriageReturnForTheEndOfALine) {
    EXPECT_EQ(Scan("CM_ \"a\"\rBO_ 1 A: 8 N\rBU_: N"),
              (Statements{"CM_ \"a\"...", "BO_ 1 A: 8 N", "!BU_: N"}));
}

}  // namespace
}  // namespace vexil::test
