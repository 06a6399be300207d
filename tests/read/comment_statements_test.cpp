// Tests of CM_ statements: whose comments change, and how.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"

namespace vexil {
namespace {

using test::CommentOf;
using test::Concat;
using test::Quoted;

std::string Signal(std::string_view name) {
    return Concat(" SG_ ", name, " : 0|8@1+ (1,0) [0|1] \"\" N\n");
}

class CommentTest : public test::DatabaseTest {
  protected:
    struct Row {
        std::string_view statement;
        std::string_view comments;
    };

    // Reads message 5 with the signal S, and the text after it. Returns the comments of all
    // messages and signals that have one: id='' and 'raw name of signal'=''.
    static std::string Comments(std::string_view text) {
        EXPECT_EQ(test::ReadText(Concat("BO_ 5 M: 8 N\n", Signal("S"), text, "\n")),
                  test::GoodRead);
        std::string comments;
        for (std::size_t at = 0; at < database.messages.Size(); ++at) {
            const CANMessage& message = database.messages[at];
            if (message.notes.HasComment()) {
                comments +=
                    Concat(std::to_string(message.id), "=", Quoted(CommentOf(message.notes)), " ");
            }
            for (const CANSignal* signal : message.signals) {
                if (signal->notes.HasComment()) {
                    comments +=
                        Concat(Quoted(signal->rawName), "=", Quoted(CommentOf(signal->notes)), " ");
                }
            }
        }
        return comments;
    }

