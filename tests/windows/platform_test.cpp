// The differences between the systems that docs/windows.md lists, with the result of each. All
// other behaviour is the same, which windows.same_answers and all other tests check.
// SPDX-License-Identifier: MIT
#include <bit>
#include <cstdint>
#include <locale>
#include <string>
#include <string_view>

#include "api/api_test.h"

namespace vexil::test {
namespace {

using namespace std::string_literals;

#ifdef _WIN32
constexpr bool OnWindows = true;
#else
constexpr bool OnWindows = false;
#endif

class Platform : public ApiTest {
  protected:
    // Returns the comment of the first message after reading a file of these bytes.
    std::string CommentOf(std::string_view bytes) {
        EXPECT_EQ(ReadText(bytes), Success);
        CanMessageRecord message{};
        EXPECT_EQ(VexilGetCanMessageData(0, &message), 1);
        return message.comment;
    }

    // Returns whether a number is accepted as a factor.
    bool IsFactor(const std::string& number, double& factor) {
        EXPECT_EQ(ReadText("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (" + number + ",0) [0|1] \"\" N\n"),
                  Success);
        CanSignalRecord signal{};
        const bool isFactor = VexilGetCanSignalData(0, 0, &signal) != 0;
        factor = signal.factor;
        return isFactor;
    }
};

TEST_F(Platform, ALineEndOfTwoBytesIsALineFeedOnWindowsAlone) {
    EXPECT_EQ(CommentOf("BO_ 1 A: 8 N\r\nCM_ BO_ 1 \"a\r\nb\";\r\n"),
              OnWindows ? "a\nb" : "a\r\nb");
    EXPECT_EQ(ReadText("BO_ x1 A: 8 N\r\n\r\nBU_ : N\r\n"), Success);
    ParseError error{};
    EXPECT_EQ(VexilGetErrorData(0, &error), 1);
    EXPECT_EQ(error.text, OnWindows ? "BO_ x1 A: 8 N\n"s : "BO_ x1 A: 8 N\r\n\r"s);
}

TEST_F(Platform, ACarriageReturnAloneStaysOnBoth) {
    EXPECT_EQ(CommentOf("BO_ 1 A: 8 N\nCM_ BO_ 1 \"a\rb\r\";\n"), "a\rb\r");
    EXPECT_EQ(CommentOf("BO_ 1 A: 8 N\nCM_ BO_ 1 \"a\r\r\nb\";\n"),
              OnWindows ? "a\r\nb" : "a\r\r\nb");
}

TEST_F(Platform, ByteHex1AEndsAFileOnWindowsAlone) {
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\nBO_ 2\x1a B: 8 N\nBO_ 3 C: 8 N\n"), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), OnWindows ? 1U : 3U);
    EXPECT_EQ(VexilGetNumCanErrors(), OnWindows ? 1U : 0U);
}

TEST_F(Platform, AFolderIsReadAsAFileWithoutAnEndOrNotOpened) {
    EXPECT_EQ(Read(folder.File("")), (Outcome{0, OnWindows ? StateOpenFailed : StateStreamError}));
}

TEST_F(Platform, AWrittenLineEndsAsThePlatformsLinesDo) {
    AppendMessage({.id = 1});
    EXPECT_EQ(Write(path), Success);
    EXPECT_TRUE(ReadBytes(path).starts_with(OnWindows ? "VERSION \"\"\r\n" : "VERSION \"\"\n"));
}

// The conversions of the two runtimes differ only for decimal numbers at the border between normal
// and subnormal numbers.
TEST_F(Platform, ANumberThatIsRoundedUpToTheSmallestNormalOneIsInRangeOnWindowsAlone) {
    double factor = 99;
    EXPECT_EQ(IsFactor("2.2250738585072012e-308", factor), OnWindows);
    EXPECT_EQ(factor, OnWindows ? 2.2250738585072014e-308 : 0);
    EXPECT_FALSE(IsFactor("2.2250738585072011e-308", factor));
    EXPECT_TRUE(IsFactor("2.2250738585072014e-308", factor));
}

TEST_F(Platform, AHexadecimalNumberThatLosesBitsBelowTheNormalOnesIsInRangeOnWindowsAlone) {
    double factor = 99;
    EXPECT_EQ(IsFactor("0x1.8p-1074", factor), OnWindows);
    EXPECT_TRUE(IsFactor("0x1p-1074", factor));
    EXPECT_FALSE(IsFactor("0x1p-1075", factor));
    EXPECT_FALSE(IsFactor("0x0.cp-1074", factor));
}

TEST_F(Platform, TheNumberInANotANumberIsReadInItsOwnWay) {
    const auto bitsOf = [&](const std::string& number) {
        double factor = 99;
        EXPECT_TRUE(IsFactor(number, factor)) << number;
        return std::bit_cast<std::uint64_t>(factor);
    };
    constexpr std::uint64_t Plain = 0x7ff8000000000000U;
    EXPECT_EQ(bitsOf("nan(12)"), OnWindows ? 0x7ff0000000000012U : 0x7ff800000000000cU);
    EXPECT_EQ(bitsOf("nan(12"), OnWindows ? 0x7ff0000000000012U : Plain);
    EXPECT_EQ(bitsOf("nan(1234567890abcdef1"), OnWindows ? 0x7ff4567890abcdefU : Plain);
    EXPECT_EQ(bitsOf("nan(1g"), Plain);
}

TEST_F(Platform, FileNamesFollowTheRulesOfTheSystem) {
    AppendMessage({.id = 1, .longName = "A"});
    ASSERT_EQ(Write(folder.File("name.dbc")), Success);
    const Outcome other = OnWindows ? Success : Outcome{0, StateOpenFailed};
    EXPECT_EQ(Read(folder.File("NAME.dbc")), other);
    EXPECT_EQ(Read(folder.File("name.dbc ")), other);
    EXPECT_EQ(Read(folder.File("name.dbc.")), other);
    EXPECT_EQ(Read(folder.File("name.dbc . .")), other);
    EXPECT_EQ(Read(folder.File(".\\name.dbc")), other);
}

TEST_F(Platform, CharactersThatWindowsForbidsInFileNamesAreOnlyTakenElsewhere) {
    AppendMessage({.id = 1, .longName = "A"});
    const Outcome expected = OnWindows ? Outcome{0, StateOpenFailed} : Success;
    for (const char character : "\"*<>?|\x01\x1f"s) {
        EXPECT_EQ(Write(folder.File("a"s + character + ".dbc")), expected) << character;
    }
}

// The library for Windows has its own C++ runtime.
TEST_F(Platform, TheCppLocaleOfTheHostReachesWrittenNumbersOnLinuxAlone) {
    class Comma : public std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    AppendMessage({.id = 1});
    AppendSignal(0, {.factor = 0.5});
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    EXPECT_EQ(Write(path), Success);
    std::locale::global(before);
    EXPECT_NE(ReadBytes(path).find(OnWindows ? "(0.5,0)" : "(0,5,0)"), std::string::npos);
}

}  // namespace
}  // namespace vexil::test
