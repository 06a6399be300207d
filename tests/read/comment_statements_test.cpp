// Tests of CM_ statements: whose comment changes, to what, and which statements are claimed.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "read/handlers.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::Concat;
using test::Quoted;

// Message 5 with the signal S, and the comments of both.
class CommentTest : public test::DatabaseTest {
  protected:
    void SetUp() override {
        DatabaseTest::SetUp();
        AddMessage("BO_ 5 M: 8 N\n");
        AddSignal("S");
    }

    static void AddMessage(std::string_view statement) {
        ASSERT_TRUE(HandleMessageStatement(statement, 1));
    }

    static void AddSignal(std::string_view name) {
        ASSERT_TRUE(
            HandleSignalStatement(Concat("SG_ ", name, " : 0|8@1+ (1,0) [0|1] \"\" N\n"), 1));
    }

    // The comments of all messages and signals that have one: id='' and 'raw name of signal'=''.
    static std::string Comments() {
        std::string text;
        for (const auto& message : database.messages) {
            if (!message->comment.IsEmpty()) {
                text += Concat(std::to_string(message->id), "=", Quoted(message->comment), " ");
            }
            for (const auto& signal : message->signals) {
                if (!signal->comment.IsEmpty()) {
                    text += Concat(Quoted(signal->rawName), "=", Quoted(signal->comment), " ");
                }
            }
        }
        return text;
    }
};

struct Row {
    std::string_view statement;
    bool claimed;
    std::string_view comments;
};

class HandleMessageComment : public CommentTest {};

TEST_F(HandleMessageComment, TakesOrRefuses) {
    const std::vector<Row> rows = {
        {"CM_ BO_ 5 \"text\";\n", true, "5='text' "},
        {"CM_ BO_ 5 \"text\"", true, "5='text' "},
        {" CM_\tBO_\n005\r\n\"text\";\n", true, "5='text' "},
        {"CM_ BO_ 5 \"\";\n", true, ""},
        {"CM_ BO_ 5 \" two\n\tlines \";\n", true, R"(5=' two\n\tlines ' )"},
        {"CM_ BO_ 5 \"\xC3\xA4\";\n", true, "5='\xC3\xA4' "},
        {"CM_ BO_ 5 \"a\"; \"b\";\n", true, R"(5='a\\"; \\"b' )"},
        {"CM_ BO_ 5 \"a; b\" stray\n", true, "5='a; b' "},
        {"CM_ BO_ 5 x \"text\";\n", true, ""},
        {"CM_ BO_ 5 S \"text\";\n", true, ""},
        {"CM_ BO_ 5 text;\n", true, ""},
        {"CM_ BO_ 5 \"text;\n", true, ""},
        {"CM_ BO_ 5\n", true, ""},
        {"CM_ BO_ 5", false, ""},
        {"CM_ BO_ 5\"text\";\n", false, ""},
        {"CM_ BO_ 6 \"text\";\n", false, ""},
        {"CM_ BO_ -5 \"text\";\n", false, ""},
        {"CM_ BO_ M \"text\";\n", false, ""},
        {"CM_ BO_ \"text\";\n", false, ""},
        {"CM_ SG_ 5 S \"text\";\n", false, ""},
        {"CM_ BU_ N \"text\";\n", false, ""},
        {"CM_ EV_ V \"text\";\n", false, ""},
        {"CM_ \"text\";\n", false, ""},
        {"CM_BO_ 5 \"text\";\n", false, ""},
        {"BO_ 5 \"text\";\n", false, ""},
        {"", false, ""},
    };
    for (const Row& row : rows) {
        database.messages[0]->comment.Clear();
        EXPECT_EQ(vexil::HandleMessageComment(row.statement), row.claimed) << row.statement;
        EXPECT_EQ(Comments(), row.comments) << row.statement;
    }
}

