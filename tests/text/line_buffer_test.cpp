// Tests of text/line_buffer.h.
// SPDX-License-Identifier: MIT
#include "text/line_buffer.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vexil {
namespace {

TEST(LineBuffer, IsEmptyWhenNew) {
    const LineBuffer line;
    EXPECT_EQ(line.Text(), "");
    EXPECT_EQ(line.Size(), 0U);
}

TEST(LineBuffer, AppendsTextsOfAnyLength) {
    LineBuffer line;
    std::string expected;
    for (std::size_t size = 0; size < 1000; ++size) {
        const std::string piece(size, static_cast<char>('a' + size % 26));
        line.Append(piece, '.', "").Append("\n");
        expected += piece + ".\n";
        ASSERT_EQ(line.Size(), expected.size());
    }
    EXPECT_TRUE(line.Text() == expected);
}

TEST(LineBuffer, AppendsATextLargerThanTwiceItsCapacity) {
    LineBuffer line;
    line.Append("abc", std::string(100000, 'x'));
    EXPECT_TRUE(line.Text() == "abc" + std::string(100000, 'x'));
}

// The text moves when the memory grows.
TEST(LineBuffer, DoublesItsMemoryFrom256Bytes) {
    LineBuffer line;
    std::vector<std::size_t> moves;
    const char* place = nullptr;
    while (line.Size() < 3000) {
        line.Append('.');
        if (line.Text().data() != place) {
            place = line.Text().data();
            moves.push_back(line.Size());
        }
    }
    EXPECT_EQ(moves, (std::vector<std::size_t>{1, 257, 513, 1025, 2049}));
}

TEST(LineBuffer, AppendsIntegersInDecimal) {
    const std::pair<std::uint32_t, std::string_view> unsignedNumbers[] = {
        {0, "0"}, {9, "9"}, {10, "10"}, {2048, "2048"}, {4294967295U, "4294967295"}};
    for (const auto& [number, text] : unsignedNumbers) {
        LineBuffer line;
        EXPECT_EQ(line.Append(number).Text(), text);
    }
    const std::pair<std::int32_t, std::string_view> signedNumbers[] = {
        {0, "0"},
        {9, "9"},
        {-9, "-9"},
        {-10, "-10"},
        {2147483647, "2147483647"},
        {-2147483647 - 1, "-2147483648"}};
    for (const auto& [number, text] : signedNumbers) {
        LineBuffer line;
        EXPECT_EQ(line.Append(number).Text(), text);
    }
}

// Every size of the front, so that the buffer grows before each kind of piece.
TEST(LineBuffer, AppendsPiecesOfAllKindsAtOnce) {
    for (std::size_t size = 200; size <= 256; ++size) {
        const std::string front(size, ' ');
        LineBuffer line;
        line.Append(front, std::int32_t{-2147483647}, "|", std::uint32_t{4294967295U}, '|', "");
        line.Append(std::int32_t{-2147483647}).Append(std::uint32_t{4294967295U});
        EXPECT_EQ(line.Text(), front + "-2147483647|4294967295|-21474836474294967295");
    }
}

TEST(LineBuffer, IsCutAndEmptied) {
    LineBuffer line;
    line.Append("abcdef").Cut(3);
    EXPECT_EQ(line.Text(), "abc");
    line.Append("x");
    EXPECT_EQ(line.Text(), "abcx");
    line.Clear();
    EXPECT_EQ(line.Text(), "");
    line.Append("y");
    EXPECT_EQ(line.Text(), "y");
}

}  // namespace
}  // namespace vexil
