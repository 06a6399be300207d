// Tests of StatementFile::NextStatement: where a file is cut, and the line number at each cut.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "support/files.h"
#include "text/keywords.h"
#include "text/statement_file.h"
#include "vexil64.h"

namespace vexil {
namespace {

// A statement and the number of lines read when it was returned.
struct Cut {
    std::string text;
    std::uint32_t lineNumber = 0;

    bool operator==(const Cut&) const = default;
};

void PrintTo(const Cut& cut, std::ostream* out) {
    const bool isLong = cut.text.size() > 80;
    *out << testing::PrintToString(isLong ? cut.text.substr(cut.text.size() - 40) : cut.text);
    *out << (isLong ? " at the end of " + std::to_string(cut.text.size()) + " bytes" : "");
    *out << " at line " << cut.lineNumber;
}

using Cuts = std::vector<Cut>;

class NextStatement : public testing::Test {
  protected:
    // The statements of a file with these bytes.
    Cuts CutsOf(std::string_view bytes) {
        const std::string path = folder.File("net.dbc");
        test::WriteBytes(path, bytes);
        StatementFile file;
        file.Open(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), OpenMode::Read);
        Cuts cuts;
        while (file.NextStatement()) {
            cuts.push_back({std::string(file.statement), file.lineNumber});
        }
        EXPECT_EQ(file.parseState, StateEndOfFile);
        return cuts;
    }

    // Expects the file to be cut before each mark, which is then removed.
    // "BO_ 1\n|BO_ 2\n" has the statements "BO_ 1\n" and "BO_ 2\n".
    void ExpectCutsAtMarks(const std::string& marked) {
        std::vector<std::string> expected{""};
        std::string bytes;
        for (const char ch : marked) {
            if (ch == '|') {
                expected.emplace_back();
            } else {
                expected.back() += ch;
                bytes += ch;
            }
        }
        std::vector<std::string> texts;
        for (const Cut& cut : CutsOf(bytes)) {
            texts.push_back(cut.text);
        }
        EXPECT_EQ(texts, expected);
    }

