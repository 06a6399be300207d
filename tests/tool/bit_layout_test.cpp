// Positions of bits, overlaps and layouts of single frames.
// SPDX-License-Identifier: MIT
#include "layout/bit_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tool/network_maker.h"

namespace vexil::test {
namespace {

using Positions = std::vector<std::uint64_t>;

Positions PositionsOf(std::uint32_t startBit, std::uint32_t bitLength, std::uint32_t byteOrder) {
    tool::SignalFacts signal;
    signal.startBit = startBit;
    signal.bitLength = bitLength;
    signal.byteOrder = byteOrder;
    Positions positions;
    for (std::uint32_t index = 0; index < bitLength; ++index) {
        positions.push_back(tool::BitPosition(signal, index));
    }
    return positions;
}

std::uint64_t EndOf(std::uint32_t startBit, std::uint32_t bitLength, std::uint32_t byteOrder) {
    tool::SignalFacts signal;
    signal.startBit = startBit;
    signal.bitLength = bitLength;
    signal.byteOrder = byteOrder;
    return tool::EndByte(signal);
}

// Each overlap as "signal other".
std::vector<std::string> OverlapsOf(const NetworkMaker& network) {
    std::vector<std::string> shown;
    for (const tool::Overlap& each : FindOverlaps(network.snapshot, network.Message())) {
        shown.push_back(
            std::string(network.snapshot.Text(network.snapshot.signals[each.signal].name)) + " " +
            std::string(network.snapshot.Text(network.snapshot.signals[each.other].name)));
    }
    return shown;
}

// The bits of a frame, bit 0 first: "." for a free one, the name of its signal and the bit of the
// signal for another one, and the second signal and the number of signals of an overlap.
std::string Shown(const NetworkMaker& network, const std::vector<tool::BitCell>& cells) {
    const auto nameOf = [&](std::uint32_t signal) {
        return std::string(network.snapshot.Text(network.snapshot.signals[signal].name));
    };
    std::string shown;
    for (const tool::BitCell& cell : cells) {
        shown += shown.empty() ? "" : " ";
        if (cell.signalCount == 0) {
            EXPECT_EQ(cell.signal, tool::NoSignal);
            EXPECT_EQ(cell.other, tool::NoSignal);
            shown += ".";
            continue;
        }
        shown += nameOf(cell.signal) + std::to_string(cell.signalBit);
        if (cell.signalCount > 1) {
            shown += "+" + nameOf(cell.other) + "=" + std::to_string(cell.signalCount);
        }
    }
    return shown;
}

std::string LayoutOf(const NetworkMaker& network, std::optional<std::uint32_t> value,
                     std::size_t byteCount) {
    return Shown(network, FrameLayout(network.snapshot, network.Message(), value, byteCount));
}

TEST(BitPosition, AscendsInALittleEndianSignal) {
    EXPECT_EQ(PositionsOf(6, 4, ByteOrderLittleEndian), (Positions{6, 7, 8, 9}));
}

TEST(BitPosition, GoesDownInTheByteAndOnToTheNextByteInABigEndianSignal) {
    EXPECT_EQ(PositionsOf(1, 4, ByteOrderBigEndian), (Positions{1, 0, 15, 14}));
    EXPECT_EQ(PositionsOf(7, 9, ByteOrderBigEndian), (Positions{7, 6, 5, 4, 3, 2, 1, 0, 15}));
}

TEST(BitPosition, DoesNotOverflow) {
    constexpr std::uint64_t Largest = 0xFFFFFFFFU;
    EXPECT_EQ(PositionsOf(0xFFFFFFFFU, 2, ByteOrderLittleEndian),
              (Positions{Largest, Largest + 1}));
    EXPECT_EQ(PositionsOf(0xFFFFFFF8U, 2, ByteOrderBigEndian),
              (Positions{Largest - 7, Largest + 8}));
}

TEST(EndByte, IsOneMoreThanTheLastByte) {
    EXPECT_EQ(EndOf(0, 8, ByteOrderLittleEndian), 1U);
    EXPECT_EQ(EndOf(0, 9, ByteOrderLittleEndian), 2U);
    EXPECT_EQ(EndOf(7, 8, ByteOrderBigEndian), 1U);
    EXPECT_EQ(EndOf(6, 8, ByteOrderBigEndian), 2U);
    EXPECT_EQ(EndOf(63, 1, ByteOrderLittleEndian), 8U);
}

TEST(EndByte, IsZeroForASignalWithoutBits) {
    EXPECT_EQ(EndOf(40, 0, ByteOrderLittleEndian), 0U);
}

TEST(EndByte, DoesNotOverflow) {
    constexpr std::uint64_t TwoToThe29 = 0x20000000U;
    EXPECT_EQ(EndOf(0xFFFFFFFFU, 0xFFFFFFFFU, ByteOrderLittleEndian), 2 * TwoToThe29);
    EXPECT_EQ(EndOf(0xFFFFFFFFU, 0xFFFFFFFFU, ByteOrderBigEndian), 2 * TwoToThe29 - 1);
    EXPECT_EQ(EndOf(0xFFFFFFF8U, 2, ByteOrderBigEndian), TwoToThe29 + 1);
}

TEST(FindOverlaps, FindsOneSharedBit) {
    NetworkMaker network(8);
    network.Add("A", 0, 8);
    network.Add("B", 8, 8);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>());
    network.Add("C", 15, 2);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>{"C B"});
}

