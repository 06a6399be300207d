// vexil64.hpp: values of signals in frames.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "vexil64.hpp"

namespace vexil::test {
namespace {

class CppFrameTest : public testing::Test {
  protected:
    CppFrameTest() {
        vexil64::clear();
        message = vexil64::append(vexil64::NewMessage(1, "Frame").dlc(3));
        page =
            vexil64::append(message, vexil64::NewSignal("Page").little_endian(0, 8).multiplexer());
        level = vexil64::append(message, vexil64::NewSignal("Level")
                                             .big_endian(15, 12)
                                             .value_type(ValueSigned)
                                             .scale(0.5)
                                             .multiplexed(3));
    }
    ~CppFrameTest() override { vexil64::clear(); }

    vexil64::Message message;
    vexil64::Signal page;
    vexil64::Signal level;
};

// Returns the result with which an operation fails, or FrameOk.
template <typename Operation>
VexilFrameResult ThrownResult(const Operation& operation) {
    try {
        operation();
    } catch (const vexil64::FrameError& error) {
        return error.result();
    }
    return FrameOk;
}

TEST_F(CppFrameTest, DecodesFromEachKindOfFrame) {
    const std::uint8_t array[] = {3, 0xFF, 0x6F};
    EXPECT_EQ(vexil64::decode(level, array), -5);
    EXPECT_EQ(vexil64::decode(level, std::array<std::uint8_t, 3>{3, 0xFF, 0x6F}), -5);
    EXPECT_EQ(vexil64::decode(level, std::vector<std::uint8_t>{3, 0xFF, 0x6F}), -5);
}

TEST_F(CppFrameTest, EncodesIntoAFrame) {
    std::vector<std::uint8_t> frame = {3, 0, 0x0F};
    vexil64::encode(level, -5, frame);
    EXPECT_EQ(frame, std::vector<std::uint8_t>({3, 0xFF, 0x6F}));
}

TEST_F(CppFrameTest, ThrowsTheResult) {
    std::vector<std::uint8_t> frame(3);
    const std::vector<std::uint8_t> shortFrame(2);
    EXPECT_EQ(ThrownResult([&] { vexil64::encode(level, 2000, frame); }), FrameOutOfRange);
    EXPECT_EQ(ThrownResult([&] { vexil64::decode(level, shortFrame); }), FrameTooShort);
    EXPECT_EQ(ThrownResult([&] { vexil64::decode(level, frame); }), FrameOk);
    EXPECT_EQ(frame, std::vector<std::uint8_t>(3));
}

TEST_F(CppFrameTest, NamesTheOperationAndTheReason) {
    try {
        vexil64::decode(level, std::vector<std::uint8_t>());
        FAIL() << "nothing was thrown";
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "Level: the frame is too short for the signal");
    }
}

TEST_F(CppFrameTest, ComparesTheMultiplexer) {
    const std::optional<vexil64::Signal> selector = message.selector();
    ASSERT_TRUE(selector);
    EXPECT_EQ(selector->name(), "Page");
    const std::vector<std::uint8_t> selected = {3, 0, 0};
    const std::vector<std::uint8_t> other = {2, 0, 0};
    EXPECT_TRUE(vexil64::is_present(level, selector, selected));
    EXPECT_FALSE(vexil64::is_present(level, selector, other));
    EXPECT_TRUE(vexil64::is_present(page, selector, other));
    EXPECT_EQ(ThrownResult([&] { vexil64::is_present(level, std::nullopt, other); }),
              FrameNoSelector);
    EXPECT_EQ(
        ThrownResult([&] { vexil64::is_present(level, selector, std::vector<std::uint8_t>()); }),
        FrameTooShort);
}

TEST_F(CppFrameTest, FindsNoMultiplexerInAMessageWithoutOne) {
    const auto plain = vexil64::append(vexil64::NewMessage(2, "Plain"));
    EXPECT_FALSE(plain.selector());
    vexil64::append(plain, vexil64::NewSignal("S").multiplexed(1));
    EXPECT_FALSE(plain.selector());
}

}  // namespace
}  // namespace vexil::test
