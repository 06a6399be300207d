// Property tests of vexil64_frame.h: every layout against a reference implementation that processes
// one bit at a time, and round trips of values.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "frame_signals.h"

namespace vexil::test {
namespace {

// The reference: returns the bit numbers of a signal, from the most to the least significant.
std::vector<std::uint32_t> BitNumbers(const CanSignalRecord& signal) {
    std::vector<std::uint32_t> numbers;
    std::uint32_t number = signal.startBit;
    while (numbers.size() < signal.bitLength) {
        numbers.push_back(number);
        if (signal.byteOrder == ByteOrderLittleEndian) {
            ++number;
        } else if (number % 8 == 0) {
            number += 15;
        } else {
            --number;
        }
    }
    if (signal.byteOrder == ByteOrderLittleEndian) {
        std::reverse(numbers.begin(), numbers.end());
    }
    return numbers;
}

bool ReferenceFits(const std::vector<std::uint32_t>& numbers, const Frame& frame) {
    return std::all_of(numbers.begin(), numbers.end(),
                       [&](std::uint32_t number) { return number / 8 < frame.size(); });
}

std::uint64_t ReferenceDecode(const std::vector<std::uint32_t>& numbers, const Frame& frame) {
    std::uint64_t raw = 0;
    for (const std::uint32_t number : numbers) {
        raw = raw * 2 + (frame[number / 8] >> number % 8 & 1U);
    }
    return raw;
}

void ReferenceEncode(const std::vector<std::uint32_t>& numbers, std::uint64_t raw, Frame& frame) {
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        const auto bit = static_cast<std::uint8_t>(1U << *number % 8);
        std::uint8_t& byte = frame[*number / 8];
        byte = static_cast<std::uint8_t>(raw % 2 != 0 ? byte | bit : byte & ~bit);
        raw /= 2;
    }
}

Frame RandomFrame(std::mt19937_64& random, std::size_t size) {
    Frame frame(size);
    std::generate(frame.begin(), frame.end(),
                  [&] { return static_cast<std::uint8_t>(random() >> 56); });
    frame.shrink_to_fit();  // a sanitizer detects an access after the end
    return frame;
}

std::string Layout(const CanSignalRecord& signal, const Frame& frame) {
    return std::to_string(signal.startBit) + "|" + std::to_string(signal.bitLength) + "@" +
           std::to_string(signal.byteOrder) + " in " + std::to_string(frame.size()) + " bytes";
}

// Compares decoding and encoding of one layout with the reference. Returns whether the frame
// contains all bits.
bool CompareWithReference(const CanSignalRecord& signal, std::mt19937_64& random,
                          std::size_t size) {
    Frame frame = RandomFrame(random, size);
    const std::vector<std::uint32_t> numbers = BitNumbers(signal);
    const bool fits = ReferenceFits(numbers, frame);
    const std::uint64_t raw = random() >> (64 - signal.bitLength);
    Frame encoded = frame;
    std::uint64_t decoded = 0;
    if (!fits) {
        EXPECT_EQ(VexilDecodeRaw(&signal, frame.data(), size, &decoded), FrameTooShort);
        EXPECT_EQ(VexilEncodeRaw(&signal, raw, encoded.data(), size), FrameTooShort);
        EXPECT_EQ(encoded, frame);
        return false;
    }
    EXPECT_EQ(VexilDecodeRaw(&signal, frame.data(), size, &decoded), FrameOk);
    EXPECT_EQ(decoded, ReferenceDecode(numbers, frame));
    EXPECT_EQ(VexilEncodeRaw(&signal, raw, encoded.data(), size), FrameOk);
    ReferenceEncode(numbers, raw, frame);
    EXPECT_EQ(encoded, frame);
    return true;
}

// Every start bit, length and byte order in frames of one size, also those that do not fit.
class EveryLayout : public testing::TestWithParam<std::size_t> {};

TEST_P(EveryLayout, DecodesAndEncodesLikeTheReference) {
    const std::size_t size = GetParam();
    std::mt19937_64 random(size);
    std::size_t fitting = 0;
    for (const std::uint32_t order : {ByteOrderBigEndian, ByteOrderLittleEndian}) {
        for (std::uint32_t start = 0; start < size * 8 + 16; ++start) {
            for (std::uint32_t length = 1; length <= 64; ++length) {
                const CanSignalRecord signal = SignalAt(start, length, order);
                fitting += CompareWithReference(signal, random, size) ? 1 : 0;
                ASSERT_FALSE(HasFailure()) << Layout(signal, Frame(size));
            }
        }
    }
    // The number of positions that are left for each length, in both byte orders.
    std::size_t expected = 0;
    for (std::size_t length = 1; length <= std::min<std::size_t>(64, size * 8); ++length) {
        expected += 2 * (size * 8 - length + 1);
    }
    EXPECT_EQ(fitting, expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, EveryLayout,
                         testing::Values(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 16, 20, 24, 32, 48, 64),
                         testing::PrintToStringParamName());

// Integers up to this length are equal after scaling and back: the error of the three roundings is
// far below half a raw step.
constexpr std::uint32_t MostScaledBits = 48;

TEST(FrameRoundTrip, ReturnsEachRawValueOfAnInteger) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i) {
        const auto length = static_cast<std::uint32_t>(1 + random() % MostScaledBits);
        const std::uint32_t type = random() % 2 == 0 ? ValueUnsigned : ValueSigned;
        CanSignalRecord signal = SignalAt(0, length, ByteOrderLittleEndian, type);
        signal.factor = std::vector{1.0, 0.1, 0.25, -0.01, 1e-9, 3e7}[random() % 6];
        signal.offset = signal.factor * static_cast<double>(random() % 4000) - 2000 * signal.factor;
        Frame frame = RandomFrame(random, 8);
        const Outcome<std::uint64_t> raw = DecodeRaw(signal, frame);
        const Outcome<double> value = DecodeValue(signal, frame);
        ASSERT_EQ(raw.result, FrameOk);
        ASSERT_EQ(value.result, FrameOk);
        EXPECT_EQ(ValueToRaw(signal, value.value), raw);

        const Frame before = frame;
        EXPECT_EQ(VexilEncodeValue(&signal, value.value, frame.data(), frame.size()), FrameOk);
        EXPECT_EQ(frame, before);
        ASSERT_FALSE(HasFailure()) << Layout(signal, frame) << ", factor " << signal.factor;
    }
}

