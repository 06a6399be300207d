// Tests of text/keywords.h: the table by which files are cut, and the test for one keyword.
// SPDX-License-Identifier: MIT
#include "text/keywords.h"

#include <gtest/gtest.h>

#include <string>

#include "support/reference_text.h"

namespace vexil {
namespace {

TEST(KeywordTable, HasThirtyFiveRowsInThisOrder) {
    ASSERT_EQ(keywordTable.size(), test::reference::Keywords.size());
    for (std::size_t row = 0; row < keywordTable.size(); ++row) {
        const test::reference::Keyword& expected = test::reference::Keywords[row];
        EXPECT_EQ(keywordTable[row].keyword, expected.text) << "row " << row;
        EXPECT_EQ(keywordTable[row].needsSemicolon, expected.needsSemicolon) << "row " << row;
    }
}

TEST(Constants, WhitespaceIsTheseSixCharacters) {
    EXPECT_EQ(Whitespace, std::string_view(" \f\n\r\t\v"));
    EXPECT_EQ(npos, 0xFFFFFFFFFFFFFFFFU);
}

struct MatchCase {
    std::string_view text;
    std::string_view keyword;
    Position from;
    bool matches;
    Position end;
};

void ExpectMatches(std::initializer_list<MatchCase> rows) {
    for (const MatchCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text) + " from " + std::to_string(row.from));
        Position end = 99;
        EXPECT_EQ(MatchKeyword(row.text, row.keyword, end, row.from), row.matches);
        EXPECT_EQ(end, row.end);
    }
}

using namespace std::string_view_literals;

TEST(MatchKeyword, MatchesWholeTokensFollowedByWhiteSpace) {
    ExpectMatches({// White space after the keyword; the end of the text is none.
                   {"BO_\n", "BO_", 0, true, 3},
                   {"BO_", "BO_", 0, false, 3},
                   {"BO_ ", "BO_", 0, true, 3},
                   {"BO_\t", "BO_", 0, true, 3},
                   {"BO_\v", "BO_", 0, true, 3},
                   {"BO_\f", "BO_", 0, true, 3},
                   {"BO_\r", "BO_", 0, true, 3},
                   {"BO_\0"sv, "BO_", 0, false, 3},
                   {"BO_:", "BO_", 0, false, 3},
                   {"BO_\xa0", "BO_", 0, false, 3},
                   {"BO_\x85", "BO_", 0, false, 3},
                   // The keyword as a whole token, exact in case.
                   {"BO_TX_BU_ x", "BO_", 0, false, 3},
                   {"BO_TX_BU_ x", "BO_TX_BU_", 0, true, 9},
                   {"bo_ x", "BO_", 0, false, 3},
                   {"XBO_ x", "BO_", 0, false, 3},
                   {"\"BO_ x", "BO_", 0, false, 3},
                   {"SG_ 1", "BO_", 0, false, 3},
                   // White space before it is skipped.
                   {" \f\n\r\t\vBO_ ", "BO_", 0, true, 9},
                   {"BO_ BO_ ", "BO_", 3, true, 7},
                   {"BO_ BO_ ", "BO_", 4, true, 7},
                   {"BO_ 1", "BO_", 1, false, 4},
                   // Nothing but white space: there is no position.
                   {"BO_   ", "BO_", 3, false, npos},
                   {"BO_ ", "BO_", 4, false, npos},
                   {"BO_ ", "BO_", 5, false, npos},
                   {"BO_ ", "BO_", npos, false, npos},
                   {"", "BO_", 0, false, npos},
                   {" \f\n\r\t\v", "BO_", 0, false, npos},
                   // The position is stored in any case, even beyond the end.
                   {"x", "BO_", 0, false, 3},
                   {"  x", "SIG_VALTYPE_", 0, false, 14}});
}

TEST(MatchKeyword, MatchesEachKeywordOfTheTableOnlyWithItself) {
    for (const KeywordRow& row : keywordTable) {
        const std::string text = std::string(row.keyword) + " ";
        for (const KeywordRow& other : keywordTable) {
            Position end = 99;
            EXPECT_EQ(MatchKeyword(text, other.keyword, end, 0), row.keyword == other.keyword)
                << row.keyword << " against " << other.keyword;
        }
    }
}

}  // namespace
}  // namespace vexil
