// The cut of the library, by examples; the experiments compare it with the library itself.
// SPDX-License-Identifier: MIT
#include "source/library_cut.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

// Each statement with the line that a parse error would give.
std::vector<std::string> Cut(std::string_view text) {
    std::vector<std::string> statements;
    for (const tool::LibraryStatement& each : tool::CutLikeLibrary(text)) {
        statements.push_back(std::to_string(each.line) + ":" +
                             std::string(text.substr(each.begin, each.end - each.begin)) +
                             (each.overflowed ? "<full>" : ""));
    }
    return statements;
}

using Statements = std::vector<std::string>;

TEST(CutLikeLibrary, CutsAtWholeWordsThatAreKeywords) {
    EXPECT_EQ(Cut("BO_ 1 A: 8 N\n SG_ S\nBU_: x\nBU_ : y\n"),
              (Statements{"1:BO_ 1 A: 8 N\n ", "3:SG_ S\nBU_: x\n", "3:BU_ : y\n"}));
}

TEST(CutLikeLibrary, IgnoresQuotes) {
    EXPECT_EQ(Cut("SG_ \"a VAL_ b\"\nBU_ : N\n"),
              (Statements{"0:SG_ \"a ", "1:VAL_ b\"\n", "1:BU_ : N\n"}));
}

TEST(CutLikeLibrary, LetsFreeTextPassOneKeywordThatFollowsNoSemicolon) {
    EXPECT_EQ(Cut("CM_ \"a\"\nBO_ 1 A: 8 N\nBO_ 2 B: 8 N\n"),
              (Statements{"2:CM_ \"a\"\nBO_ 1 A: 8 N\n", "2:BO_ 2 B: 8 N\n"}));
    EXPECT_EQ(Cut("CM_ \"a\";\nBO_ 1 A: 8 N\n"),
              (Statements{"1:CM_ \"a\";\n", "1:BO_ 1 A: 8 N\n"}));
    EXPECT_EQ(Cut("CM_ BO_ 1 \"a\"; BO_ 2 B: 8 N\nBU_ : N\n"),
              (Statements{"1:CM_ BO_ 1 \"a\"; BO_ 2 B: 8 N\n", "1:BU_ : N\n"}));
}

TEST(CutLikeLibrary, DropsLinesWithoutAKeywordAtTheFront) {
    EXPECT_EQ(Cut("one\ntwo BO_ 1\n"), (Statements{"1:BO_ 1\n"}));
    EXPECT_EQ(Cut(""), Statements());
}

TEST(CutLikeLibrary, TakesAFullBufferAsItIsAndLosesTheLinesAfterIt) {
    const std::string full = "BU_ " + std::string(4092, 'x') + "\n";  // 4097 bytes
    EXPECT_EQ(Cut(full + "lost\nBO_ 1\n"), (Statements{"0:" + full + "<full>", "2:BO_ 1\n"}));
    const std::string fits = "BU_ " + std::string(4091, 'x') + "\n";
    EXPECT_EQ(Cut(fits + "BO_ 1\n"), (Statements{"1:" + fits, "1:BO_ 1\n"}));
    EXPECT_EQ(Cut(fits + "kept\nBO_ 1\n"), (Statements{"1:" + fits + "kept\n<full>", "2:BO_ 1\n"}));
}

}  // namespace
}  // namespace vexil::test
