// The text that the library makes of bytes, and places in a file.
// SPDX-License-Identifier: MIT
#include "source/source_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

using tool::Place;
using tool::SourceText;
using tool::Utf16;
using Offsets = std::vector<std::size_t>;

TEST(SourceText, EndsTheLastLine) {
    EXPECT_EQ(SourceText("a").Text(), "a\n");
    EXPECT_EQ(SourceText("a\n").Text(), "a\n");
    EXPECT_EQ(SourceText("a").Bytes(), "a");
    EXPECT_EQ(SourceText("").Text(), "");
}

TEST(SourceText, ReplacesBytesThatAreNotUtf8) {
    const SourceText source(
        "a\xB0"
        "b\xE2\x82\n\xC3\xA4\xED\xA0\x80\n");
    EXPECT_EQ(source.Text(), "a_b__\n\xC3\xA4___\n");
    EXPECT_EQ(source.InvalidBytes(), (Offsets{1, 3, 4, 8, 9, 10}));
    EXPECT_EQ(source.RemovedBytes(), Offsets());
}

TEST(SourceText, RemovesControlCharactersButWhiteSpace) {
    const SourceText source(std::string("\0a\tb\x1F\x7F\v\f\r\n", 10));
    EXPECT_EQ(source.Text(), "a\tb\v\f\r\n");
    EXPECT_EQ(source.RemovedBytes(), (Offsets{0, 4, 5}));
    EXPECT_EQ(source.ByteOffset(0), 1U);  // a
    EXPECT_EQ(source.ByteOffset(2), 3U);  // b
    EXPECT_EQ(source.ByteOffset(3), 6U);  // after the two that are removed
}

TEST(SourceText, CountsLinesAndColumnsInBytesFromOne) {
    const SourceText source("ab\r\n\xC3\xA4x\n");
    EXPECT_EQ(source.PlaceOf(0), (Place{1, 1}));
    EXPECT_EQ(source.PlaceOf(3), (Place{1, 4}));
    EXPECT_EQ(source.PlaceOf(6), (Place{2, 3}));
    EXPECT_EQ(source.LoneCarriageReturns(), 0U);
}

TEST(SourceText, CountsCarriageReturnsAsLinesWhereThereIsNoLineFeed) {
    const SourceText source("a\rb\rc");
    EXPECT_TRUE(source.LinesEndWithCarriageReturn());
    EXPECT_EQ(source.LoneCarriageReturns(), 2U);
    EXPECT_EQ(source.PlaceOf(4), (Place{3, 1}));
    const SourceText mixed("a\rb\n");
    EXPECT_FALSE(mixed.LinesEndWithCarriageReturn());
    EXPECT_EQ(mixed.LoneCarriageReturns(), 1U);
}

TEST(SourceText, RecognisesAByteOrderMark) {
    EXPECT_EQ(SourceText("\xEF\xBB\xBFx").ByteOrderMarkSize(), 3U);
    EXPECT_EQ(SourceText("x\xEF\xBB\xBF").ByteOrderMarkSize(), 0U);
    EXPECT_EQ(SourceText("\x10\xEF\xBB\xBFx").ByteOrderMarkSize(), 3U);  // what the library sees
}

TEST(SourceText, RecognisesUtf16) {
    const auto looks = [](std::string bytes) {
        return SourceText(std::move(bytes)).LooksLikeUtf16();
    };
    EXPECT_EQ(looks(std::string("\xFF\xFEV\0", 4)), Utf16::LittleEndian);
    EXPECT_EQ(looks(std::string("\xFE\xFF\0V", 4)), Utf16::BigEndian);
    EXPECT_EQ(looks(std::string("V\0E\0R\0", 6)), Utf16::LittleEndian);
    EXPECT_EQ(looks(std::string("\0V\0E\0R", 6)), Utf16::BigEndian);
    EXPECT_EQ(looks(std::string(64, '\0')), Utf16::None);
    EXPECT_EQ(looks("VERSION"), Utf16::None);
    EXPECT_EQ(looks(""), Utf16::None);
}

}  // namespace
}  // namespace vexil::test