TEST(FrameRoundTrip, ReturnsEachFloat) {
    std::mt19937_64 random(2);
    for (int i = 0; i < 20000; ++i) {
        for (const CanSignalRecord& signal : {Float32(), Float64()}) {
            const std::uint64_t raw = random() >> (64 - signal.bitLength);
            const Outcome<double> value = RawToValue(signal, raw);
            ASSERT_EQ(value.result, FrameOk);
            if (!std::isnan(value.value)) {
                EXPECT_EQ(ValueToRaw(signal, value.value), Outcome<std::uint64_t>(FrameOk, raw));
            }
        }
    }
}

TEST(FrameRoundTrip, EncodesTheNearestRawValue) {
    std::mt19937_64 random(3);
    std::uniform_real_distribution<double> values(-200, 200);
    for (int i = 0; i < 20000; ++i) {
        const CanSignalRecord signal = Integer(8, ValueSigned, 0.5, 10);
        const double value = values(random);
        const Outcome<std::uint64_t> raw = ValueToRaw(signal, value);
        const double nearest = std::round((value - 10) / 0.5);
        if (nearest < -128 || nearest > 127) {
            EXPECT_EQ(raw, Failure<std::uint64_t>(FrameOutOfRange)) << value;
        } else {
            EXPECT_EQ(raw.result, FrameOk) << value;
            EXPECT_EQ(static_cast<double>(static_cast<std::int64_t>(raw.value)), nearest) << value;
        }
    }
}

}  // namespace
}  // namespace vexil::test