    static void CheckRows(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            EXPECT_EQ(Comments(row.statement), row.comments) << row.statement;
        }
    }
};

class MessageComment : public CommentTest {};

TEST_F(MessageComment, IsTakenOrRefused) {
    CheckRows({
        {"CM_ BO_ 5 \"text\";", "5='text' "},
        {"CM_ BO_ 5 \"text\"", "5='text' "},
        {" CM_\tBO_\n005\r\n\"text\";", "5='text' "},
        {"CM_ BO_ 5 \"\";", ""},
        {"CM_ BO_ 5 \" two\n\tlines \";", R"(5=' two\n\tlines ' )"},
        {"CM_ BO_ 5 \"\xC3\xA4\";", "5='\xC3\xA4' "},
        {"CM_ BO_ 5 \"a\"; \"b\";", R"(5='a\\"; \\"b' )"},
        {"CM_ BO_ 5 \"a; b\" stray", "5='a; b' "},
        {"CM_ BO_ 5 x \"text\";", ""},
        {"CM_ BO_ 5 S \"text\";", ""},
        {"CM_ BO_ 5 text;", ""},
        {"CM_ BO_ 5 \"text;", ""},
        {"CM_ BO_ 5", ""},
        {"CM_ BO_ 5\"text\";", ""},
        {"CM_ BO_ 6 \"text\";", ""},
        {"CM_ BO_ -5 \"text\";", ""},
        {"CM_ BO_ M \"text\";", ""},
        {"CM_ BO_ \"text\";", ""},
        {"CM_ BU_ N \"text\";", ""},
        {"CM_ EV_ V \"text\";", ""},
        {"CM_ \"text\";", ""},
    });
}

TEST_F(MessageComment, ReachesEveryMessageOfTheId) {
    EXPECT_EQ(Comments("BO_ 6 Other: 8 N\n"
                       "BO_ 5 Again: 8 N\n"
                       "CM_ BO_ 5 \"text\";"),
              "5='text' 5='text' ");
}

TEST_F(MessageComment, AppendsToAnEarlierComment) {
    EXPECT_EQ(Comments("CM_ BO_ 5 \"ab\";\n"
                       "CM_ BO_ 5 \"cd\";\n"
                       "CM_ BO_ 5 \"\";\n"
                       "CM_ BO_ 5 \"ef;\n"
                       "CM_ BO_ 5 x \"gh\";"),
              "5='abcd' ");
}

TEST_F(MessageComment, MayContainAKeyword) {
    EXPECT_EQ(Comments("CM_ BO_ 5 \"see BO_ 6 and\nmore\";\n"
                       "BO_ 6 B: 8 N"),
              R"(5='see BO_ 6 and\nmore' )");
    EXPECT_EQ(database.messages.Size(), 2U);
}

class SignalComment : public CommentTest {};

TEST_F(SignalComment, IsTakenOrRefused) {
    CheckRows({
        {"CM_ SG_ 5 S \"text\";", "'S'='text' "},
        {" CM_\tSG_\n005\tS\r\n\"text\";", "'S'='text' "},
        {"CM_ SG_ 5 S\"text\";", "'S'='text' "},
        {"CM_ SG_ 5 S \"\";", ""},
        {"CM_ SG_ 5 S \"two\nlines\";", R"('S'='two\nlines' )"},
        {"CM_ SG_ 5 T \"text\";", ""},
        {"CM_ SG_ 5 s \"text\";", ""},
        {"CM_ SG_ 5 S x \"text\";", ""},
        {"CM_ SG_ 5 SS \"text\";", ""},
        {"CM_ SG_ 5 \"text\";", ""},
        {"CM_ SG_ 5 S text;", ""},
        {"CM_ SG_ 5 S \"text;", ""},
        {"CM_ SG_ 6 S \"text\";", ""},
        {"CM_ SG_ S \"text\";", ""},
        {"CM_ SG_ 5", ""},
    });
}

TEST_F(SignalComment, ReachesEverySignalOfTheNameInEveryMessageOfTheId) {
    const std::string signals = Concat(Signal("T"), Signal("S"));
    EXPECT_EQ(Comments(Concat(signals, "BO_ 6 Other: 8 N\n", signals, "BO_ 5 Again: 8 N\n", signals,
                              "CM_ SG_ 5 S \"text\";")),
              "'S'='text' 'S'='text' 'S'='text' ");
}

TEST_F(SignalComment, ReachesOnlySignalsBeforeIt) {
    EXPECT_EQ(Comments(Concat("CM_ SG_ 5 T \"early\";\n"
                              "CM_ SG_ 5 S \"early\";\n"
                              "BO_ 5 M: 8 N\n",
                              Signal("S"), Signal("T"),
                              "CM_ SG_ 5 S \" late\";\n"
                              "CM_ SG_ 5 T \"late\";")),
              "'S'='early late' 'S'=' late' 'T'='late' ");
}

TEST_F(SignalComment, ComparesTheNameAsWrittenInTheFile) {
    struct Names {
        std::string_view name;   // in the SG_ statement
        std::string_view asked;  // in the CM_ statement
        bool found;
    };
    constexpr std::string_view Name33 = "abcdefghijklmnopqrstuvwxyz0123456";
    const std::vector<Names> rows = {
        {"A", "A", true},         {"A", "A B", false},    {"A", "AB", false},
        {"A B", "A", false},      {"A B", "A B", true},   {"A B", " A B\t", true},
        {"A B", "A  B", false},   {"A B", "A\tB", false}, {"A B", "A_B", false},
        {"A\tB", "A\tB", true},   {"A\tB", "A B", false}, {"A\n B", "A\n B", true},
        {"A\n B", "A\nB", false}, {"", "", true},         {"", " \n", true},
        {"", "A", false},         {Name33, Name33, true}, {Name33, Name33.substr(0, 32), false},
        {"1st", "1st", true},     {"1st", "_st", false},  {"\xC3\xA4", "\xC3\xA4", true},
        {"\xC3\xA4", "_", false},
    };
    for (const Names& row : rows) {
        const std::string statement = Concat("CM_ SG_ 5 ", row.asked, "\"x\";");
        const std::string expected = row.found ? Concat(Quoted(row.name), "='x' ") : "";
        EXPECT_EQ(Comments(Concat(Signal(row.name), statement)), expected) << statement;
    }
}

TEST_F(SignalComment, TakesTheNameOnlyUpToTheFirstQuote) {
    EXPECT_EQ(Comments(Concat(Signal("\"Q\""), Signal(""), "CM_ SG_ 5 \"Q\" \"x\";")),
              R"(''='Q\\" \\"x' )");
}

}  // namespace
}  // namespace vexil
