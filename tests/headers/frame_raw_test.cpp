// VexilDecodeRaw and VexilEncodeRaw: frames calculated by hand, and each failure.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "frame_signals.h"

namespace vexil::test {
namespace {

using Raw = Outcome<std::uint64_t>;

TEST(VexilDecodeRaw, DecodesALittleEndianSignalUpwards) {
    const Frame frame = {0x00, 0xA0, 0x5B, 0x0C, 0, 0, 0, 0};
    EXPECT_EQ(DecodeRaw(SignalAt(12, 12, ByteOrderLittleEndian), frame), Raw(FrameOk, 0x5BA));
    EXPECT_EQ(DecodeRaw(SignalAt(12, 16, ByteOrderLittleEndian), frame), Raw(FrameOk, 0xC5BA));
}

TEST(VexilDecodeRaw, DecodesABigEndianSignalDownwardsIntoTheNextByte) {
    const Frame frame = {0x00, 0x0A, 0x5B, 0xC0, 0, 0, 0, 0};
    EXPECT_EQ(DecodeRaw(SignalAt(11, 12, ByteOrderBigEndian), frame), Raw(FrameOk, 0xA5B));
    EXPECT_EQ(DecodeRaw(SignalAt(11, 16, ByteOrderBigEndian), frame), Raw(FrameOk, 0xA5BC));
}

TEST(VexilDecodeRaw, DecodesBitsOfNineBytes) {
    const Frame frame = {0x80, 1, 2, 3, 4, 5, 6, 7, 0x01};
    EXPECT_EQ(DecodeRaw(SignalAt(7, 64, ByteOrderLittleEndian), frame),
              Raw(FrameOk, 0x020E0C0A08060403));
    EXPECT_EQ(DecodeRaw(SignalAt(0, 64, ByteOrderBigEndian), {1, 2, 3, 4, 5, 6, 7, 8, 0x86}),
              Raw(FrameOk, 0x8101820283038443));
}

TEST(VexilDecodeRaw, SignExtendsOnlySignedSignals) {
    const Frame frame = {0x0C};
    EXPECT_EQ(DecodeRaw(SignalAt(0, 4, ByteOrderLittleEndian, ValueSigned), frame),
              Raw(FrameOk, static_cast<std::uint64_t>(-4)));
    EXPECT_EQ(DecodeRaw(SignalAt(0, 4, ByteOrderLittleEndian), frame), Raw(FrameOk, 12));
    EXPECT_EQ(DecodeRaw(SignalAt(0, 5, ByteOrderLittleEndian, ValueSigned), frame),
              Raw(FrameOk, 12));
    EXPECT_EQ(DecodeRaw(SignalAt(3, 1, ByteOrderLittleEndian, ValueSigned), frame),
              Raw(FrameOk, static_cast<std::uint64_t>(-1)));
}

TEST(VexilDecodeRaw, ReturnsTheBitPatternOfAFloat) {
    const Frame minusTwo = {0x00, 0x00, 0x00, 0xC0};
    EXPECT_EQ(DecodeRaw(Float32(), minusTwo), Raw(FrameOk, 0xC0000000));
}

TEST(VexilDecodeRaw, FailsIfTheLastBitIsMissing) {
    EXPECT_EQ(DecodeRaw(SignalAt(9, 15, ByteOrderLittleEndian), Frame(2)),
              Failure<std::uint64_t>(FrameTooShort));
    EXPECT_EQ(DecodeRaw(SignalAt(9, 15, ByteOrderLittleEndian), Frame(3)), Raw(FrameOk, 0));
    EXPECT_EQ(DecodeRaw(SignalAt(9, 11, ByteOrderBigEndian), Frame(2)),
              Failure<std::uint64_t>(FrameTooShort));
    EXPECT_EQ(DecodeRaw(SignalAt(9, 10, ByteOrderBigEndian), Frame(3)), Raw(FrameOk, 0));
}

TEST(VexilDecodeRaw, FailsOnAStartBitFarOutside) {
    for (const std::uint32_t order : {ByteOrderBigEndian, ByteOrderLittleEndian}) {
        for (const std::uint32_t start : {0xFFFFFFFFU, 0xFFFFFFF8U, 0xFFFFFFC0U, 0x80000000U}) {
            EXPECT_EQ(DecodeRaw(SignalAt(start, 64, order), Frame(64)),
                      Failure<std::uint64_t>(FrameTooShort));
        }
    }
}

TEST(VexilDecodeRaw, FailsOnANullFrameOfSizeZero) {
    const CanSignalRecord signal = SignalAt(0, 1, ByteOrderLittleEndian);
    std::uint64_t raw = 7;
    EXPECT_EQ(VexilDecodeRaw(&signal, nullptr, 0, &raw), FrameTooShort);
    EXPECT_EQ(raw, 7U);
}

TEST(VexilDecodeRaw, FailsOnNull) {
    const CanSignalRecord signal = SignalAt(0, 8, ByteOrderLittleEndian);
    const Frame frame(8);
    std::uint64_t raw = 7;
    EXPECT_EQ(VexilDecodeRaw(nullptr, frame.data(), 8, &raw), FrameNullArgument);
    EXPECT_EQ(VexilDecodeRaw(&signal, nullptr, 8, &raw), FrameNullArgument);
    EXPECT_EQ(VexilDecodeRaw(&signal, frame.data(), 8, nullptr), FrameNullArgument);
    EXPECT_EQ(raw, 7U);
}

// The layouts that every function refuses.
std::vector<CanSignalRecord> BadLayouts() {
    return {SignalAt(0, 0, ByteOrderLittleEndian),
            SignalAt(0, 65, ByteOrderLittleEndian),
            SignalAt(0, 0xFFFFFFFF, ByteOrderBigEndian),
            SignalAt(0, 8, 2),
            SignalAt(0, 8, ByteOrderBigEndian, 4),
            SignalAt(0, 64, ByteOrderLittleEndian, ValueFloat32),
            SignalAt(0, 31, ByteOrderLittleEndian, ValueFloat32),
            SignalAt(0, 32, ByteOrderLittleEndian, ValueFloat64),
            SignalAt(0, 63, ByteOrderLittleEndian, ValueFloat64)};
}

TEST(VexilFrame, RefusesABadLayoutInEachFunction) {
    for (const CanSignalRecord& signal : BadLayouts()) {
        Frame frame(64, 0x55);
        EXPECT_EQ(DecodeRaw(signal, frame), Failure<std::uint64_t>(FrameBadLayout));
        EXPECT_EQ(DecodeValue(signal, frame), Failure<double>(FrameBadLayout));
        EXPECT_EQ(RawToValue(signal, 0), Failure<double>(FrameBadLayout));
        EXPECT_EQ(ValueToRaw(signal, 0), Failure<std::uint64_t>(FrameBadLayout));
        EXPECT_EQ(VexilEncodeRaw(&signal, 0, frame.data(), frame.size()), FrameBadLayout);
        EXPECT_EQ(VexilEncodeValue(&signal, 0, frame.data(), frame.size()), FrameBadLayout);
        EXPECT_EQ(frame, Frame(64, 0x55));
    }
}

TEST(VexilEncodeRaw, ChangesOnlyTheBitsOfTheSignal) {
    Frame frame(4, 0xFF);
    const CanSignalRecord little = SignalAt(12, 12, ByteOrderLittleEndian);
    EXPECT_EQ(VexilEncodeRaw(&little, 0x5BA, frame.data(), frame.size()), FrameOk);
    EXPECT_EQ(frame, Frame({0xFF, 0xAF, 0x5B, 0xFF}));

    frame = Frame(4, 0x00);
    const CanSignalRecord big = SignalAt(11, 12, ByteOrderBigEndian);
    EXPECT_EQ(VexilEncodeRaw(&big, 0xA5B, frame.data(), frame.size()), FrameOk);
    EXPECT_EQ(frame, Frame({0x00, 0x0A, 0x5B, 0x00}));
}

// The table of docs/frame.md.
TEST(VexilEncodeRaw, EncodesTwelveBitsAsDocumented) {
    struct Row {
        CanSignalRecord signal;
        Frame frame;
    };
    for (const auto& [signal, expected] :
         {Row{SignalAt(0, 12, ByteOrderLittleEndian), {0x5B, 0xFA}},
          Row{SignalAt(4, 12, ByteOrderLittleEndian), {0xBF, 0xA5}},
          Row{SignalAt(7, 12, ByteOrderBigEndian), {0xA5, 0xBF}},
          Row{SignalAt(3, 12, ByteOrderBigEndian), {0xFA, 0x5B}}}) {
        Frame frame(2, 0xFF);
        EXPECT_EQ(VexilEncodeRaw(&signal, 0xA5B, frame.data(), frame.size()), FrameOk);
        EXPECT_EQ(frame, expected);
    }
}

TEST(VexilEncodeRaw, AcceptsExactlyTheRangeOfEachLength) {
    for (std::uint32_t length = 1; length < 64; ++length) {
        Frame frame(8);
        const auto encode = [&](std::uint32_t type, std::uint64_t raw) {
            const CanSignalRecord signal = SignalAt(0, length, ByteOrderLittleEndian, type);
            return VexilEncodeRaw(&signal, raw, frame.data(), frame.size());
        };
        const std::uint64_t one = 1;
        const std::uint64_t half = one << (length - 1);
        EXPECT_EQ(encode(ValueUnsigned, (half << 1) - 1), FrameOk);
        EXPECT_EQ(encode(ValueSigned, half - 1), FrameOk);
        EXPECT_EQ(encode(ValueSigned, 0 - half), FrameOk);

        const Frame before = frame;
        EXPECT_EQ(encode(ValueUnsigned, half << 1), FrameOutOfRange);
        EXPECT_EQ(encode(ValueUnsigned, ~std::uint64_t{0}), FrameOutOfRange);
        EXPECT_EQ(encode(ValueSigned, half), FrameOutOfRange);
        EXPECT_EQ(encode(ValueSigned, 0 - half - 1), FrameOutOfRange);
        EXPECT_EQ(frame, before);
    }
}

TEST(VexilEncodeRaw, AcceptsEveryNumberOf64Bits) {
    for (const std::uint32_t type : {ValueUnsigned, ValueSigned, ValueFloat64}) {
        Frame frame(8);
        const CanSignalRecord signal = SignalAt(7, 64, ByteOrderBigEndian, type);
        for (const std::uint64_t raw : {0x0102030405060708U, 0xFFFFFFFFFFFFFFFFU}) {
            EXPECT_EQ(VexilEncodeRaw(&signal, raw, frame.data(), frame.size()), FrameOk);
            EXPECT_EQ(DecodeRaw(signal, frame), Raw(FrameOk, raw));
        }
    }
}

TEST(VexilEncodeRaw, FailsOnMoreThan32BitsForAFloat) {
    Frame frame(8);
    const CanSignalRecord signal = Float32();
    EXPECT_EQ(VexilEncodeRaw(&signal, 0x100000000, frame.data(), frame.size()), FrameOutOfRange);
    EXPECT_EQ(VexilEncodeRaw(&signal, 0xFFFFFFFF, frame.data(), frame.size()), FrameOk);
}

TEST(VexilEncodeRaw, FailsOnAFrameThatIsTooShortOrNull) {
    Frame frame = {0x55, 0x55};
    const CanSignalRecord signal = SignalAt(9, 8, ByteOrderLittleEndian);
    EXPECT_EQ(VexilEncodeRaw(&signal, 0, frame.data(), frame.size()), FrameTooShort);
    EXPECT_EQ(frame, Frame(2, 0x55));
    EXPECT_EQ(VexilEncodeRaw(&signal, 0, nullptr, 8), FrameNullArgument);
    EXPECT_EQ(VexilEncodeRaw(nullptr, 0, frame.data(), frame.size()), FrameNullArgument);
}

TEST(VexilFrameResultText, ReturnsADifferentTextForEachResult) {
    std::vector<std::string> texts;
    for (int result = FrameOk; result <= FrameNoSelector; ++result) {
        texts.emplace_back(VexilFrameResultText(static_cast<VexilFrameResult>(result)));
    }
    EXPECT_EQ(texts.front(), "success");
    EXPECT_EQ(texts.back(), "the message has no multiplexer");
    std::sort(texts.begin(), texts.end());
    EXPECT_EQ(std::unique(texts.begin(), texts.end()), texts.end());
    EXPECT_EQ(std::find(texts.begin(), texts.end(), "unknown result"), texts.end());
}

}  // namespace
}  // namespace vexil::test
