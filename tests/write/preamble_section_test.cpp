// Tests of the node list of write/preamble_section.cpp. The golden files show the rest of it.
// SPDX-License-Identifier: MIT
#include "write/model.h"
#include "write/sections.h"

namespace vexil {
namespace {

class NodeList : public test::ModelTest {
  protected:
    // A node name of so many characters that sorts after all earlier ones.
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

    // The node list without its last line end and the empty line.
    std::string Nodes() const {
        const std::string section = Written(WriteNodes);
        EXPECT_TRUE(section.ends_with("\n\n"));
        return section.substr(0, section.size() - 2);
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

TEST_F(NodeList, IsEmptyForAnEmptyDatabase) {
    EXPECT_EQ(Nodes(), "BU_ : ");
}

TEST_F(NodeList, NamesTheDefaultForAMissingTransmitter) {
    AddMessage(1, "M");
    EXPECT_EQ(Nodes(), "BU_ :  Marrowby");
}

TEST_F(NodeList, NamesTheDefaultForMissingReceivers) {
    CANMessage& message = AddMessage(1, "M", "ECU1");
    AddSignal(message, "S", "ECU2");
    EXPECT_EQ(Nodes(), "BU_ :  ECU2 ECU1");
    AddSignal(message, "T");
    EXPECT_EQ(Nodes(), "BU_ :  Marrowby ECU2 ECU1");
}

TEST_F(NodeList, NamesTransmittersAndReceiversInDescendingOrder) {
    CANMessage& message = AddMessage(1, "M", "ECU1");
    AddSignal(message, "S", "ECU2");
    AddSignal(message, "T", "ECU1,ECU3");
    EXPECT_EQ(Nodes(), "BU_ :  ECU3 ECU2 ECU1");
}

TEST_F(NodeList, NamesEachNodeOnce) {
    CANMessage& message = AddMessage(1, "M", "A");
    AddSignal(message, "S", "A,B,A");
    AddSignal(AddMessage(2, "N", "B"), "S", "B");
    EXPECT_EQ(Nodes(), "BU_ :  B A");
}

TEST_F(NodeList, OrdersByBytesAndTheShorterNameFirst) {
    AddTransmitters({"ecu", "ECU", "Ab", "Abc", "\xC3\xA4", "_", "9"});
    EXPECT_EQ(Nodes(), "BU_ :  \xC3\xA4 ecu _ ECU Abc Ab 9");
}

TEST_F(NodeList, WritesReceiversUnchanged) {
    AddSignal(AddMessage(1, "M", "A"), "S", "no identifier");
    EXPECT_EQ(Nodes(), "BU_ :  no identifier A");
}

TEST_F(NodeList, WrapsNamesOf32Characters) {
    for (int node = 0; node < 24; ++node) {
        AddMessage(1, "M", NextName(32));
    }
    const std::string text = Nodes();
    EXPECT_EQ(LineLengths(text), (std::vector<std::size_t>{237, 263, 263, 32}));
    // A name after a line break starts in the first column.
    EXPECT_EQ(text.substr(0, 13), "BU_ :  10023x");
    EXPECT_EQ(text.substr(236, 8), "x\n10016x");
    EXPECT_EQ(text.substr(500, 8), "x\n10008x");
    EXPECT_EQ(text.substr(764, 8), "x\n10000x");
}

TEST_F(NodeList, WrapsNothingBelow256) {
    // There are 6 + 1 + 100 characters before the second name; 107 + 148 is 255.
    AddTransmitters({std::string(148, 'a'), std::string(100, 'b')});
    EXPECT_EQ(LineLengths(Nodes()), (std::vector<std::size_t>{256}));
    test::ClearDatabase();
    AddTransmitters({std::string(149, 'a'), std::string(100, 'b')});
    EXPECT_EQ(LineLengths(Nodes()), (std::vector<std::size_t>{107, 149}));
}

TEST_F(NodeList, WrapsBeforeAFirstNameOf250Characters) {
    AddTransmitters({std::string(249, 'a')});
    EXPECT_EQ(Nodes(), "BU_ :  " + std::string(249, 'a'));
    test::ClearDatabase();
    AddTransmitters({std::string(250, 'a')});
    EXPECT_EQ(Nodes(), "BU_ : \n" + std::string(250, 'a'));
}

TEST_F(NodeList, WrapsAtMultiplesOf256CharactersNotByLineLength) {
    // The first name reaches far past the mark of the first wrap, and each wrap moves the mark by
    // 256 only.
    AddTransmitters({std::string(600, 'd'), "c", "b", "a"});
    EXPECT_EQ(Nodes(), "BU_ : \n" + std::string(600, 'd') + "\nc b a");
    test::ClearDatabase();
    AddTransmitters({std::string(900, 'd'), "c", "b", "a"});
    EXPECT_EQ(Nodes(), "BU_ : \n" + std::string(900, 'd') + "\nc\nb a");
}

}  // namespace
}  // namespace vexil
