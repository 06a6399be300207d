// Tests of write/message_section.cpp.
// SPDX-License-Identifier: MIT
#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

using test::Text;

class MessageSection : public test::ModelTest {
  protected:
    std::string Section() const { return Written(WriteMessages); }

    // Expects the line of the only signal of the only message.
    void ExpectSignal(std::string_view line) const {
        EXPECT_EQ(Section(), Text({"BO_ 1 M: 0 N", line, ""}));
    }

    CANSignal& OnlySignal(std::string_view name, std::string_view receivers = {}) {
        test::ClearDatabase();
        return AddSignal(AddMessage(1, "M", "N"), name, receivers);
    }
};

TEST_F(MessageSection, JoinsIdNameSizeAndTransmitter) {
    CANMessage& message = AddMessage(291, "Engine", "ECU1");
    message.dlc = 8;
    EXPECT_EQ(Section(), "BO_ 291 Engine: 8 ECU1\n\n");
    message.id = message.dlc = 4294967295U;
    EXPECT_EQ(Section(), "BO_ 4294967295 Engine: 4294967295 ECU1\n\n");
    message.longName = "Long";
    message.sendType = "Cyclic";
    message.cycleTime = 100;
    EXPECT_EQ(Section(), "BO_ 4294967295 Engine: 4294967295 ECU1\n\n");
}

TEST_F(MessageSection, WritesDefaultNodesAndEmptyNames) {
    AddSignal(AddMessage(0, ""), "");
    EXPECT_EQ(Section(), Text({
                             "BO_ 0 : 0 Marrowby",
                             " SG_  : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                             "",
                         }));
}

TEST_F(MessageSection, WritesTheMultiplexIndicator) {
    struct Case {
        std::uint32_t type;
        std::uint32_t value;
        std::string_view head;
    };
    const Case cases[] = {
        {0, 0, "S"},   {0, 7, "S"},           {1, 0, "S M"},
        {1, 7, "S M"}, {2, 3, "S m3"},        {2, 0, "S m0"},
        {3, 7, "S"},   {4294967295U, 7, "S"}, {2, 4294967295U, "S m4294967295"},
    };
    for (const Case& row : cases) {
        CANSignal& signal = OnlySignal("S", "N");
        signal.multiplexType = row.type;
        signal.multiplexValue = row.value;
        ExpectSignal(std::string(" SG_ ").append(row.head).append(" : 0|0@1+ (0,0) [0|0] \"\" N"));
    }
}

TEST_F(MessageSection, WritesByteOrderAndSign) {
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
        CANSignal& signal = OnlySignal("S", "N");
        signal.startBit = 7;
        signal.bitLength = 16;
        signal.byteOrder = row.byteOrder;
        signal.valueType = row.valueType;
        ExpectSignal(std::string(" SG_ S : ").append(row.layout).append(" (0,0) [0|0] \"\" N"));
    }
}

TEST_F(MessageSection, JoinsThePartsOfASignalAndChecksNothing) {
    CANSignal& signal = OnlySignal("Speed", "A,B");
    signal.startBit = 4294967295U;
    signal.bitLength = 4294967295U;
    signal.factor = 0.5;
    signal.offset = -40;
    signal.minimum = 40;
    signal.maximum = -6553.5;
    signal.unit = " a\"b\\\xC2\xB0";
    signal.unitUtf8 = "other";
    ExpectSignal(
        " SG_ Speed : 4294967295|4294967295@1+ (0.5,-40) [40|-6553.5] \" a\"b\\\xC2\xB0\" A,B");
}

TEST_F(MessageSection, EndsEachMessageWithAnEmptyLine) {
    AddMessage(2, "B", "ECU1").dlc = 4;
    CANMessage& message = AddMessage(1, "A");
    AddSignal(message, "Z", "N");
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

TEST_F(MessageSection, WritesNothingWithoutMessages) {
    EXPECT_EQ(Section(), "");
}

}  // namespace
}  // namespace vexil
