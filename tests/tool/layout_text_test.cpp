// The layout of a frame as a short text.
// SPDX-License-Identifier: MIT
#include "view/layout_text.h"

#include <gtest/gtest.h>

#include <string>

#include "tool/experiment.h"

namespace vexil::test {
namespace {

class LayoutText : public testing::Test {
  protected:
    // The runs of the first message of the text.
    std::string Runs(const std::string& text,
                     std::optional<std::uint32_t> multiplexValue = std::nullopt) {
        const tool::Snapshot snapshot = experiment.Read(text);
        return tool::LayoutText(snapshot, snapshot.messages.at(0), multiplexValue);
    }

    std::size_t Bytes(const std::string& text) {
        const tool::Snapshot snapshot = experiment.Read(text);
        return tool::ShownBytes(snapshot, snapshot.messages.at(0));
    }

    Experiment experiment;
};

std::string Message(int size, const std::string& signals) {
    return "BO_ 1 A: " + std::to_string(size) + " N\n" + signals;
}

std::string Signal(const std::string& name, const std::string& layout) {
    return " SG_ " + name + " : " + layout + " (1,0) [0|0] \"\" R\n";
}

TEST_F(LayoutText, HaveBothByteOrdersAndTheFreeBits) {
    EXPECT_EQ(Runs(Message(1, "")), "8.");
    EXPECT_EQ(Runs(Message(2, Signal("S", "0|16@1+"))), "16a");
    EXPECT_EQ(Runs(Message(4, Signal("S", "4|8@1+") + Signal("T", "23|12@0-"))), "4.8a4.8b4.4b");
}

TEST_F(LayoutText, MarkBitsOfSeveralSignals) {
    EXPECT_EQ(Runs(Message(1, Signal("S", "0|6@1+") + Signal("T", "4|4@1+"))), "4a2a!2b");
}

TEST_F(LayoutText, HaveTheSignalsOfOneMultiplexerValue) {
    const std::string text = Message(
        2, Signal("Sel M", "0|8@1+") + Signal("One m1", "8|8@1+") + Signal("Two m2", "8|4@1+"));
    EXPECT_EQ(Runs(text), "8a8.");
    EXPECT_EQ(Runs(text, 1), "8a8b");
    EXPECT_EQ(Runs(text, 2), "8a4c4.");
}

TEST_F(LayoutText, NumberSignalsInLetters) {
    std::string signals;
    std::string expected;
    for (int index = 0; index < 28; ++index) {
        signals += Signal("S" + std::to_string(index), std::to_string(index) + "|1@1+");
        expected += "1" + (index < 26 ? std::string(1, static_cast<char>('a' + index))
                                      : "a" + std::string(1, static_cast<char>('a' + index - 26)));
    }
    EXPECT_EQ(Runs(Message(4, signals)), expected + "4.");
}

TEST_F(LayoutText, NumberTheSignalsOfEachMessageFromTheFirst) {
    const tool::Snapshot snapshot = experiment.Read(Message(1, Signal("S", "0|8@1+")) +
                                                    "BO_ 2 B: 1 N\n" + Signal("T", "0|8@1+"));
    EXPECT_EQ(tool::LayoutText(snapshot, snapshot.messages.at(1), std::nullopt), "8a");
}

TEST_F(LayoutText, GoOnToTheEndOfTheLastSignal) {
    const std::string text = Message(1, Signal("S", "8|4@1+"));
    EXPECT_EQ(Bytes(text), 2U);
    EXPECT_EQ(Runs(text), "8.4a4.");
}

TEST_F(LayoutText, EndAfterTheLongestFrame) {
    EXPECT_EQ(Bytes("BO_ 1 A: 4294967295 N\n"), 64U);
    EXPECT_EQ(Runs("BO_ 1 A: 4294967295 N\n"), "512.");
    EXPECT_EQ(
        Runs(Message(8, Signal("S", "4294967295|4294967295@1+") + Signal("T", "8|4294967295@1+"))),
        "8.504b");
    EXPECT_EQ(Bytes("BO_ 1 A: 0 N\n"), 0U);
    EXPECT_EQ(Runs("BO_ 1 A: 0 N\n"), "");
}

}  // namespace
}  // namespace vexil::test
