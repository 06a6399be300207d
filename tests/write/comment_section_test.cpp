// Tests of write/comment_section.cpp.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "read/read_driver.h"
#include "write/model.h"
#include "write/sections.h"
#include "write/write_order.h"

namespace vexil {
namespace {

using test::Text;

class WriteComments : public test::ModelTest {
  protected:
    std::string Section(std::uint32_t order = OrderAsStored) const {
        return Written([order](StatementFile& file) {
            vexil::WriteComments(file, MessagesInOrder(database.messages, order));
        });
    }
};

TEST(FormatMessageComment, IsTheLineOfTheComment) {
    CANMessage message;
    message.isEmpty = false;
    message.id = 4294967295U;
    message.name = "M";
    EXPECT_EQ(message.FormatMessageComment(), "");
    message.comment = "text";
    EXPECT_EQ(message.FormatMessageComment(), "CM_ BO_ 4294967295 \"text\";");
}

TEST_F(WriteComments, WritesNothingWithoutComments) {
    EXPECT_EQ(Section(), "");
    AddSignal(AddMessage(1, "A"), "S");
    AddMessage(2, "B");
    EXPECT_EQ(Section(), "");
}

TEST_F(WriteComments, WritesAMessageAndThenItsSignals) {
    CANMessage& first = AddMessage(1, "A");
    first.comment = "of A";
    AddSignal(first, "T").comment = "of T";
    AddSignal(first, "R");
    AddSignal(first, "S").comment = "of S";
    AddMessage(2147483938U, "B").comment = "of B";
    AddSignal(AddMessage(3, "C"), "S").comment = "of S in C";
    EXPECT_EQ(Section(), Text({
                             "CM_ BO_ 1 \"of A\";",
                             "CM_ SG_ 1 T \"of T\";",
                             "CM_ SG_ 1 S \"of S\";",
                             "CM_ BO_ 2147483938 \"of B\";",
                             "CM_ SG_ 3 S \"of S in C\";",
                         }));
}

TEST_F(WriteComments, LeavesAnEmptyLineForALongNameWithoutAComment) {
    AddMessage(1, "A").longName = "long A";
    CANMessage& second = AddMessage(2, "B");
    second.longName = "long B";
    second.comment = "of B";
    CANMessage& third = AddMessage(3, "C");
    third.longName = "";
    AddSignal(third, "S").comment = "of S";
    EXPECT_EQ(Section(), Text({
                             "",
                             "CM_ BO_ 2 \"of B\";",
                             "",
                             "CM_ SG_ 3 S \"of S\";",
                         }));
}

TEST_F(WriteComments, LeavesNoLineForALongNameOfASignal) {
    AddSignal(AddMessage(1, "A"), "S").longName = "long S";
    EXPECT_EQ(Section(), "");
}

TEST_F(WriteComments, PutsTheTextOutAsItStands) {
    CANMessage& message = AddMessage(1, "A");
    message.comment = "a \\\"b\\\" c\\\n  \xC3\xA4; \r\td";
    AddSignal(message, "S").comment = std::string(5000, 'x');
    EXPECT_EQ(Section(), "CM_ BO_ 1 \"a \\\"b\\\" c\\\n  \xC3\xA4; \r\td\";\nCM_ SG_ 1 S \"" +
                             std::string(5000, 'x') + "\";\n");
}

TEST_F(WriteComments, LeavesOutTheNameOfASignalWithoutOne) {
    AddSignal(AddMessage(1, "A"), "").comment = "text";
    EXPECT_EQ(Section(), "CM_ SG_ 1 \"text\";\n");
}

TEST_F(WriteComments, NamesASuffixedSignalByItsNewName) {
    CANMessage& message = AddMessage(1, "A");
    AddSignal(message, "S").comment = "first";
    AddSignal(message, "S").comment = "second";
    message.MakeSignalNamesUnique();
    EXPECT_EQ(Section(), Text({"CM_ SG_ 1 S_0000 \"first\";", "CM_ SG_ 1 S_0001 \"second\";"}));
}

TEST_F(WriteComments, DoesNotAskWhetherAnythingIsEmpty) {
    CANMessage& message = AddMessage(1, "A");
    message.isEmpty = true;
    message.comment = "text";
    CANSignal& signal = AddSignal(message, "S");
    signal.isEmpty = true;
    signal.comment = "more";
    EXPECT_EQ(Section(), Text({"CM_ BO_ 1 \"text\";", "CM_ SG_ 1 S \"more\";"}));
}

TEST_F(WriteComments, FollowsTheWriteOrderAndKeepsThatOfTheSignals) {
    for (const auto& [id, name] : {std::pair{1U, "B"}, std::pair{2U, "C"}, std::pair{3U, "A"}}) {
        CANMessage& message = AddMessage(id, name);
        message.comment = name;
        AddSignal(message, "Z").comment = "z";
        AddSignal(message, "Y").comment = "y";
    }
    const std::string a = Text({"CM_ BO_ 3 \"A\";", "CM_ SG_ 3 Z \"z\";", "CM_ SG_ 3 Y \"y\";"});
    const std::string b = Text({"CM_ BO_ 1 \"B\";", "CM_ SG_ 1 Z \"z\";", "CM_ SG_ 1 Y \"y\";"});
    const std::string c = Text({"CM_ BO_ 2 \"C\";", "CM_ SG_ 2 Z \"z\";", "CM_ SG_ 2 Y \"y\";"});
    EXPECT_EQ(Section(OrderByIdDescending), a + c + b);
    EXPECT_EQ(Section(OrderByNameAscending), a + b + c);
    EXPECT_EQ(Section(OrderAsStored), b + c + a);
}

TEST_F(WriteComments, KeepsOneBackslashInFrontOfAQuoteOverTwoRounds) {
    CanMessageRecord record{};
    record.id = 5;
    record.longName[0] = 'M';
    std::string_view("say \"hi\"").copy(record.comment, 8);
    CANMessage& message = AddMessage(5, "M");
    ASSERT_TRUE(message.FillFromRecord(&record));
    const std::string line = "CM_ BO_ 5 \"say \\\"hi\\\"\";\n";
    EXPECT_EQ(Section(), line);
    const std::string path = folder.File("round.dbc");
    ASSERT_EQ(Write(path), (WriteResult{true, 2}));
    std::uint32_t code = 0;
    ASSERT_TRUE(ReadDbcFile(path.c_str(), static_cast<std::uint32_t>(path.size() + 1), code));
    EXPECT_EQ(Section(), line);
}

}  // namespace
}  // namespace vexil
