// Layouts against a plain twin that goes from bit to bit, and against the bits that
// vexil64_frame.h decodes: for random signals and for every signal of real files.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <vexil64_frame.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "layout/bit_layout.h"
#include "tool/experiment.h"
#include "tool/network_maker.h"

namespace vexil::test {
namespace {

// The twin: the numbers of the bits of a signal, from startBit on. Those after a limit are left
// out; a signal never comes back before it.
std::vector<std::uint64_t> Walk(const tool::SignalFacts& signal, std::uint64_t limit) {
    std::vector<std::uint64_t> numbers;
    std::uint64_t number = signal.startBit;
    for (std::uint64_t left = signal.bitLength; left != 0 && number < limit; --left) {
        numbers.push_back(number);
        if (signal.byteOrder == ByteOrderLittleEndian) {
            ++number;
        } else if (number % 8 == 0) {
            number += 15;
        } else {
            --number;
        }
    }
    return numbers;
}

// A frame, bit by bit: which signals have the bit, in the order of the message.
std::vector<std::vector<std::uint32_t>> TwinLayout(const tool::Snapshot& snapshot,
                                                   const tool::MessageFacts& message,
                                                   std::optional<std::uint32_t> value,
                                                   std::size_t byteCount) {
    std::vector<std::vector<std::uint32_t>> owners(byteCount * 8);
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        const std::uint32_t signal = message.firstSignal + index;
        const tool::SignalFacts& facts = snapshot.signals[signal];
        if (facts.multiplexType != MultiplexSelected || facts.multiplexValue == value) {
            for (const std::uint64_t number : Walk(facts, owners.size())) {
                owners[number].push_back(signal);
            }
        }
    }
    return owners;
}

void ExpectTwinLayout(const tool::Snapshot& snapshot, const tool::MessageFacts& message,
                      std::optional<std::uint32_t> value, std::size_t byteCount) {
    const auto twin = TwinLayout(snapshot, message, value, byteCount);
    const auto cells = FrameLayout(snapshot, message, value, byteCount);
    ASSERT_EQ(cells.size(), twin.size());
    for (std::size_t position = 0; position < cells.size(); ++position) {
        SCOPED_TRACE(position);
        const std::vector<std::uint32_t>& owners = twin[position];
        const tool::BitCell& cell = cells[position];
        ASSERT_EQ(cell.signalCount, owners.size());
        ASSERT_EQ(cell.signal, owners.empty() ? tool::NoSignal : owners[0]);
        ASSERT_EQ(cell.other, owners.size() < 2 ? tool::NoSignal : owners[1]);
        if (!owners.empty()) {
            const tool::SignalFacts& facts = snapshot.signals[owners[0]];
            const auto numbers = Walk(facts, cells.size());
            const auto index = static_cast<std::uint32_t>(
                std::find(numbers.begin(), numbers.end(), position) - numbers.begin());
            ASSERT_EQ(cell.signalBit, facts.byteOrder == ByteOrderLittleEndian
                                          ? index
                                          : facts.bitLength - 1 - index);
        }
    }
}

// Every position of the signal, and that decoding reads exactly these bits.
void ExpectDecodedBits(const tool::SignalFacts& facts) {
    constexpr std::uint32_t LongestRaw = 64;
    constexpr std::uint64_t LongestFrame = 1U << 16U;
    const std::uint64_t end = EndByte(facts);
    if (facts.bitLength == 0 || facts.bitLength > LongestRaw || end > LongestFrame) {
        return;
    }
    CanSignalRecord signal{};
    signal.startBit = facts.startBit;
    signal.bitLength = facts.bitLength;
    signal.byteOrder = facts.byteOrder;
    signal.valueType = ValueUnsigned;
    std::vector<std::uint8_t> frame(end);
    std::vector<std::uint8_t> others(end, 0xFF);
    std::uint64_t raw = 0;
    ASSERT_EQ(VexilDecodeRaw(&signal, frame.data(), end - 1, &raw), FrameTooShort);
    const auto numbers = Walk(facts, end * 8);
    ASSERT_EQ(numbers.size(), facts.bitLength);
    for (std::uint32_t index = 0; index < facts.bitLength; ++index) {
        const std::uint64_t position = BitPosition(facts, index);
        ASSERT_EQ(position, numbers[index]);
        const auto bit = static_cast<std::uint8_t>(1U << position % 8);
        frame[position / 8] = bit;
        others[position / 8] = static_cast<std::uint8_t>(others[position / 8] & ~bit);
        ASSERT_EQ(VexilDecodeRaw(&signal, frame.data(), end, &raw), FrameOk);
        const std::uint32_t significance =
            facts.byteOrder == ByteOrderLittleEndian ? index : facts.bitLength - 1 - index;
        ASSERT_EQ(raw, std::uint64_t{1} << significance);
        frame[position / 8] = 0;
    }
    ASSERT_EQ(VexilDecodeRaw(&signal, others.data(), end, &raw), FrameOk);
    ASSERT_EQ(raw, 0U);
}

class RandomSignals {
  public:
    explicit RandomSignals(std::uint32_t seed) : engine(seed) {}

