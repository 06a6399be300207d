// Tests of text/keywords.h: the table by which files are cut, and the test for one keyword.
// SPDX-License-Identifier: MIT
#include "text/keywords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace vexil {
namespace {

TEST(KeywordTable, HasThirtyFiveRowsInThisOrder) {
    const std::array<KeywordRow, 35> expected = {{
        {"SG_", false},
        {"CM_", true},
        {"BO_", false},
        {"VAL_", false},
        {"BA_", true},
        {"BA_DEF_", true},
        {"SIG_VALTYPE_", false},
        {"BU_", false},
        {"BS_", false},
        {"VERSION", false},
        {"NS_", false},
        {"EV_", false},
        {"NS_DESC_", false},
        {"CAT_DEF_", false},
        {"CAT_", false},
        {"FILTER", false},
        {"BA_DEF_DEF_", false},
        {"EV_DATA_", false},
        {"ENVVAR_DATA_", false},
        {"SGTYPE_", false},
        {"SGTYPE_VAL_", false},
        {"BA_DEF_SGTYPE_", false},
        {"BA_SGTYPE_", false},
        {"SIG_TYPE_REF_", false},
        {"VAL_TABLE_", false},
        {"SIG_GROUP_", false},
        {"SIGTYPE_VALTYPE_", false},
        {"BO_TX_BU_", false},
        {"BA_DEF_REL_", false},
        {"BA_REL_", false},
        {"BA_DEF_DEF_REL_", false},
        {"BU_SG_REL_", false},
        {"BU_EV_REL_", false},
        {"BU_BO_REL_", false},
        {"SG_MUL_VAL_", false},
    }};
    ASSERT_EQ(keywordTable.size(), expected.size());
    for (std::size_t row = 0; row < expected.size(); ++row) {
        EXPECT_EQ(keywordTable[row].keyword, expected[row].keyword) << "row " << row;
        EXPECT_EQ(keywordTable[row].needsSemicolon, expected[row].needsSemicolon) << "row " << row;
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

TEST(MatchKeyword, TakesAKeywordAsAWholeTokenWithWhiteSpaceBehindIt) {
    ExpectMatches({// White space behind the keyword, the end of the text being none.
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
                   // White space in front of it is skipped.
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
                   // The position is stored whatever the result, also beyond the end.
                   {"x", "BO_", 0, false, 3},
                   {"  x", "SIG_VALTYPE_", 0, false, 14}});
}

TEST(MatchKeyword, TakesEveryKeywordOfTheTableAndNoOtherAtItsPlace) {
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
