// Tests of files that end inside a statement: for every beginning of one statement of each kind,
// the whole model that the file then gives. A keyword that is not whole is stray text and belongs
// to the statement above.
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

using test::Concat;
using test::DumpDatabase;
using test::GoodRead;
using test::ReadText;

// What every beginning gives from behind the one of the row before up to this one. Fields of the
// dump that have their default are left out.
struct Stretch {
    std::string_view upTo;
    std::string_view message;  // what stands behind the plain message
    std::string_view signal;   // what stands behind the plain signal
};

class FileEnd : public test::DatabaseTest {
  protected:
    // Reads the file front, one message with one signal, middle and each beginning of the last
    // stretch's text, which is the whole statement.
    static void Check(std::string_view middle, const std::vector<Stretch>& stretches) {
        constexpr std::string_view Front =
            "BO_ 5 M: 8 N\n"
            " SG_ S : 0|32@1- (1,0) [0|1] \"\" N\n";
        const std::string_view whole = stretches.back().upTo;
        std::size_t length = 0;
        for (const Stretch& stretch : stretches) {
            ASSERT_EQ(stretch.upTo, whole.substr(0, stretch.upTo.size()));
            for (; length <= stretch.upTo.size(); ++length) {
                const std::string_view beginning = whole.substr(0, length);
                EXPECT_EQ(ReadText(Concat(Front, middle, beginning)), GoodRead) << beginning;
                EXPECT_EQ(DumpDatabase(),
                          Concat("5 'M' 8 'N'", stretch.message, "\n  'S' 0|32@1- (1,0) [0|1] '' N",
                                 stretch.signal, "\n"))
                    << beginning;
            }
        }
    }
};

TEST_F(FileEnd, InsideAMessageComment) {
    Check("", {
                  {"", "", ""},
                  {"C", "", "_C"},
                  {"CM", "", "_CM"},
                  {"CM_ BO_ 5 \"ab", "", ""},
                  {"CM_ BO_ 5 \"ab\";", " comment='ab'", ""},
              });
}

