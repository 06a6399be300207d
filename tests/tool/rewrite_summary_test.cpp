// SummarizeRewrite: which statements the written file has, too, and the counts of the others.
// SPDX-License-Identifier: MIT
#include "account/rewrite_summary.h"

#include <gtest/gtest.h>

#include <string>

namespace vexil::tool {
namespace {

AccountedStatement Statement(Cause cause, std::string_view text, std::uint32_t line) {
    AccountedStatement statement;
    statement.cause = cause;
    statement.line = line;
    statement.text = text;
    return statement;
}

RewriteSummary Summary(std::vector<AccountedStatement> statements, std::string_view written) {
    Account account;
    account.statements = std::move(statements);
    return SummarizeRewrite(account, {}, written);
}

using Counts = std::vector<CauseCount>;

TEST(SummarizeRewrite, CountsLossesAndChangesByCause) {
    const RewriteSummary summary = Summary(
        {Statement(Cause::ValueTable, "VAL_TABLE_ A 0 \"a\";", 3),
         Statement(Cause::UnitFolded, "SG_ S : 0|8@1+ (1,0) [0|0] \"°\" A", 4),
         Statement(Cause::ValueTable, "VAL_TABLE_ B 0 \"b\";", 5),
         Statement(Cause::Kept, "BO_ 1 A: 8 B", 6), Statement(Cause::MessageId, "BO_ x A: 8 B", 7)},
        "BO_ 1 A: 8 B\n");
    EXPECT_EQ(summary.losses, (Counts{{Cause::MessageId, 1, 7}, {Cause::ValueTable, 2, 3}}));
    EXPECT_EQ(summary.changes, (Counts{{Cause::UnitFolded, 1, 4}}));
    EXPECT_EQ(TotalOf(summary.losses), 3U);
}

TEST(SummarizeRewrite, HasFindingsWhereAStatementWasRefusedOrDropped) {
    EXPECT_TRUE(Summary({Statement(Cause::MessageId, "BO_ x A: 8 B", 1)}, "").hasFindings);
    EXPECT_TRUE(Summary({Statement(Cause::UnknownMessage, "CM_ BO_ 1 \"\";", 1)}, "").hasFindings);
    EXPECT_FALSE(Summary({Statement(Cause::UnitFolded, "SG_", 1),
                          Statement(Cause::Version, "VERSION \"1\"", 1),
                          Statement(Cause::Kept, "BO_ 1 A: 8 B", 1)},
                         "")
                     .hasFindings);
}

TEST(SummarizeRewrite, LeavesOutStatementsThatTheWrittenFileHas) {
    EXPECT_TRUE(Summary({Statement(Cause::Version, "VERSION \"\"", 1),
                         Statement(Cause::BitTiming, "BS_:", 2),
                         Statement(Cause::TextTooLong, "CM_  BO_ 1\n\"a  long one\" ;", 3)},
                        "VERSION \"\"\n\nBS_ :\nCM_ BO_ 1 \"a  long one\";\n")
                    .IsEmpty());
}

TEST(SummarizeRewrite, ComparesTextsInQuotesToTheByte) {
    EXPECT_EQ(
        Summary({Statement(Cause::Version, "VERSION \"1 : 2\"", 1)}, "VERSION \"1: 2\"\n").losses,
        (Counts{{Cause::Version, 1, 1}}));
    EXPECT_EQ(
        Summary({Statement(Cause::TextTooLong, "CM_ \"a  b\";", 1)}, "CM_ \"a b\";\n").changes,
        (Counts{{Cause::TextTooLong, 1, 1}}));
}

TEST(SummarizeRewrite, ComparesNodesWithoutTheirOrder) {
    EXPECT_TRUE(Summary({Statement(Cause::Nodes, "BU_: B A", 1)}, "BU_ :  A C B\n").IsEmpty());
    EXPECT_TRUE(Summary({Statement(Cause::Nodes, "BU_:", 1)}, "BU_ :  A\n").IsEmpty());
    EXPECT_EQ(Summary({Statement(Cause::Nodes, "BU_: A\n D", 1)}, "BU_ :  A C B\n").losses,
              (Counts{{Cause::Nodes, 1, 1}}));
}

TEST(SummarizeRewrite, TakesTheSymbolsForWritten) {
    EXPECT_TRUE(Summary({Statement(Cause::Symbols, "NS_ : CM_", 1)}, "NS_ :\n").IsEmpty());
}

TEST(SummarizeRewrite, CountsWhatElseAWriteLosesAndChanges) {
    Account account;
    account.fileFindings = {{Cause::SameMessageName, 1, 1, ""}, {Cause::NamesNumbered, 2, 1, ""}};
    const RewriteSummary summary = SummarizeRewrite(
        account, {{Cause::MoreThanTenDigits, 3, 1, ""}, {Cause::AttributeNotWritten, 4, 1, ""}},
        "");
    EXPECT_EQ(summary.losses, (Counts{{Cause::AttributeNotWritten, 1, 4}}));
    EXPECT_EQ(summary.changes,
              (Counts{{Cause::NamesNumbered, 1, 2}, {Cause::MoreThanTenDigits, 1, 3}}));
    EXPECT_FALSE(summary.hasFindings);
}

}  // namespace
}  // namespace vexil::tool