    std::uint32_t Below(std::uint32_t limit) {
        return static_cast<std::uint32_t>(engine() % limit);
    }

    NetworkMaker Network() {
        NetworkMaker network(1 + Below(64));
        const std::uint32_t count = Below(12);
        for (std::uint32_t index = 0; index < count; ++index) {
            tool::SignalFacts& signal =
                network.Add("S", StartBit(), BitLength(),
                            Below(2) == 0 ? ByteOrderBigEndian : ByteOrderLittleEndian);
            signal.multiplexType = Below(3);
            signal.multiplexValue = Below(3);
        }
        return network;
    }

  private:
    std::uint32_t StartBit() { return Below(20) == 0 ? 0xFFFFFFFFU - Below(70) : Below(530); }
    std::uint32_t BitLength() { return Below(20) == 0 ? 0xFFFFFFFFU - Below(70) : Below(70); }

    std::mt19937 engine;
};

TEST(BitLayout, OfRandomSignalsIsThatOfTheReferenceAndOfTheDecoder) {
    constexpr std::uint32_t Networks = 1000;
    for (std::uint32_t seed = 0; seed < Networks; ++seed) {
        SCOPED_TRACE(seed);
        const NetworkMaker network = RandomSignals(seed).Network();
        const tool::MessageFacts& message = network.Message();
        for (const tool::SignalFacts& signal : network.snapshot.signals) {
            ExpectDecodedBits(signal);
        }
        ExpectTwinLayout(network.snapshot, message, std::nullopt, message.dlc);
        for (std::uint32_t value = 0; value < 3; ++value) {
            ExpectTwinLayout(network.snapshot, message, value, message.dlc);
        }
        ASSERT_FALSE(HasFatalFailure());
    }
}

TEST(BitLayout, OfRealFilesIsThatOfTheReferenceAndOfTheDecoder) {
    const char* const folder = std::getenv("VEXIL64_CORPUS");
    if (folder == nullptr || *folder == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    constexpr std::uint32_t LongestFrame = 64;
    Experiment experiment;
    std::size_t signals = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".dbc") {
            continue;
        }
        SCOPED_TRACE(entry.path().string());
        const tool::Snapshot snapshot = experiment.Read(ReadBytes(entry.path().string()));
        for (const tool::SignalFacts& signal : snapshot.signals) {
            ExpectDecodedBits(signal);
        }
        for (const tool::MessageFacts& message : snapshot.messages) {
            const std::uint32_t size = std::min(message.dlc, LongestFrame);
            ExpectTwinLayout(snapshot, message, std::nullopt, size);
            for (const std::uint32_t value : MultiplexValues(snapshot, message)) {
                ExpectTwinLayout(snapshot, message, value, size);
            }
        }
        ASSERT_FALSE(HasFatalFailure());
        signals += snapshot.signals.size();
    }
    EXPECT_GT(signals, 0U);
}

}  // namespace
}  // namespace vexil::test
