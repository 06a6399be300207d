// Tests of write/preamble_section.cpp.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

using test::Text;

class Preamble : public test::ModelTest {
  protected:
    // A node name of so many characters that sorts behind all that were made before it.
    std::string NextName(std::size_t size) {
        std::string name = std::to_string(10000 + count++);
        name.resize(size, 'x');
        return name;
    }

    // Fills the database with messages of these transmitters.
    static void AddTransmitters(const std::vector<std::string>& transmitters) {
        for (const std::string& transmitter : transmitters) {
            AddMessage(1, "M", transmitter);
        }
    }

    static std::vector<std::size_t> LineLengths(const std::string& text) {
        std::vector<std::size_t> lengths(1);
        for (const char ch : text) {
            if (ch == '\n') {
                lengths.push_back(0);
            } else {
                ++lengths.back();
            }
        }
        return lengths;
    }

    int count = 0;
};

TEST_F(Preamble, BeginsWithVersionAndSymbols) {
    EXPECT_EQ(Written(WriteVersionAndSymbols), Text({
                                                   "VERSION \"\"",
                                                   "",
                                                   "NS_ :",
                                                   "    NS_DESC_",
                                                   "    CM_",
                                                   "    BA_DEF_",
                                                   "    BA_",
                                                   "    VAL_",
                                                   "    CAT_DEF_",
                                                   "    CAT_",
                                                   "    FILTER",
                                                   "    BA_DEF_DEF_",
                                                   "    EV_DATA_",
                                                   "    ENVVAR_DATA_",
                                                   "    SGTYPE_",
                                                   "    SGTYPE_VAL_",
                                                   "    BA_DEF_SGTYPE_",
                                                   "    BA_SGTYPE_",
                                                   "    SIG_TYPE_REF_",
                                                   "    VAL_TABLE_",
                                                   "    SIG_GROUP_",
                                                   "    SIG_VALTYPE_",
                                                   "    SIGTYPE_VALTYPE_",
                                                   "    BO_TX_BU_",
                                                   "    BA_DEF_REL_",
                                                   "    BA_REL_",
                                                   "    BA_DEF_DEF_REL_",
                                                   "    BU_SG_REL_",
                                                   "    BU_EV_REL_",
                                                   "    BU_BO_REL_",
                                                   "    SG_MUL_VAL_",
                                                   "",
                                               }));
}

TEST_F(Preamble, HasAnEmptyBitTiming) {
    EXPECT_EQ(Written(WriteBitTiming), "BS_ :\n\n");
}

TEST_F(Preamble, HasTheNodeListWithAnEmptyLineBehindIt) {
    AddMessage(1, "M", "ECU1");
    EXPECT_EQ(Written(WriteNodes), "BU_ :  ECU1\n\n");
}

using BuildNodeList = Preamble;

TEST_F(BuildNodeList, NamesNobodyForAnEmptyDatabase) {
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ : ");
}

TEST_F(BuildNodeList, NamesTheDefaultForAMissingTransmitter) {
    AddMessage(1, "M");
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  Marrowby");
}

TEST_F(BuildNodeList, NamesTheDefaultForMissingReceivers) {
    CANMessage& message = AddMessage(1, "M", "ECU1");
    AddSignal(message, "S", {"ECU2"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  ECU2 ECU1");
    AddSignal(message, "T");
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  Marrowby ECU2 ECU1");
    EXPECT_TRUE(message.signals[1]->receivers.IsEmpty());
}

TEST_F(BuildNodeList, NamesTransmittersAndReceiversInDescendingOrder) {
    CANMessage& message = AddMessage(1, "M", "ECU1");
    AddSignal(message, "S", {"ECU2"});
    AddSignal(message, "T", {"ECU1", "ECU3"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  ECU3 ECU2 ECU1");
}

TEST_F(BuildNodeList, NamesEachNodeOnce) {
    CANMessage& message = AddMessage(1, "M", "A");
    AddSignal(message, "S", {"A", "B", "A"});
    AddSignal(AddMessage(2, "N", "B"), "S", {"B"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  B A");
}

TEST_F(BuildNodeList, OrdersByBytesAndTheShorterNameFirst) {
    AddTransmitters({"ecu", "ECU", "Ab", "Abc", "\xC3\xA4", "_", "9"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  \xC3\xA4 ecu _ ECU Abc Ab 9");
}

TEST_F(BuildNodeList, TakesReceiversAsTheyStand) {
    AddSignal(AddMessage(1, "M", "A"), "S", {"no identifier"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  no identifier A");
}

TEST_F(BuildNodeList, CountsEmptyMessagesAndSignals) {
    CANMessage& message = AddMessage(1, "M", "A");
    message.isEmpty = true;
    AddSignal(message, "S", {"B"}).isEmpty = true;
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  B A");
}

TEST_F(BuildNodeList, WrapsNamesOf32Characters) {
    for (int node = 0; node < 24; ++node) {
        AddMessage(1, "M", NextName(32));
    }
    const std::string text = vexil::BuildNodeList();
    EXPECT_EQ(LineLengths(text), (std::vector<std::size_t>{237, 263, 263, 32}));
    // A name behind a wrap stands in the first column.
    EXPECT_EQ(text.substr(0, 13), "BU_ :  10023x");
    EXPECT_EQ(text.substr(236, 8), "x\n10016x");
    EXPECT_EQ(text.substr(500, 8), "x\n10008x");
    EXPECT_EQ(text.substr(764, 8), "x\n10000x");
}

TEST_F(BuildNodeList, WrapsNothingBelow256) {
    // In front of the second name stand 6 + 1 + 100 characters; 107 + 148 is 255.
    AddTransmitters({std::string(148, 'a'), std::string(100, 'b')});
    EXPECT_EQ(LineLengths(vexil::BuildNodeList()), (std::vector<std::size_t>{256}));
    Empty();
    AddTransmitters({std::string(149, 'a'), std::string(100, 'b')});
    EXPECT_EQ(LineLengths(vexil::BuildNodeList()), (std::vector<std::size_t>{107, 149}));
}

TEST_F(BuildNodeList, WrapsInFrontOfAFirstNameOf250Characters) {
    AddTransmitters({std::string(249, 'a')});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ :  " + std::string(249, 'a'));
    Empty();
    AddTransmitters({std::string(250, 'a')});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ : \n" + std::string(250, 'a'));
}

TEST_F(BuildNodeList, WrapsByThePassedMultipleOf256AndNotByTheLine) {
    // The first name reaches far past the mark of the first wrap, and each wrap moves the mark by
    // 256 only.
    AddTransmitters({std::string(600, 'd'), "c", "b", "a"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ : \n" + std::string(600, 'd') + "\nc b a");
    Empty();
    AddTransmitters({std::string(900, 'd'), "c", "b", "a"});
    EXPECT_EQ(vexil::BuildNodeList(), "BU_ : \n" + std::string(900, 'd') + "\nc\nb a");
}

}  // namespace
}  // namespace vexil
