// Tests of attributes/attribute_section.h: from a model to lines.
// SPDX-License-Identifier: MIT
#include "attributes/attribute_section.h"

#include <gtest/gtest.h>

#include "write/model.h"

namespace vexil {
namespace {

using test::Text;

class WriteAttributeSection : public test::ModelTest {
  protected:
    std::string Section() const { return Written(vexil::WriteAttributeSection); }
};

TEST_F(WriteAttributeSection, WritesNothingForAPlainDatabase) {
    AddSignal(AddMessage(256, "Eng"), "Rpm");
    EXPECT_EQ(Section(), "");
}

TEST_F(WriteAttributeSection, WritesTenLinesForEverythingAtOnce) {
    database.info = {ProtocolJ1939, BusCanFd};
    CANMessage& message = AddMessage(256, "Eng");
    message.longName = "Engine data";
    AddSignal(message, "Rpm").longName = "Engine speed";
    EXPECT_EQ(Section(), Text({
                             "BA_DEF_ \"BusType\" STRING ;",
                             "BA_DEF_ \"J1939PGN\" INT 0 1;",
                             "BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;",
                             "BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;",
                             "BA_DEF_DEF_ \"BusType\" \"CAN FD\";",
                             "BA_DEF_DEF_ \"J1939PGN\" 1;",
                             "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";",
                             "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"\";",
                             "BA_ \"Marrowby_Msg_Name\" BO_ 256 \"Engine data\";",
                             "BA_ \"Marrowby_Sig_Name\" SG_ 256 Rpm \"Engine speed\";",
                         }));
}

TEST_F(WriteAttributeSection, WritesTheBusTypeOnlyForCanFd) {
    AddMessage(1, "A");
    for (const std::uint32_t busType : {0U, 2U, 4294967295U}) {
        database.info.busType = busType;
        EXPECT_EQ(Section(), "") << busType;
    }
    database.info.busType = BusCanFd;
    EXPECT_EQ(Section(), Text({"BA_DEF_ \"BusType\" STRING ;",  //
                               "BA_DEF_DEF_ \"BusType\" \"CAN FD\";"}));
}

TEST_F(WriteAttributeSection, WritesTheProtocol) {
    AddMessage(1, "A");
    for (const std::uint32_t protocol : {0U, 3U, 4294967295U}) {
        database.info.protocolType = protocol;
        EXPECT_EQ(Section(), "") << protocol;
    }
    database.info.protocolType = ProtocolJ1939;
    EXPECT_EQ(Section(), Text({"BA_DEF_ \"J1939PGN\" INT 0 1;",  //
                               "BA_DEF_DEF_ \"J1939PGN\" 1;"}));
    database.info.protocolType = ProtocolNmea;
    EXPECT_EQ(Section(), Text({"BA_DEF_ \"IsNMEA\" INT 0 1;",  //
                               "BA_DEF_DEF_ \"IsNMEA\" 1;"}));
}

TEST_F(WriteAttributeSection, WritesTheLongNameOfTheOneMessageThatHasOne) {
    AddMessage(1, "A");
    AddMessage(2, "B").longName = "b";
    AddMessage(3, "C");
    EXPECT_EQ(Section(), Text({"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";",
                               "BA_ \"Marrowby_Msg_Name\" BO_ 2 \"b\";"}));
}

TEST_F(WriteAttributeSection, WritesTheLongNameOfTheOneSignalThatHasOne) {
    CANMessage& message = AddMessage(2147483938U, "A");
    AddSignal(message, "S");
    AddSignal(message, "T").longName = "T ";
    EXPECT_EQ(Section(), Text({"BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"\";",
                               "BA_ \"Marrowby_Sig_Name\" SG_ 2147483938 T \"T \";"}));
}

TEST_F(WriteAttributeSection, WritesAnEmptyLongName) {
    AddMessage(1, "A").longName = "";
    EXPECT_EQ(Section(), Text({"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";",
                               "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"\";"}));
}

TEST_F(WriteAttributeSection, WritesOneLineForMessagesOfOneId) {
    AddMessage(1, "A").longName = "first";
    AddMessage(1, "B").longName = "second";
    EXPECT_EQ(Section(), Text({"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";",
                               "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"first\";"}));
}

TEST_F(WriteAttributeSection, WritesOneLineForSignalsOfOneIdAndName) {
    CANMessage& first = AddMessage(1, "A");
    AddSignal(first, "S").longName = "first";
    AddSignal(first, "S").longName = "second";
    CANMessage& second = AddMessage(1, "B");
    AddSignal(second, "S").longName = "third";
    AddSignal(second, "T").longName = "fourth";
    EXPECT_EQ(Section(), Text({"BA_DEF_ SG_ \"Marrowby_Sig_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Sig_Name\" \"\";",
                               "BA_ \"Marrowby_Sig_Name\" SG_ 1 S \"first\";",
                               "BA_ \"Marrowby_Sig_Name\" SG_ 1 T \"fourth\";"}));
}

TEST_F(WriteAttributeSection, EscapesNothing) {
    AddMessage(1, "A").longName = "a\"b\\c;d,\xC3\xA4";
    EXPECT_EQ(Section(), Text({"BA_DEF_ BO_ \"Marrowby_Msg_Name\" STRING ;",
                               "BA_DEF_DEF_ \"Marrowby_Msg_Name\" \"\";",
                               "BA_ \"Marrowby_Msg_Name\" BO_ 1 \"a\"b\\c;d,\xC3\xA4\";"}));
}

TEST_F(WriteAttributeSection, WritesNoneOfTheAttributesThatAreOnlyRead) {
    CANMessage& message = AddMessage(1, "A");
    message.sendType = "Cyclic";
    message.cycleTime = 100;
    CANSignal& signal = AddSignal(message, "S");
    signal.startValue = 1;
    signal.inactiveValue = 2;
    EXPECT_EQ(Section(), "");
}

TEST_F(WriteAttributeSection, LeavesTheAttributesOfTheDatabaseUnchanged) {
    Attribute left;
    left.name = "J1939PGN";
    database.attributes.AddDefinition(left);
    AddMessage(1, "A");
    EXPECT_EQ(Section(), "");
    database.info.busType = BusCanFd;
    EXPECT_EQ(Section(), Text({"BA_DEF_ \"BusType\" STRING ;",  //
                               "BA_DEF_DEF_ \"BusType\" \"CAN FD\";"}));
    ASSERT_EQ(database.attributes.definitions.size(), 1U);
    EXPECT_EQ(database.attributes.definitions.front()->name, "J1939PGN");
}

}  // namespace
}  // namespace vexil
