// The layout of a frame as a short text.
// SPDX-License-Identifier: MIT
#include "view/layout_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

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

// The owner of each bit: 0 for none, the number of a signal from 1 on, or -1 for several.
using Owners = std::vector<int>;

struct PlacedSignal {
    int start = 0;
    int length = 0;
    bool isBigEndian = false;
};

// Goes from bit to bit, as the format describes it.
Owners OwnersOf(const std::vector<PlacedSignal>& signals, int bytes) {
    Owners owners(static_cast<std::size_t>(bytes) * 8);
    for (std::size_t index = 0; index < signals.size(); ++index) {
        int bit = signals[index].start;
        for (int count = 0; count < signals[index].length; ++count) {
            int& owner = owners.at(static_cast<std::size_t>(bit));
            owner = owner == 0 ? static_cast<int>(index) + 1 : -1;
            bit += !signals[index].isBigEndian ? 1 : bit % 8 == 0 ? 15 : -1;
        }
    }
    return owners;
}

// Reads the runs; there are no more than 26 signals.
Owners OwnersIn(std::string_view runs) {
    Owners owners;
    while (!runs.empty()) {
        const std::size_t digits = runs.find_first_not_of("0123456789");
        const int length = std::stoi(std::string(runs.substr(0, digits)));
        int owner = runs[digits] == '.' ? 0 : runs[digits] - 'a' + 1;
        runs.remove_prefix(digits + 1);
        if (runs.starts_with('!')) {
            owner = -1;
            runs.remove_prefix(1);
        }
        owners.insert(owners.end(), static_cast<std::size_t>(length), owner);
    }
    return owners;
}

TEST_F(LayoutText, AgreeWithAWalkFromBitToBit) {
    constexpr int Bytes = 64;
    std::mt19937 random(1);
    const auto below = [&random](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    for (int network = 0; network < 200; ++network) {
        std::vector<PlacedSignal> placed;
        std::string text = Message(Bytes, "");
        for (int number = 1 + below(8); number > 0; --number) {
            PlacedSignal signal;
            signal.start = below(Bytes * 8);
            signal.isBigEndian = below(2) == 0;
            const int bit = signal.start % 8;
            const int room = signal.isBigEndian ? Bytes * 8 - signal.start / 8 * 8 - (7 - bit)
                                                : Bytes * 8 - signal.start;
            signal.length = 1 + below(std::min(64, room));
            text += Signal("S" + std::to_string(placed.size()),
                           std::to_string(signal.start) + "|" + std::to_string(signal.length) +
                               (signal.isBigEndian ? "@0+" : "@1+"));
            placed.push_back(signal);
        }
        EXPECT_EQ(OwnersIn(Runs(text)), OwnersOf(placed, Bytes)) << text;
    }
}

}  // namespace
}  // namespace vexil::test
