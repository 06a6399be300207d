// VexilDecodeValue, VexilEncodeValue and the conversions: scaling, rounding, ranges and floats.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "frame_signals.h"

namespace vexil::test {
namespace {

using Raw = Outcome<std::uint64_t>;
using Value = Outcome<double>;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Largest = std::numeric_limits<double>::max();

std::uint64_t Negative(std::int64_t number) {
    return static_cast<std::uint64_t>(number);
}

TEST(VexilDecodeValue, AppliesFactorAndOffset) {
    // EngineTorque of samples/powertrain.dbc: 47|12@0- (0.5,0).
    CanSignalRecord torque = SignalAt(47, 12, ByteOrderBigEndian, ValueSigned);
    torque.factor = 0.5;
    EXPECT_EQ(DecodeValue(torque, {0, 0, 0, 0, 0, 0xFF, 0x60, 0}), Value(FrameOk, -5));
    // CoolantTemp: 16|8@1+ (1,-40).
    CanSignalRecord coolant = SignalAt(16, 8, ByteOrderLittleEndian);
    coolant.offset = -40;
    EXPECT_EQ(DecodeValue(coolant, {0, 0, 130, 0, 0, 0, 0, 0}), Value(FrameOk, 90));
}

TEST(VexilDecodeValue, DecodesFloatsOfBothSizesAndByteOrders) {
    EXPECT_EQ(DecodeValue(Float32(), {0x00, 0x00, 0x20, 0xC1}), Value(FrameOk, -10));
    EXPECT_EQ(DecodeValue(SignalAt(7, 32, ByteOrderBigEndian, ValueFloat32), {0xC1, 0x20, 0, 0}),
              Value(FrameOk, -10));
    EXPECT_EQ(DecodeValue(Float64(), {0, 0, 0, 0, 0, 0, 0x24, 0xC0}), Value(FrameOk, -10));
    EXPECT_EQ(DecodeValue(SignalAt(7, 64, ByteOrderBigEndian, ValueFloat64),
                          {0xC0, 0x24, 0, 0, 0, 0, 0, 0}),
              Value(FrameOk, -10));
}

TEST(VexilDecodeValue, AppliesFactorAndOffsetToFloats) {
    CanSignalRecord signal = Float32();
    signal.factor = 2;
    signal.offset = 1;
    EXPECT_EQ(DecodeValue(signal, {0x00, 0x00, 0x20, 0xC1}), Value(FrameOk, -19));
}

TEST(VexilDecodeValue, FailsAsDecodingTheRawValueDoes) {
    const CanSignalRecord signal = SignalAt(60, 8, ByteOrderLittleEndian);
    EXPECT_EQ(DecodeValue(signal, Frame(8)), Failure<double>(FrameTooShort));
    const Frame longer(9);
    EXPECT_EQ(VexilDecodeValue(&signal, longer.data(), 9, nullptr), FrameNullArgument);
}

TEST(VexilRawToValue, ConvertsSignedNumbersOf64Bits) {
    EXPECT_EQ(RawToValue(Integer(64, ValueSigned), Negative(-1)), Value(FrameOk, -1));
    EXPECT_EQ(RawToValue(Integer(64, ValueUnsigned), Negative(-1)),
              Value(FrameOk, std::ldexp(1, 64)));
    EXPECT_EQ(RawToValue(Integer(64, ValueSigned), std::uint64_t{1} << 63),
              Value(FrameOk, -std::ldexp(1, 63)));
}

TEST(VexilRawToValue, KeepsInfinitiesAndNaNsOfFloats) {
    EXPECT_EQ(RawToValue(Float32(), 0x7F800000), Value(FrameOk, Infinity));
    EXPECT_EQ(RawToValue(Float64(), 0xFFF0000000000000), Value(FrameOk, -Infinity));
    const Value nan = RawToValue(Float32(), 0x7FC00000);
    EXPECT_EQ(nan.result, FrameOk);
    EXPECT_TRUE(std::isnan(nan.value));
}

TEST(VexilRawToValue, FailsIfTheValueDoesNotFitADouble) {
    EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, Largest), 2), Failure<double>(FrameOutOfRange));
    EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, Largest, Largest), 1),
              Failure<double>(FrameOutOfRange));
    EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, Largest), 1), Value(FrameOk, Largest));
}