TEST_F(HandleMessageComment, ReachesEveryMessageOfTheId) {
    AddMessage("BO_ 6 Other: 8 N\n");
    AddMessage("BO_ 5 Again: 8 N\n");
    vexil::HandleMessageComment("CM_ BO_ 5 \"text\";\n");
    EXPECT_EQ(Comments(), "5='text' 5='text' ");
    EXPECT_EQ(database.messages[1]->comment, "");
}

TEST_F(HandleMessageComment, AppendsToAnEarlierComment) {
    vexil::HandleMessageComment("CM_ BO_ 5 \"ab\";\n");
    vexil::HandleMessageComment("CM_ BO_ 5 \"cd\";\n");
    EXPECT_EQ(Comments(), "5='abcd' ");
    vexil::HandleMessageComment("CM_ BO_ 5 \"\";\n");
    vexil::HandleMessageComment("CM_ BO_ 5 \"ef;\n");
    vexil::HandleMessageComment("CM_ BO_ 5 x \"gh\";\n");
    EXPECT_EQ(Comments(), "5='abcd' ");
}

class HandleSignalComment : public CommentTest {};

TEST_F(HandleSignalComment, TakesOrRefuses) {
    const std::vector<Row> rows = {
        {"CM_ SG_ 5 S \"text\";\n", true, "'S'='text' "},
        {" CM_\tSG_\n005\tS\r\n\"text\";\n", true, "'S'='text' "},
        {"CM_ SG_ 5 S\"text\";\n", true, "'S'='text' "},
        {"CM_ SG_ 5 S \"\";\n", true, ""},
        {"CM_ SG_ 5 S \"two\nlines\";\n", true, R"('S'='two\nlines' )"},
        {"CM_ SG_ 5 T \"text\";\n", true, ""},
        {"CM_ SG_ 5 s \"text\";\n", true, ""},
        {"CM_ SG_ 5 S x \"text\";\n", true, ""},
        {"CM_ SG_ 5 SS \"text\";\n", true, ""},
        {"CM_ SG_ 5 \"text\";\n", true, ""},
        {"CM_ SG_ 5 S text;\n", true, ""},
        {"CM_ SG_ 5 S \"text;\n", true, ""},
        {"CM_ SG_ 6 S \"text\";\n", false, ""},
        {"CM_ SG_ S \"text\";\n", false, ""},
        {"CM_ SG_ 5", false, ""},
        {"CM_ BO_ 5 \"text\";\n", false, ""},
        {"CM_ BU_ N \"text\";\n", false, ""},
        {"CM_ \"text\";\n", false, ""},
        {"SG_ 5 S \"text\";\n", false, ""},
    };
    for (const Row& row : rows) {
        database.messages[0]->signals[0]->comment.Clear();
        EXPECT_EQ(vexil::HandleSignalComment(row.statement), row.claimed) << row.statement;
        EXPECT_EQ(Comments(), row.comments) << row.statement;
    }
}

TEST_F(HandleSignalComment, ReachesEverySignalOfTheNameInEveryMessageOfTheId) {
    AddSignal("T");
    AddSignal("S");
    AddMessage("BO_ 6 Other: 8 N\n");
    AddSignal("S");
    AddMessage("BO_ 5 Again: 8 N\n");
    AddSignal("S");
    vexil::HandleSignalComment("CM_ SG_ 5 S \"text\";\n");
    EXPECT_EQ(Comments(), "'S'='text' 'S'='text' 'S'='text' ");
    EXPECT_EQ(database.messages[1]->signals[0]->comment, "");
}