TEST_F(FileEnd, InsideASignalComment) {
    Check("", {
                  {"", "", ""},
                  {"C", "", "_C"},
                  {"CM", "", "_CM"},
                  {"CM_ SG_ 5 S \"a\\", "", ""},
                  {"CM_ SG_ 5 S \"a\\\"b", "", R"( comment='a\\')"},
                  {"CM_ SG_ 5 S \"a\\\"b\";", "", R"( comment='a\\"b')"},
              });
}

TEST_F(FileEnd, InsideACommentWithQuotesInside) {
    Check("BU_ :\n", {
                         {"CM_ BO_ 5 \"a ", "", ""},
                         {"CM_ BO_ 5 \"a \"b", " comment='a '", ""},
                         {"CM_ BO_ 5 \"a \"b\"c", R"( comment='a \\"b')", ""},
                         {"CM_ BO_ 5 \"a \"b\"c\"", R"( comment='a \\"b\\"c')", ""},
                     });
}

TEST_F(FileEnd, InsideValueDescriptions) {
    Check("", {
                  {"", "", ""},
                  {"V", "", "_V"},
                  {"VA", "", "_VA"},
                  {"VAL", "", "_VAL"},
                  {"VAL_ 5 S -1 ", "", ""},
                  {"VAL_ 5 S -1 \"no", "", " enums={-1:''}"},
                  {"VAL_ 5 S -1 \"no\" 2 ", "", " enums={-1:'no'}"},
                  {"VAL_ 5 S -1 \"no\" 2 \"two", "", " enums={-1:'no',2:''}"},
                  {"VAL_ 5 S -1 \"no\" 2 \"two\";", "", " enums={-1:'no',2:'two'}"},
              });
}

TEST_F(FileEnd, InsideAValueType) {
    const std::string_view whole = "SIG_VALTYPE_ 5 S : 1;";
    Check("", {
                  {"", "", ""},
                  {"S", "", "_S"},
                  {"SI", "", "_SI"},
                  {"SIG", "", "_SIG"},
                  {"SIG_", "", "_SIG_"},
                  {"SIG_V", "", "_SIG_V"},
                  {"SIG_VA", "", "_SIG_VA"},
                  {"SIG_VAL", "", "_SIG_VAL"},
                  {"SIG_VALT", "", "_SIG_VALT"},
                  {"SIG_VALTY", "", "_SIG_VALTY"},
                  {"SIG_VALTYP", "", "_SIG_VALTYP"},
                  {"SIG_VALTYPE", "", "_SIG_VALTYPE"},
                  {"SIG_VALTYPE_ 5 S : 1", "", ""},
              });
    EXPECT_EQ(ReadText(Concat("BO_ 5 M: 8 N\n SG_ S : 0|32@1- (1,0) [0|1] \"\" N\n", whole)),
              GoodRead);
    EXPECT_EQ(DumpDatabase(), "5 'M' 8 'N'\n  'S' 0|32@1f (1,0) [0|1] '' N\n");
}

TEST_F(FileEnd, InsideADefinitionOfAList) {
    Check("", {
                  {"", "", ""},
                  {"B", "", "_B"},
                  {"BA", "", "_BA"},
                  {"BA_", "", ""},
                  {"BA_D", "", "_BA_D"},
                  {"BA_DE", "", "_BA_DE"},
                  {"BA_DEF", "", "_BA_DEF"},
                  {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cy", "", ""},
                  {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cy\",", " send='Cy'", ""},
                  {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cy\",\"Ev", "", ""},
                  {"BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cy\",\"Ev\";", " send='Cy'", ""},
              });
}

// A definition of the bus type shows in the model by itself: its empty default is classic CAN.
TEST_F(FileEnd, InsideADefinitionOfAText) {
    constexpr std::string_view Whole = "BA_DEF_ \"BusType\" STRING ;";
    constexpr std::string_view FirstGood = "BA_DEF_ \"BusType\" STRING";
    for (std::size_t length = 0; length <= Whole.size(); ++length) {
        database.info.busType = BusCanFd;
        ReadText(Whole.substr(0, length));
        EXPECT_EQ(database.info.busType, length < FirstGood.size() ? BusCanFd : BusClassicCan)
            << Whole.substr(0, length);
    }
}

TEST_F(FileEnd, InsideADefault) {
    Check("BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n",
          {
              {"BA_DEF_DEF_ \"GenMsgCycleTime\" ", "", ""},
              {"BA_DEF_DEF_ \"GenMsgCycleTime\" 1", " cycle=1", ""},
              {"BA_DEF_DEF_ \"GenMsgCycleTime\" 10", " cycle=10", ""},
              {"BA_DEF_DEF_ \"GenMsgCycleTime\" 100;", " cycle=100", ""},
          });
}

// Letters of a keyword that is not whole are one token too many for the definition above, which is
// then no definition.
TEST_F(FileEnd, InsideTheKeywordBehindADefinition) {
    Check("BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cy\";\n",
          {
              {"", " send='Cy'", ""},
              {"BA", "", ""},
              {"BA_", " send='Cy'", ""},
              {"BA_DEF", "", ""},
              {"BA_DEF_", " send='Cy'", ""},
              {"BA_DEF_DEF", "", ""},
              {"BA_DEF_DEF_ \"GenMsgSendType\" \"Cy\";", " send='Cy'", ""},
          });
}

TEST_F(FileEnd, InsideAValueOfAMessage) {
    Check(
        "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n"
        "BA_DEF_DEF_ \"GenMsgCycleTime\" 7;\n",
        {
            {"BA_ \"GenMsgCycleTime\" BO_ 5 ", " cycle=7", ""},
            {"BA_ \"GenMsgCycleTime\" BO_ 5 2", " cycle=2", ""},
            {"BA_ \"GenMsgCycleTime\" BO_ 5 20;", " cycle=20", ""},
        });
}

TEST_F(FileEnd, InsideAValueOfASignal) {
    Check(
        "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 9;\n"
        "BA_DEF_DEF_ \"GenSigStartValue\" 7;\n",
        {
            {"BA_ \"GenSigStartValue\" SG_ 5 S ", "", " start=7"},
            {"BA_ \"GenSigStartValue\" SG_ 5 S -", "", " start=7"},
            {"BA_ \"GenSigStartValue\" SG_ 5 S -4", "", " start=-4"},
            {"BA_ \"GenSigStartValue\" SG_ 5 S -42;", "", " start=-42"},
        });
}

TEST_F(FileEnd, InsideATextOfAMessage) {
    Check("BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;\nBU_ :\n",
          {
              {"BA_ \"Marrowby_Msg_Name\" BO_ 5 \"a b", "", ""},
              {"BA_ \"Marrowby_Msg_Name\" BO_ 5 \"a b\";", " long='a b'", ""},
          });
}

}  // namespace
}  // namespace vexil