TEST(VexilRawToValue, FailsOnANonFiniteFactorOrOffset) {
    for (const double bad : {Infinity, -Infinity, NaN}) {
        EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, bad), 1), Failure<double>(FrameBadScaling));
        EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, 1, bad), 1),
                  Failure<double>(FrameBadScaling));
    }
}

TEST(VexilRawToValue, ReturnsTheOffsetForAFactorOfZero) {
    EXPECT_EQ(RawToValue(Integer(8, ValueUnsigned, 0, 5), 77), Value(FrameOk, 5));
}

TEST(VexilValueToRaw, RoundsToNearestAndHalfwayCasesAwayFromZero) {
    const CanSignalRecord integer = Integer(16, ValueSigned);
    struct Row {
        double value;
        std::int64_t raw;
    };
    for (const auto& [value, raw] : std::vector<Row>{{0.49999999999999994, 0},
                                                     {0.5, 1},
                                                     {1.49, 1},
                                                     {1.5, 2},
                                                     {2.5, 3},
                                                     {-0.49999999999999994, 0},
                                                     {-0.5, -1},
                                                     {-1.5, -2},
                                                     {-2.49, -2},
                                                     {-0.0, 0}}) {
        EXPECT_EQ(ValueToRaw(integer, value), Raw(FrameOk, Negative(raw))) << value;
    }
    EXPECT_EQ(ValueToRaw(Integer(64, ValueUnsigned), 4503599627370495.5),
              Raw(FrameOk, 4503599627370496));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), -4503599627370495.5),
              Raw(FrameOk, Negative(-4503599627370496)));
}

TEST(VexilValueToRaw, InvertsFactorAndOffset) {
    EXPECT_EQ(ValueToRaw(Integer(16, ValueUnsigned, 0.1), 6553.5), Raw(FrameOk, 65535));
    EXPECT_EQ(ValueToRaw(Integer(8, ValueUnsigned, 1, -40), -40), Raw(FrameOk, 0));
    EXPECT_EQ(ValueToRaw(Integer(8, ValueSigned, -0.5, 3), 4), Raw(FrameOk, Negative(-2)));
}

TEST(VexilValueToRaw, AcceptsOnlyValuesThatRoundIntoTheRange) {
    for (std::uint32_t length = 1; length <= 48; ++length) {
        const CanSignalRecord plain = Integer(length, ValueUnsigned);
        const CanSignalRecord withSign = Integer(length, ValueSigned);
        const double end = std::ldexp(1, static_cast<int>(length));
        const double half = end / 2;
        EXPECT_EQ(ValueToRaw(plain, end - 0.75), Raw(FrameOk, static_cast<std::uint64_t>(end) - 1));
        EXPECT_EQ(ValueToRaw(plain, end - 0.5), Failure<std::uint64_t>(FrameOutOfRange));
        EXPECT_EQ(ValueToRaw(plain, -0.25), Raw(FrameOk, 0));
        EXPECT_EQ(ValueToRaw(plain, -0.5), Failure<std::uint64_t>(FrameOutOfRange));
        EXPECT_EQ(ValueToRaw(withSign, half - 0.75),
                  Raw(FrameOk, static_cast<std::uint64_t>(half) - 1));
        EXPECT_EQ(ValueToRaw(withSign, half - 0.5), Failure<std::uint64_t>(FrameOutOfRange));
        EXPECT_EQ(ValueToRaw(withSign, -half - 0.25),
                  Raw(FrameOk, 0 - static_cast<std::uint64_t>(half)));
        EXPECT_EQ(ValueToRaw(withSign, -half - 0.5), Failure<std::uint64_t>(FrameOutOfRange));
    }
}