TEST(FindOverlaps, ComparesBothByteOrders) {
    NetworkMaker network(8);
    network.Add("A", 3, 12, ByteOrderBigEndian);
    network.Add("B", 4, 4);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>());
    network.Add("C", 8, 1);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>{"C A"});
}

TEST(FindOverlaps, ComparesMultiplexedSignalsOfTheSameValueAndThoseOfEveryFrame) {
    NetworkMaker network(8);
    network.AddSelected(1, "A", 0, 8);
    network.AddSelected(2, "B", 0, 8);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>());
    network.AddSelected(2, "C", 7, 1);
    network.Add("D", 0, 1);
    EXPECT_EQ(OverlapsOf(network), (std::vector<std::string>{"A D", "B D", "C B"}));
}

TEST(FindOverlaps, FindsNoneInTheMessageOfSignalsWithoutAMessage) {
    NetworkMaker network(0, tool::IndependentSignalsId);
    network.Add("A", 0, 8);
    network.Add("B", 0, 8);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>());
}

TEST(FindOverlaps, LooksAtTheFirst4096BitsOfSignalsOfAnyLength) {
    NetworkMaker network(8);
    network.Add("A", 4095, 0xFFFFFFFFU);
    network.Add("B", 4096, 0xFFFFFFFFU);
    network.Add("C", 0xFFFFFFFFU, 0xFFFFFFFFU, ByteOrderBigEndian);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>());
    network.Add("D", 4095, 1);
    EXPECT_EQ(OverlapsOf(network), std::vector<std::string>{"D A"});
}

TEST(MultiplexValues, AreAscendingAndUnique) {
    NetworkMaker network(8);
    network.Add("Selector", 0, 8).multiplexType = MultiplexSelector;
    network.AddSelected(7, "A", 8, 8);
    network.AddSelected(0xFFFFFFFFU, "B", 8, 8);
    network.AddSelected(0, "C", 8, 8);
    network.AddSelected(7, "D", 16, 8);
    EXPECT_EQ(MultiplexValues(network.snapshot, network.Message()),
              (std::vector<std::uint32_t>{0, 7, 0xFFFFFFFFU}));
}

TEST(FrameLayout, NumbersTheBitsOfBothByteOrdersFromTheLeastSignificantOne) {
    NetworkMaker network(2);
    network.Add("L", 0, 3);
    network.Add("B", 4, 10, ByteOrderBigEndian);
    EXPECT_EQ(LayoutOf(network, std::nullopt, 2),
              "L0+B=2 L1+B=2 L2+B=2 B8 B9 . . . . . . B0 B1 B2 B3 B4");
}

TEST(FrameLayout, HasTheSignalsOfOneMultiplexerValue) {
    NetworkMaker network(1);
    network.AddSelected(1, "A", 4, 2);
    network.Add("M", 0, 2).multiplexType = MultiplexSelector;
    network.AddSelected(2, "B", 4, 4);
    EXPECT_EQ(LayoutOf(network, 1, 1), "M0 M1 . . A0 A1 . .");
    EXPECT_EQ(LayoutOf(network, 2, 1), "M0 M1 . . B0 B1 B2 B3");
    EXPECT_EQ(LayoutOf(network, 3, 1), "M0 M1 . . . . . .");
    EXPECT_EQ(LayoutOf(network, std::nullopt, 1), "M0 M1 . . . . . .");
}

TEST(FrameLayout, HasTheSignalsOfAnOverlapInTheOrderOfTheMessage) {
    NetworkMaker network(1);
    network.AddSelected(1, "A", 0, 3);
    network.Add("B", 1, 3);
    network.AddSelected(1, "C", 2, 3);
    network.Add("D", 2, 1);
    EXPECT_EQ(LayoutOf(network, 1, 1), "A0 A1+B=2 A2+B=4 B2+C=2 C2 . . .");
}

TEST(FrameLayout, LeavesOutTheBitsAfterTheFrame) {
    NetworkMaker network(8);
    network.Add("A", 6, 0xFFFFFFFFU);
    network.Add("B", 0xFFFFFFFFU, 1);
    network.Add("C", 1, 0xFFFFFFFFU, ByteOrderBigEndian);
    EXPECT_EQ(LayoutOf(network, std::nullopt, 1), "C4294967293 C4294967294 . . . . A0 A1");
    EXPECT_EQ(LayoutOf(network, std::nullopt, 0), "");
}

TEST(FrameLayout, HasNoMoreThan4096Bits) {
    NetworkMaker network(8);
    network.Add("A", 4095, 2);
    const std::vector<tool::BitCell> cells =
        FrameLayout(network.snapshot, network.Message(), std::nullopt, 0xFFFFFFFFU);
    ASSERT_EQ(cells.size(), 4096U);
    EXPECT_EQ(cells[4094].signalCount, 0U);
    EXPECT_EQ(cells[4095].signalCount, 1U);
}

TEST(FrameLayouts, AreTheSameInAnyOrder) {
    NetworkMaker network(1);
    network.Add("M", 0, 2).multiplexType = MultiplexSelector;
    network.AddSelected(2, "B", 1, 4);
    network.AddSelected(1, "A", 4, 2);
    const tool::FrameLayouts layouts(network.snapshot, network.Message(), 1);
    EXPECT_EQ(Shown(network, layouts.At(2)), "M0 M1+B=2 B1 B2 B3 . . .");
    EXPECT_EQ(Shown(network, layouts.At(std::nullopt)), "M0 M1 . . . . . .");
    EXPECT_EQ(Shown(network, layouts.At(1)), "M0 M1 . . A0 A1 . .");
}

}  // namespace
}  // namespace vexil::test
