// Tests of write/message_section.cpp.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "write/model.h"
#include "write/sections.h"
#include "write/write_order.h"

namespace vexil {
namespace {

using test::Text;

class MessageSection : public test::ModelTest {
  protected:
    std::string Section(std::uint32_t order = OrderAsStored) const {
        return Written([order](StatementFile& file) {
            WriteMessages(file, MessagesInOrder(database.messages, order));
        });
    }
};

std::shared_ptr<CANMessage> Message(std::uint32_t id, std::string_view name, std::uint32_t dlc,
                                    std::string_view transmitter) {
    auto message = test::NewMessage(id, name, transmitter);
    message->dlc = dlc;
    return message;
}

TEST(FormatMessageLine, JoinsIdNameSizeAndTransmitter) {
    EXPECT_EQ(Message(291, "Engine", 8, "ECU1")->FormatMessageLine(), "BO_ 291 Engine: 8 ECU1");
    EXPECT_EQ(Message(0, "E", 0, "A")->FormatMessageLine(), "BO_ 0 E: 0 A");
    EXPECT_EQ(Message(2147483938U, "E", 64, "A")->FormatMessageLine(), "BO_ 2147483938 E: 64 A");
    EXPECT_EQ(Message(4294967295U, "E", 4294967295U, "A")->FormatMessageLine(),
              "BO_ 4294967295 E: 4294967295 A");
}

TEST(FormatMessageLine, NamesTheDefaultForAMissingTransmitterAndStoresItNot) {
    const auto message = Message(1, "E", 8, "");
    EXPECT_EQ(message->FormatMessageLine(), "BO_ 1 E: 8 Marrowby");
    EXPECT_EQ(message->transmitter, "");
}

TEST(FormatMessageLine, LeavesThePlaceOfAMissingNameEmpty) {
    EXPECT_EQ(Message(1, "", 8, "A")->FormatMessageLine(), "BO_ 1 : 8 A");
}

TEST(FormatMessageLine, HasNoPlaceForTheOtherMembers) {
    const auto message = Message(1, "E", 8, "A");
    message->longName = "Long";
    message->rawName = "Raw";
    message->sendType = "Cyclic";
    message->cycleTime = 100;
    message->comment = "text";
    EXPECT_EQ(message->FormatMessageLine(), "BO_ 1 E: 8 A");
}

TEST(FormatMessageLine, IsEmptyForAnEmptyMessage) {
    const auto message = Message(1, "E", 8, "A");
    message->isEmpty = true;
    EXPECT_EQ(message->FormatMessageLine(), "");
}

TEST(FormatSignalHead, TellsTheMultiplexer) {
    struct Case {
        std::uint32_t type;
        std::uint32_t value;
        std::string_view head;
    };
    const Case cases[] = {
        {0, 0, "SG_ S :"},   {0, 7, "SG_ S :"},           {1, 0, "SG_ S M :"},
        {1, 7, "SG_ S M :"}, {2, 3, "SG_ S m3 :"},        {2, 0, "SG_ S m0 :"},
        {3, 7, "SG_ S :"},   {4294967295U, 7, "SG_ S :"}, {2, 4294967295U, "SG_ S m4294967295 :"},
    };
    for (const Case& row : cases) {
        const auto signal = test::NewSignal("S");
        signal->multiplexType = row.type;
        signal->multiplexValue = row.value;
        EXPECT_EQ(signal->FormatSignalHead(), row.head);
    }
}

TEST(FormatBitLayout, TellsOrderAndSign) {
    struct Case {
        std::uint32_t byteOrder;
        std::uint32_t valueType;
        std::string_view layout;
    };
    const Case cases[] = {
        {1, 0, "7|16@1+"},           {0, 0, "7|16@0+"}, {2, 0, "7|16@1+"},
        {4294967295U, 0, "7|16@1+"}, {1, 1, "7|16@1-"}, {0, 1, "7|16@0-"},
        {1, 2, "7|16@1-"},           {1, 3, "7|16@1-"}, {1, 4, "7|16@1-"},
        {1, 4294967295U, "7|16@1-"},
    };
    for (const Case& row : cases) {
        const auto signal = test::NewSignal("S");
        signal->startBit = 7;
        signal->bitLength = 16;
        signal->byteOrder = row.byteOrder;
        signal->valueType = row.valueType;
        EXPECT_EQ(signal->FormatBitLayout(), row.layout);
    }
}

TEST(FormatBitLayout, ChecksNothing) {
    const auto signal = test::NewSignal("S");
    EXPECT_EQ(signal->FormatBitLayout(), "0|0@1+");
    signal->startBit = 4294967295U;
    signal->bitLength = 4294967295U;
    EXPECT_EQ(signal->FormatBitLayout(), "4294967295|4294967295@1+");
}

TEST(FormatScale, JoinsFactorAndOffset) {
    const auto signal = test::NewSignal("S");
    EXPECT_EQ(signal->FormatScale(), "(0,0)");
    signal->factor = 0.1;
    signal->offset = -40;
    EXPECT_EQ(signal->FormatScale(), "(0.1,-40)");
}

TEST(FormatRange, JoinsMinimumAndMaximum) {
    const auto signal = test::NewSignal("S");
    EXPECT_EQ(signal->FormatRange(), "[0|0]");
    signal->minimum = -40;
    signal->maximum = 6553.5;
    EXPECT_EQ(signal->FormatRange(), "[-40|6553.5]");
    // A reversed range is repaired on reading alone.
    signal->minimum = 10;
    signal->maximum = 0;
    EXPECT_EQ(signal->FormatRange(), "[10|0]");
}

TEST(FormatSignalLine, JoinsItsParts) {
    const auto signal = test::NewSignal("Speed");
    signal->multiplexType = MultiplexSelected;
    signal->multiplexValue = 3;
    signal->startBit = 7;
    signal->bitLength = 16;
    signal->byteOrder = ByteOrderBigEndian;
    signal->valueType = ValueSigned;
    signal->factor = 0.5;
    signal->offset = -40;
    signal->minimum = -40;
    signal->maximum = 87.5;
    signal->unit = "km/h";
    signal->receivers = {"A", "B"};
    EXPECT_EQ(signal->FormatSignalLine(),
              " SG_ Speed m3 : 7|16@0- (0.5,-40) [-40|87.5] \"km/h\" A,B");
}

TEST(FormatSignalLine, NamesTheDefaultForMissingReceivers) {
    const auto signal = test::NewSignal("S");
    EXPECT_EQ(signal->FormatSignalLine(), " SG_ S : 0|0@1+ (0,0) [0|0] \"\" Marrowby");
    EXPECT_TRUE(signal->receivers.IsEmpty());
    signal->receivers = {"A"};
    EXPECT_EQ(signal->FormatSignalLine(), " SG_ S : 0|0@1+ (0,0) [0|0] \"\" A");
}

TEST(FormatSignalLine, PutsTheUnitOutAsItStands) {
    const auto signal = test::NewSignal("S");
    signal->unit = " a\"b\\\n\xC2\xB0";
    signal->unitUtf8 = "other";
    EXPECT_EQ(signal->FormatSignalLine(),
              " SG_ S : 0|0@1+ (0,0) [0|0] \" a\"b\\\n\xC2\xB0\" Marrowby");
}

TEST(FormatSignalLine, LeavesThePlaceOfAMissingNameEmpty) {
    EXPECT_EQ(test::NewSignal("")->FormatSignalLine(), " SG_  : 0|0@1+ (0,0) [0|0] \"\" Marrowby");
}

TEST(FormatSignalLine, IsEmptyForAnEmptySignal) {
    const auto signal = test::NewSignal("S");
    signal->isEmpty = true;
    EXPECT_EQ(signal->FormatSignalLine(), "");
}

TEST_F(MessageSection, EndsEachMessageWithAnEmptyLine) {
    AddMessage(2, "B", "ECU1").dlc = 4;
    CANMessage& message = AddMessage(1, "A");
    AddSignal(message, "Z", {"N"});
    AddSignal(message, "Y");
    EXPECT_EQ(Section(), Text({
                             "BO_ 2 B: 4 ECU1",
                             "",
                             "BO_ 1 A: 0 Marrowby",
                             " SG_ Z : 0|0@1+ (0,0) [0|0] \"\" N",
                             " SG_ Y : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                             "",
                         }));
}

TEST_F(MessageSection, FollowsTheWriteOrderAndNotTheSignalNames) {
    AddSignal(AddMessage(1, "B", "N"), "S", {"N"});
    AddMessage(2, "C", "N");
    AddMessage(3, "A", "N");
    const std::string a = "BO_ 3 A: 0 N\n\n";
    const std::string b = "BO_ 1 B: 0 N\n SG_ S : 0|0@1+ (0,0) [0|0] \"\" N\n\n";
    const std::string c = "BO_ 2 C: 0 N\n\n";
    EXPECT_EQ(Section(OrderByIdDescending), a + c + b);
    EXPECT_EQ(Section(OrderByNameAscending), a + b + c);
    EXPECT_EQ(Section(OrderAsStored), b + c + a);
}

TEST_F(MessageSection, HasEmptyLinesForEmptyMessagesAndSignals) {
    AddSignal(AddMessage(1, "A", "N"), "S").isEmpty = true;
    AddMessage(2, "B", "N").isEmpty = true;
    EXPECT_EQ(Section(), Text({"BO_ 1 A: 0 N", "", "", "", ""}));
}

TEST_F(MessageSection, WritesNothingWithoutMessages) {
    EXPECT_EQ(Section(), "");
}

}  // namespace
}  // namespace vexil