TEST(VexilValueToRaw, AcceptsTheLargestDoublesOf64BitIntegers) {
    const double end = std::ldexp(1, 64);
    const double half = std::ldexp(1, 63);
    EXPECT_EQ(ValueToRaw(Integer(64, ValueUnsigned), std::nextafter(end, 0)),
              Raw(FrameOk, 0xFFFFFFFFFFFFF800));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueUnsigned), end), Failure<std::uint64_t>(FrameOutOfRange));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), std::nextafter(half, 0)),
              Raw(FrameOk, 0x7FFFFFFFFFFFFC00));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), half), Failure<std::uint64_t>(FrameOutOfRange));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), -half), Raw(FrameOk, 0x8000000000000000));
    EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), std::nextafter(-half, -end)),
              Failure<std::uint64_t>(FrameOutOfRange));
}

TEST(VexilValueToRaw, FailsForAnIntegerOnInfinitiesAndNaN) {
    for (const double value : {Infinity, -Infinity, NaN, Largest, -Largest}) {
        EXPECT_EQ(ValueToRaw(Integer(64, ValueUnsigned), value),
                  Failure<std::uint64_t>(FrameOutOfRange));
        EXPECT_EQ(ValueToRaw(Integer(64, ValueSigned), value),
                  Failure<std::uint64_t>(FrameOutOfRange));
    }
}

TEST(VexilValueToRaw, EncodesTheNearestFloat) {
    EXPECT_EQ(ValueToRaw(Float32(), 0.1), Raw(FrameOk, 0x3DCCCCCD));
    EXPECT_EQ(ValueToRaw(Float32(), -10), Raw(FrameOk, 0xC1200000));
    EXPECT_EQ(ValueToRaw(Float64(), 0.1), Raw(FrameOk, 0x3FB999999999999A));
}

TEST(VexilValueToRaw, AcceptsFloatsUpToTheLargest) {
    const auto largest = static_cast<double>(std::numeric_limits<float>::max());
    EXPECT_EQ(ValueToRaw(Float32(), largest), Raw(FrameOk, 0x7F7FFFFF));
    EXPECT_EQ(ValueToRaw(Float32(), -largest), Raw(FrameOk, 0xFF7FFFFF));
    EXPECT_EQ(ValueToRaw(Float32(), std::nextafter(largest, Largest)),
              Failure<std::uint64_t>(FrameOutOfRange));
    EXPECT_EQ(ValueToRaw(Float32(), -Largest), Failure<std::uint64_t>(FrameOutOfRange));
    EXPECT_EQ(ValueToRaw(Float64(), Largest), Raw(FrameOk, 0x7FEFFFFFFFFFFFFF));
}

TEST(VexilValueToRaw, KeepsInfinitiesAndNaNsOfFloats) {
    EXPECT_EQ(ValueToRaw(Float32(), Infinity), Raw(FrameOk, 0x7F800000));
    EXPECT_EQ(ValueToRaw(Float64(), -Infinity), Raw(FrameOk, 0xFFF0000000000000));
    EXPECT_EQ(ValueToRaw(Float32(), NaN), Raw(FrameOk, 0x7FC00000));
    EXPECT_EQ(ValueToRaw(Float64(), NaN), Raw(FrameOk, 0x7FF8000000000000));
}

TEST(VexilValueToRaw, FailsForAFloatIfScalingOverflows) {
    CanSignalRecord signal = Float64();
    signal.factor = 0.5;
    EXPECT_EQ(ValueToRaw(signal, Largest), Failure<std::uint64_t>(FrameOutOfRange));
    signal.factor = 1;
    signal.offset = -Largest;
    EXPECT_EQ(ValueToRaw(signal, Largest), Failure<std::uint64_t>(FrameOutOfRange));
}

TEST(VexilValueToRaw, FailsOnAScalingThatCannotBeInverted) {
    for (const double bad : {0.0, -0.0, Infinity, -Infinity, NaN}) {
        EXPECT_EQ(ValueToRaw(Integer(8, ValueUnsigned, bad), 1),
                  Failure<std::uint64_t>(FrameBadScaling));
    }
    EXPECT_EQ(ValueToRaw(Integer(8, ValueUnsigned, 1, Infinity), 1),
              Failure<std::uint64_t>(FrameBadScaling));
}