TEST_F(HandleSignalComment, ComparesTheNameAsItStandsInTheFile) {
    struct NameRow {
        std::string_view name;   // in the SG_ statement
        std::string_view asked;  // in the CM_ statement
        bool found;
    };
    constexpr std::string_view Name33 = "abcdefghijklmnopqrstuvwxyz0123456";
    const std::vector<NameRow> rows = {
        {"A", "A", true},         {"A", "A B", false},    {"A", "AB", false},
        {"A B", "A", false},      {"A B", "A B", true},   {"A B", " A B\t", true},
        {"A B", "A  B", false},   {"A B", "A\tB", false}, {"A B", "A_B", false},
        {"A\tB", "A\tB", true},   {"A\tB", "A B", false}, {"A\n B", "A\n B", true},
        {"A\n B", "A\nB", false}, {"", "", true},         {"", " \n", true},
        {"", "A", false},         {Name33, Name33, true}, {Name33, Name33.substr(0, 32), false},
        {"1st", "1st", true},     {"1st", "_st", false},  {"\xC3\xA4", "\xC3\xA4", true},
        {"\xC3\xA4", "_", false},
    };
    for (const NameRow& row : rows) {
        AddMessage("BO_ 7 Names: 8 N\n");
        AddSignal(row.name);
        vexil::HandleSignalComment(Concat("CM_ SG_ 7 ", row.asked, "\"x\";\n"));
        EXPECT_EQ(database.messages.back()->signals[0]->comment, row.found ? "x" : "")
            << row.name << " asked as " << row.asked;
    }
}

TEST_F(HandleSignalComment, TakesTheNameOnlyUpToTheFirstQuote) {
    AddSignal("\"Q\"");
    AddSignal("");
    vexil::HandleSignalComment("CM_ SG_ 5 \"Q\" \"x\";\n");
    EXPECT_EQ(Comments(), R"(''='Q\\" \\"x' )");
}

TEST_F(HandleSignalComment, EscapesTheQuotesThatAreNot) {
    struct QuoteRow {
        std::string_view first;   // what stands between the outer quotes
        std::string_view second;  // the same of a second statement, if any
        std::string_view comment;
    };
    const std::vector<QuoteRow> rows = {
        {R"(a "quoted" word)", "", R"(a \"quoted\" word)"},
        {R"(a \"quoted\" word)", "", R"(a \"quoted\" word)"},
        {R"("all")", "", R"(\"all\")"},
        {R"("")", "", R"(\"\")"},
        {R"(a \\" b)", "", R"(a \\" b)"},
        {R"(")", R"(")", R"(\"\")"},
        {R"(ab\)", R"("cd)", R"(ab\"cd)"},
        {R"(ab)", R"(\"cd)", R"(ab\"cd)"},
        {R"(a "b")", R"("c" d)", R"(a \"b\"\"c\" d)"},
    };
    CANSignal& signal = *database.messages[0]->signals[0];
    for (const QuoteRow& row : rows) {
        signal.comment.Clear();
        vexil::HandleSignalComment(Concat("CM_ SG_ 5 S \"", row.first, "\";\n"));
        if (!row.second.empty()) {
            vexil::HandleSignalComment(Concat("CM_ SG_ 5 S \"", row.second, "\";\n"));
        }
        EXPECT_EQ(signal.comment, row.comment) << row.first << " and " << row.second;
    }
}

TEST_F(HandleSignalComment, LosesACommentThatStandsInFrontOfItsSignal) {
    test::ReadText(
        "BO_ 5 M: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
        "CM_ SG_ 5 T \"early\";\n"
        "CM_ SG_ 5 S \"early\";\n"
        "BO_ 5 M: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
        " SG_ T : 0|8@1+ (1,0) [0|1] \"\" N\n"
        "CM_ SG_ 5 S \" late\";\n"
        "CM_ SG_ 5 T \"late\";\n");
    EXPECT_EQ(Comments(), "'S'='early late' 'S'=' late' 'T'='late' ");
}

TEST_F(HandleSignalComment, KeepsAWholeCommentThatANextKeywordLooksLikePartOf) {
    test::ReadText(
        "BO_ 5 M: 8 N\n"
        "CM_ BO_ 5 \"see BO_ 6 and\nmore\";\n"
        "BO_ 6 B: 8 N\n");
    EXPECT_EQ(Comments(), R"(5='see BO_ 6 and\nmore' )");
    EXPECT_EQ(database.messages.size(), 2U);
}

}  // namespace
}  // namespace vexil
