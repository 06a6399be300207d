// Tests of write/comment_section.cpp.
// SPDX-License-Identifier: MIT
#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

using test::Text;

class WriteComments : public test::ModelTest {
  protected:
    std::string Section() const { return Written(vexil::WriteComments); }

    static void Comment(CANMessage& message, std::string_view text) {
        message.notes.SetComment(database.arena, text);
    }

    static void CommentSignal(CANMessage& message, std::string_view name, std::string_view text) {
        AddSignal(message, name).notes.SetComment(database.arena, text);
    }
};

TEST_F(WriteComments, WritesNothingWithoutComments) {
    EXPECT_EQ(Section(), "");
    AddSignal(AddMessage(1, "A"), "S");
    AddMessage(2, "B");
    EXPECT_EQ(Section(), "");
}

TEST_F(WriteComments, WritesAMessageAndThenItsSignals) {
    CANMessage& first = AddMessage(1, "A");
    Comment(first, "of A");
    CommentSignal(first, "T", "of T");
    AddSignal(first, "R");
    CommentSignal(first, "S", "of S");
    Comment(AddMessage(4294967295U, "B"), "of B");
    CommentSignal(AddMessage(3, "C"), "S", "of S in C");
    EXPECT_EQ(Section(), Text({
                             "CM_ BO_ 1 \"of A\";",
                             "CM_ SG_ 1 T \"of T\";",
                             "CM_ SG_ 1 S \"of S\";",
                             "CM_ BO_ 4294967295 \"of B\";",
                             "CM_ SG_ 3 S \"of S in C\";",
                         }));
}

TEST_F(WriteComments, LeavesAnEmptyLineForALongNameOfAMessageWithoutAComment) {
    AddMessage(1, "A").longName = "long A";
    CANMessage& second = AddMessage(2, "B");
    second.longName = "long B";
    Comment(second, "of B");
    CANMessage& third = AddMessage(3, "C");
    third.longName = "";
    CommentSignal(third, "S", "of S");
    third.signals[0]->longName = "long S";
    AddSignal(third, "T").longName = "long T";
    EXPECT_EQ(Section(), Text({
                             "",
                             "CM_ BO_ 2 \"of B\";",
                             "",
                             "CM_ SG_ 3 S \"of S\";",
                         }));
}

TEST_F(WriteComments, WritesTheTextUnchanged) {
    CANMessage& message = AddMessage(1, "A");
    Comment(message, "a \\\"b\\\" c\\\n  \xC3\xA4; \r\td");
    CommentSignal(message, "S", std::string(5000, 'x'));
    EXPECT_EQ(Section(), "CM_ BO_ 1 \"a \\\"b\\\" c\\\n  \xC3\xA4; \r\td\";\nCM_ SG_ 1 S \"" +
                             std::string(5000, 'x') + "\";\n");
}

TEST_F(WriteComments, LeavesOutTheNameOfASignalWithoutOne) {
    CommentSignal(AddMessage(1, "A"), "", "text");
    EXPECT_EQ(Section(), "CM_ SG_ 1 \"text\";\n");
}

TEST_F(WriteComments, NamesASuffixedSignalByItsNewName) {
    CANMessage& message = AddMessage(1, "A");
    CommentSignal(message, "S", "first");
    CommentSignal(message, "S", "second");
    message.MakeSignalNamesUnique(database.arena);
    EXPECT_EQ(Section(), Text({"CM_ SG_ 1 S_0000 \"first\";", "CM_ SG_ 1 S_0001 \"second\";"}));
}

TEST_F(WriteComments, KeepsOneBackslashBeforeAQuoteAfterARoundTrip) {
    Comment(AddMessage(5, "M"), "say \"hi\"");
    const std::string line = "CM_ BO_ 5 \"say \\\"hi\\\"\";\n";
    EXPECT_EQ(Section(), line);
    EXPECT_EQ(test::ReadText(WrittenFile()), test::GoodRead);
    EXPECT_EQ(Section(), line);
}

}  // namespace
}  // namespace vexil