TEST(VexilFrame, RefusesNullInEachConversion) {
    const CanSignalRecord signal = Integer(8, ValueUnsigned);
    Frame frame(8, 0x55);
    EXPECT_EQ(VexilRawToValue(&signal, 0, nullptr), FrameNullArgument);
    EXPECT_EQ(VexilValueToRaw(&signal, 0, nullptr), FrameNullArgument);
    EXPECT_EQ(VexilEncodeValue(nullptr, 0, frame.data(), frame.size()), FrameNullArgument);
    EXPECT_EQ(VexilEncodeValue(&signal, 0, nullptr, 8), FrameNullArgument);
    EXPECT_EQ(frame, Frame(8, 0x55));
}

TEST(VexilEncodeValue, EncodesTheRoundedValue) {
    CanSignalRecord torque = SignalAt(47, 12, ByteOrderBigEndian, ValueSigned);
    torque.factor = 0.5;
    Frame frame(8, 0xAA);
    EXPECT_EQ(VexilEncodeValue(&torque, -5.1, frame.data(), frame.size()), FrameOk);
    EXPECT_EQ(frame, Frame({0xAA, 0xAA, 0xAA, 0xAA, 0xAA, 0xFF, 0x6A, 0xAA}));
}

TEST(VexilEncodeValue, DoesNotChangeTheFrameOnFailure) {
    const Frame untouched(1, 0xAA);
    Frame frame = untouched;
    const CanSignalRecord signal = Integer(8, ValueUnsigned);
    EXPECT_EQ(VexilEncodeValue(&signal, 256, frame.data(), frame.size()), FrameOutOfRange);
    EXPECT_EQ(VexilEncodeValue(&signal, 255, frame.data(), 0), FrameTooShort);
    EXPECT_EQ(frame, untouched);
}

bool IsWithin(CanSignalRecord signal, double minimum, double maximum, double value) {
    signal.minimum = minimum;
    signal.maximum = maximum;
    return VexilIsWithinLimits(&signal, value) == 1;
}

TEST(VexilIsWithinLimits, AllowsHalfAStepOfAnInteger) {
    for (const double factor : {0.5, -0.5}) {
        const CanSignalRecord signal = Integer(8, ValueUnsigned, factor);
        EXPECT_TRUE(IsWithin(signal, -1, 10, 10.25));
        EXPECT_FALSE(IsWithin(signal, -1, 10, 10.26));
        EXPECT_TRUE(IsWithin(signal, -1, 10, -1.25));
        EXPECT_FALSE(IsWithin(signal, -1, 10, -1.26));
    }
}

TEST(VexilIsWithinLimits, AllowsTheRoundingOfAFloat) {
    const auto tenth = static_cast<double>(0.1F);
    EXPECT_TRUE(IsWithin(Float32(), -0.1, 0.1, tenth));
    EXPECT_TRUE(IsWithin(Float32(), -0.1, 0.1, -tenth));
    EXPECT_FALSE(IsWithin(Float32(), -0.1, 0.1, 0.1000001));
    EXPECT_FALSE(IsWithin(Float32(), -0.1, 0.1, -0.1000001));
    EXPECT_FALSE(IsWithin(Float64(), -0.1, 0.1, tenth));
    EXPECT_FALSE(IsWithin(Float64(), -0.1, 0.1, -tenth));
    EXPECT_TRUE(IsWithin(Float64(), -0.1, 0.1, 0.1));
}

TEST(VexilIsWithinLimits, TreatsTwoZerosAsNoLimits) {
    EXPECT_TRUE(IsWithin(Float64(), 0, 0, 1e300));
    EXPECT_TRUE(IsWithin(Float64(), -0.0, 0, -1));
    EXPECT_TRUE(IsWithin(Float64(), 0, 0, 0));
    EXPECT_FALSE(IsWithin(Float64(), 0, 1, 2));
    EXPECT_FALSE(IsWithin(Float64(), -1, 0, 1));
}

TEST(VexilIsWithinLimits, RefusesNaNAndNull) {
    EXPECT_FALSE(IsWithin(Float64(), 0, 0, NaN));
    EXPECT_FALSE(IsWithin(Float64(), -1, 1, NaN));
    EXPECT_EQ(VexilIsWithinLimits(nullptr, 0), 0);
}

}  // namespace
}  // namespace vexil::test
