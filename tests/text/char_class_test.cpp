// Tests of text/char_class.h: every byte in every class, and the search for white space.
// SPDX-License-Identifier: MIT
#include "text/char_class.h"

#include <gtest/gtest.h>

#include <string_view>

namespace vexil {
namespace {

TEST(CharClass, IsTheClassInTheClassicLocaleForEveryByte) {
    for (int code = 0; code < 256; ++code) {
        const char ch = static_cast<char>(code);
        const bool isDigit = code >= '0' && code <= '9';
        const bool isLetter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
        EXPECT_EQ(IsSpace(ch), code == 32 || (code >= 9 && code <= 13)) << code;
        EXPECT_EQ(IsControl(ch), code < 32 || code == 127) << code;
        EXPECT_EQ(IsDigit(ch), isDigit) << code;
        EXPECT_EQ(IsAlnum(ch), isDigit || isLetter) << code;
    }
}

TEST(FindSpace, ReturnsTheFirstAtOrAfterItsStart) {
    constexpr std::string_view text = "ab \tc";
    EXPECT_EQ(FindSpace(text, 0), 2U);
    EXPECT_EQ(FindSpace(text, 2), 2U);
    EXPECT_EQ(FindSpace(text, 3), 3U);
    EXPECT_EQ(FindSpace(text, 4), npos);
    EXPECT_EQ(FindSpace(text, 5), npos);
    EXPECT_EQ(FindSpace(text, npos), npos);
    EXPECT_EQ(FindSpace("", 0), npos);
}

TEST(FindNonSpace, ReturnsTheFirstAtOrAfterItsStart) {
    constexpr std::string_view text = " \f\n\r\t\va ";
    EXPECT_EQ(FindNonSpace(text, 0), 6U);
    EXPECT_EQ(FindNonSpace(text, 6), 6U);
    EXPECT_EQ(FindNonSpace(text, 7), npos);
    EXPECT_EQ(FindNonSpace(text, 8), npos);
    EXPECT_EQ(FindNonSpace(text, npos), npos);
    EXPECT_EQ(FindNonSpace("", 0), npos);
}

}  // namespace
}  // namespace vexil