    test::TempFolder folder;
};

// -- Where a statement ends -------------------------------------------------------------------

TEST_F(NextStatement, CutsBeforeEachKeyword) {
    ExpectCutsAtMarks("VERSION \"\"\n\n|NS_ :\n|BO_ 1 A: 8 N\n |SG_ S : 0\n|BU_ \n");
}

TEST_F(NextStatement, CutsBeforeEveryKeywordOfTheTable) {
    for (const KeywordRow& row : keywordTable) {
        const std::string statement = std::string(row.keyword) + " x;\n";
        EXPECT_EQ(CutsOf("BO_ 1\n" + statement + "BO_ 2\n"),
                  (Cuts{{"BO_ 1\n", 2}, {statement, 3}, {"BO_ 2\n", 3}}))
            << row.keyword;
    }
}

TEST_F(NextStatement, SpansAnyNumberOfLines) {
    ExpectCutsAtMarks("BO_ 1\n\n  A\n: 8\t\n\n \n  |BO_ 2\n \n\n");
}

TEST_F(NextStatement, CutsWithinALine) {
    EXPECT_EQ(CutsOf("BO_ 1 BO_ 2 BO_ 3\nBO_ 4"),
              (Cuts{{"BO_ 1 ", 1}, {"BO_ 2 ", 1}, {"BO_ 3\n", 2}, {"BO_ 4\n", 2}}));
}

TEST_F(NextStatement, IsNotEndedByASemicolonOrALineEnd) {
    ExpectCutsAtMarks("VAL_ 1 S 0 \"a\";\n0;\n;;\n|BO_ 1;\n;\n");
}

TEST_F(NextStatement, AppendsStrayTextToTheStatementBeforeIt) {
    ExpectCutsAtMarks("BO_ 1\nstray text\nand more;\n|BO_ 2\n");
}

TEST_F(NextStatement, MatchesKeywordsAsWholeTokensOnly) {
    ExpectCutsAtMarks(
        "BO_ 1 BU_: xBO_ BO_x \"BO_ BO_\" _BO_ bo_ BO_; ;BO_ BO_\xc2\xa0 (BO_)\n|BU_ :\n");
}

TEST_F(NextStatement, MatchesNoTokenSimilarToAKeyword) {
    for (const KeywordRow& row : keywordTable) {
        const std::string keyword(row.keyword);
        std::string statement = "BO_ 1\n" + keyword + keyword + " \"" + keyword + " \xc3\xa9" +
                                keyword + " " + keyword.substr(1) + "\n";
        for (const char other : {'X', '_', 'b', ';'}) {
            statement += other + keyword + " " + keyword + other;
            for (std::size_t at = 0; at < keyword.size(); ++at) {
                std::string token = keyword;
                token[at] = other;
                statement += token == keyword ? "" : " " + token;
            }
            statement += "\n";
        }
        ExpectCutsAtMarks(statement);
    }
}

TEST_F(NextStatement, AcceptsEveryWhiteSpaceAroundAToken) {
    ExpectCutsAtMarks("BO_\t1\v|BO_\v2\f|BO_\f3\r|BO_\r4\t|BO_ 5\n|BO_\n");
}

TEST_F(NextStatement, TracksNoQuotes) {
    ExpectCutsAtMarks("SG_ S : 0 \"a |VAL_ b\" N\n|BO_ 2\n");
    ExpectCutsAtMarks("SG_ S : 0 \"VAL_ b\" N\n|BO_ 2\n");
    ExpectCutsAtMarks("VAL_ 1 S 0 \"see |BO_ 5\";\n");
}

TEST_F(NextStatement, FindsAKeywordAtTheEndOfTheFile) {
    EXPECT_EQ(CutsOf("BO_"), (Cuts{{"BO_\n", 1}}));
    EXPECT_EQ(CutsOf("BO_ 1\nBO_"), (Cuts{{"BO_ 1\n", 2}, {"BO_\n", 2}}));
    EXPECT_EQ(CutsOf("BO_ 1 BO_"), (Cuts{{"BO_ 1 ", 1}, {"BO_\n", 1}}));
}

TEST_F(NextStatement, CutsBetweenKeywordsThatFollowDirectly) {
    ExpectCutsAtMarks("BO_ |SG_\n|BO_\n|VERSION |NS_ |BO_ 1\n");
}

// -- Text before the first keyword ----------------------------------------------------------

TEST_F(NextStatement, DropsLinesWithoutAKeyword) {
    EXPECT_EQ(CutsOf("stray\n\n;\nBO_ 1\n"), (Cuts{{"BO_ 1\n", 4}}));
}

TEST_F(NextStatement, DropsTextBeforeAKeywordOnItsLine) {
    EXPECT_EQ(CutsOf("stray ; BO_ 1\n"), (Cuts{{"BO_ 1\n", 1}}));
    EXPECT_EQ(CutsOf("  \tBO_ 1 BO_ 2\n"), (Cuts{{"BO_ 1 ", 1}, {"BO_ 2\n", 1}}));
}

TEST_F(NextStatement, SkipsALineThatBeginsWithAByteOrderMark) {
    EXPECT_EQ(CutsOf("\xef\xbb\xbfVERSION \"\"\nBO_ 1\n"), (Cuts{{"BO_ 1\n", 2}}));
    EXPECT_EQ(CutsOf("\xef\xbb\xbf VERSION \"\"\n"), (Cuts{{"VERSION \"\"\n", 1}}));
}

TEST_F(NextStatement, FindsNothingInAFileWithoutAKeyword) {
    EXPECT_EQ(CutsOf(""), Cuts{});
    EXPECT_EQ(CutsOf("\n"), Cuts{});
    EXPECT_EQ(CutsOf("\n \n\t\r\n\v\f"), Cuts{});
    EXPECT_EQ(CutsOf("some text;\nBO_: x\nand more"), Cuts{});
}

// -- The three keywords of free text ----------------------------------------------------------

TEST_F(NextStatement, KeepsACommentOverLinesWithSemicolonsWhole) {
    ExpectCutsAtMarks("CM_ \"one;\ntwo; three;\n\n;four\";\n|BO_ 1\n");
}

TEST_F(NextStatement, EndsFreeTextAtAKeywordAfterASemicolon) {
    for (const std::string keyword : {"CM_", "BA_", "BA_DEF_"}) {
        ExpectCutsAtMarks(keyword + " text;\n|BO_ 1\n|BO_ 2\n");
        ExpectCutsAtMarks(keyword + " text; |BO_ 1 |BO_ 2\n|BO_ 3\n");
        ExpectCutsAtMarks(keyword + " text; \n\n\t\r\n |BO_ 1\n");
        ExpectCutsAtMarks(keyword + " ;\n|" + keyword + " ;\n|" + keyword + " ;\n");
    }
}

TEST_F(NextStatement, TreatsOneKeywordWithoutASemicolonAsFreeText) {
    for (const std::string keyword : {"CM_", "BA_", "BA_DEF_"}) {
        ExpectCutsAtMarks(keyword + " BO_ 1 \"see BO_ 5\";\n|BO_ 2\n");
        // The second one ends it, whatever comes before it.
        ExpectCutsAtMarks(keyword + " \"see BO_ 5\nand |BO_ 6\";\n|BO_ 2\n");
        ExpectCutsAtMarks(keyword + " \"a\nb BO_ 5\n\nc\n|SG_ 6\";\n|BO_ 2\n");
    }
}

TEST_F(NextStatement, IgnoresTheRestOfTheLineOfAStrayKeyword) {
    ExpectCutsAtMarks("CM_ \"see BO_ 5 SG_ 6 CM_ 7; BO_ 8\";\n|BO_ 2\n");
    ExpectCutsAtMarks("CM_ \"see\nthe BO_ 5 ; BO_ 6\n|BO_ 7\";\n");
    // The keywords of the statement itself count: BO_ has no semicolon before it either.
    ExpectCutsAtMarks("CM_ BO_ 1 \"text\"; BO_ 2 \n|BO_ 3\n");
}

TEST_F(NextStatement, ChecksForASemicolonBeforeTheFirstKeywordOnly) {
    ExpectCutsAtMarks("CM_ \"a\" x BO_ 1;\n|BO_ 2\n");
    ExpectCutsAtMarks("CM_ \"a;\" BO_ 1\n|BO_ 2\n");
}

TEST_F(NextStatement, CountsStrayKeywordsForEachStatement) {
    ExpectCutsAtMarks("CM_ \"BO_ x\";\n|CM_ \" BO_ x\";\n|CM_ \" BO_ x\";\n|BO_ 1\n");
    ExpectCutsAtMarks("CM_ BO_ x\n|CM_ BO_ x\n|BO_ x\n|BO_ x\n");
}

TEST_F(NextStatement, FindsFreeTextAfterTextOnTheSameLine) {
    ExpectCutsAtMarks("BO_ 1 |CM_ \"x SG_ y\";\n|BO_ 2\n");
    EXPECT_EQ(CutsOf("stray CM_ \"x SG_ y\";\nBO_ 2\n"),
              (Cuts{{"CM_ \"x SG_ y\";\n", 2}, {"BO_ 2\n", 2}}));
}

TEST_F(NextStatement, NeedsNoSemicolonForAnyOtherKeyword) {
    for (const KeywordRow& row : keywordTable) {
        if (!row.needsSemicolon) {
            ExpectCutsAtMarks(std::string(row.keyword) + " text |BO_ 1\n|BO_ 2\n");
        }
    }
}

TEST_F(NextStatement, ReturnsFreeTextThatTheFileEnds) {
    EXPECT_EQ(CutsOf("CM_ \"a BO_ b\nc"), (Cuts{{"CM_ \"a BO_ b\nc\n", 2}}));
    EXPECT_EQ(CutsOf("CM_ \"a\";"), (Cuts{{"CM_ \"a\";\n", 1}}));
}

// -- Line numbers -----------------------------------------------------------------------------

TEST_F(NextStatement, LineNumberIsTheLineOfTheNextKeyword) {
    EXPECT_EQ(CutsOf("BO_ 1\nBO_ 2\n\n\nBO_ 3\n SG_ 4\n x\n"),
              (Cuts{{"BO_ 1\n", 2}, {"BO_ 2\n\n\n", 5}, {"BO_ 3\n ", 6}, {"SG_ 4\n x\n", 7}}));
    EXPECT_EQ(CutsOf("CM_ \" BO_ x\nBO_ y\nBO_ z\n"),
              (Cuts{{"CM_ \" BO_ x\n", 2}, {"BO_ y\n", 3}, {"BO_ z\n", 3}}));
}

TEST_F(NextStatement, CountsCarriageReturnsAsPartsOfLines) {
    EXPECT_EQ(CutsOf("BO_ 1\r\nBO_ 2\r\n"), (Cuts{{"BO_ 1\r\n", 2}, {"BO_ 2\r\n", 2}}));
    EXPECT_EQ(CutsOf("BO_ 1\rBO_ 2\r"), (Cuts{{"BO_ 1\r", 1}, {"BO_ 2\r\n", 1}}));
}

// -- The limit of 4096 bytes ------------------------------------------------------------------

// A first line of this size, its line feed counted in.
std::string LineOf(const std::string& start, std::size_t size) {
    return start + std::string(size - start.size() - 1, 'x') + "\n";
}

TEST_F(NextStatement, ContinuesUpTo4096Bytes) {
    for (const std::string start : {"BO_ ", "CM_ "}) {
        for (const std::size_t size : {4095U, 4096U}) {
            const std::string line = LineOf(start, size);
            EXPECT_EQ(CutsOf(line + "end;\nBO_ 1\n"), (Cuts{{line + "end;\n", 2}, {"BO_ 1\n", 3}}))
                << start << size;
        }
    }
}

TEST_F(NextStatement, ReadsLinesUntilOnePassesTheLimit) {
    const std::string line = LineOf("BO_ ", 4094);
    EXPECT_EQ(CutsOf(line + "\n\n\ndropped\nBO_ 1\n"),
              (Cuts{{line + "\n\n\n", 4}, {"BO_ 1\n", 6}}));
}

TEST_F(NextStatement, ReturnsMoreThan4096BytesAndDropsTheRest) {
    for (const std::string start : {"BO_ ", "CM_ "}) {
        for (const std::size_t size : {4097U, 4098U, 20000U}) {
            const std::string line = LineOf(start, size);
            EXPECT_EQ(CutsOf(line + "dropped;\ndropped BO_ 1\nBO_ 2\n"),
                      (Cuts{{line, 1}, {"BO_ 1\n", 4}, {"BO_ 2\n", 4}}))
                << start << size;
        }
    }
}

TEST_F(NextStatement, AddsOneLineToAtMost4096Bytes) {
    const std::string first = LineOf("BO_ ", 4096);
    const std::string second = LineOf("", 9000);
    EXPECT_EQ(CutsOf(first + second + "dropped\nBO_ 1\n"),
              (Cuts{{first + second, 2}, {"BO_ 1\n", 4}}));
}

TEST_F(NextStatement, EndsAtAKeywordAfterTheLimitInTheSameLine) {
    const std::string text = "BO_ " + std::string(9000, 'x') + " ";
    EXPECT_EQ(CutsOf(text + "SG_ 1\nBO_ 2\n"), (Cuts{{text, 1}, {"SG_ 1\n", 2}, {"BO_ 2\n", 2}}));
    const std::string first = LineOf("BO_ ", 4096);
    const std::string second = std::string(5000, 'y') + " ";
    EXPECT_EQ(CutsOf(first + second + "SG_ 1\n"), (Cuts{{first + second, 2}, {"SG_ 1\n", 2}}));
}

// A stray keyword in the line that passes the limit: nothing more is read.
TEST_F(NextStatement, ReturnsFreeTextWithAStrayKeywordAfterTheLimit) {
    const std::string line = "CM_ " + std::string(5000, 'x') + " BO_ y\n";
    EXPECT_EQ(CutsOf(line + "dropped\nBO_ 1\n"), (Cuts{{line, 1}, {"BO_ 1\n", 3}}));
    const std::string at = "CM_ " + std::string(4096 - 4 - 7, 'x') + " BO_ y\n";
    ASSERT_EQ(at.size(), 4096U);
    EXPECT_EQ(CutsOf(at + "kept\nBO_ 1\n"), (Cuts{{at + "kept\n", 2}, {"BO_ 1\n", 3}}));
}

TEST_F(NextStatement, ContinuesAfterTheDroppedLines) {
    const std::string line = LineOf("BO_ ", 5000);
    EXPECT_EQ(CutsOf(line + "dropped\n"), (Cuts{{line, 1}}));
    EXPECT_EQ(CutsOf(line + "x BO_ 1 BO_ 2\n"), (Cuts{{line, 1}, {"BO_ 1 ", 2}, {"BO_ 2\n", 2}}));
    EXPECT_EQ(CutsOf(line + line + "CM_ a\nBO_ b\n"),
              (Cuts{{line, 1}, {line, 2}, {"CM_ a\nBO_ b\n", 4}}));
}

// Text before the statement on its line does not count, nor do earlier statements.
TEST_F(NextStatement, CountsOnlyTheBytesOfTheStatement) {
    const std::string line = LineOf("BO_ ", 4096);
    EXPECT_EQ(CutsOf("stray " + line + "kept\nBO_ 1\n"),
              (Cuts{{line + "kept\n", 2}, {"BO_ 1\n", 3}}));
    EXPECT_EQ(CutsOf("BO_ 7 " + line + "kept\nBO_ 1\n"),
              (Cuts{{"BO_ 7 ", 1}, {line + "kept\n", 2}, {"BO_ 1\n", 3}}));
    const std::string over = LineOf("BO_ ", 4097);
    EXPECT_EQ(CutsOf("BO_ 7 " + over + "dropped\nBO_ 1\n"),
              (Cuts{{"BO_ 7 ", 1}, {over, 1}, {"BO_ 1\n", 3}}));
}

TEST_F(NextStatement, CountsTheBytesOfTheCleanedLine) {
    const std::string line = LineOf("BO_ ", 4096);
    std::string withControls = line;
    withControls.insert(10, std::string(50, '\x01'));
    EXPECT_EQ(CutsOf(withControls + "kept\nBO_ 1\n"), (Cuts{{line + "kept\n", 2}, {"BO_ 1\n", 3}}));
}

TEST_F(NextStatement, HandlesTheEndOfTheFileAtTheLimit) {
    for (const std::size_t size : {4095U, 4096U, 4097U}) {
        const std::string line = LineOf("BO_ ", size);
        EXPECT_EQ(CutsOf(line), (Cuts{{line, 1}})) << size;
    }
}

}  // namespace
}  // namespace vexil
