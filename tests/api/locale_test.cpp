// Tests of the numbers in files under locales that the host has set: reading takes the decimal
// point of the C locale, writing point and groups of the global C++ locale. Neither takes the
// other's, and the library sets none.
// SPDX-License-Identifier: MIT
#include <clocale>
#include <locale>

#include "api/api_test.h"

namespace vexil::test {
namespace {

class CommaAndGroups : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class LocaleTest : public ApiTest {
  protected:
    ~LocaleTest() override {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
    }

    // Sets a C locale with a decimal comma and does not change the C++ locale. Returns whether
    // there is one.
    static bool SetDecimalComma() {
        return std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr ||
               std::setlocale(LC_ALL, "de_DE.utf8") != nullptr ||
               std::setlocale(LC_ALL, "German") != nullptr;  // the name of Windows
    }

    // Sets a C++ locale with a decimal comma and groups of three and does not change the C locale:
    // it has no name.
    static void SetGroups() {
        std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
    }

    // The SG_ line of the first signal in a written file.
    std::string SignalLine() {
        EXPECT_EQ(Write(path), Success);
        const std::string text = ReadTextFile(path);
        const std::size_t start = text.find("SG_ S");
        return text.substr(start, text.find('\n', start) - start);
    }
};

// Numbers of few digits and of 16, which take different ways through the library.
constexpr const char* Numbers =
    "BO_ 1000000 A: 1000 N\n"
    " SG_ S : 1234|5678@1+ (0.5,-1.5) [-1234567.25|0.1234567890123456] \"\" N\n";

TEST_F(LocaleTest, ReadUsesTheDecimalPointOfTheCLocale) {
    if (!SetDecimalComma()) {
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    }
    const std::string name = std::setlocale(LC_ALL, nullptr);
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n"
                       " SG_ S : 0|8@1+ (0.5,1.75) [-12.5|0.1234567890123456] \"\" N\n"
                       " SG_ T : 0|8@1+ (2,1,5) [-12,5|0,1234567890123456] \"\" N\n"),
              Success);
    // The digits after the point are not part of the number.
    ExpectSignal(0, 0,
                 {.name = "S",
                  .longName = "S",
                  .receiverList = "N",
                  .bitLength = 8,
                  .factor = 0,
                  .offset = 1,
                  .minimum = -12,
                  .maximum = 0});
    // The first comma of a pair parts it all the same.
    ExpectSignal(0, 1,
                 {.name = "T",
                  .longName = "T",
                  .receiverList = "N",
                  .bitLength = 8,
                  .factor = 2,
                  .offset = 1.5,
                  .minimum = -12.5,
                  .maximum = 0.1234567890123456});
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), name.c_str());
}

TEST_F(LocaleTest, WriteIgnoresTheCLocale) {
    ASSERT_EQ(ReadText(Numbers), Success);
    const std::string line = "SG_ S : 1234|5678@1+ (0.5,-1.5) [-1234567.25|0.123456789] \"\" N";
    EXPECT_EQ(SignalLine(), line);
    if (!SetDecimalComma()) {
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    }
    EXPECT_EQ(SignalLine(), line);
}

TEST_F(LocaleTest, WriteUsesPointAndGroupsOfTheCppLocale) {
    ASSERT_EQ(ReadText(Numbers), Success);
    SetGroups();
    const std::locale set;
    // No integer of the file has groups.
    EXPECT_EQ(SignalLine(), "SG_ S : 1234|5678@1+ (0,5,-1,5) [-1.234.567,25|0,123456789] \"\" N");
    EXPECT_NE(ReadBytes(path).find("\nBO_ 1000000 A: 1000 N\n"), std::string::npos);
    EXPECT_EQ(std::locale(), set);
}

TEST_F(LocaleTest, ReadIgnoresTheCppLocale) {
    SetGroups();
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n"
                       " SG_ S : 0|8@1+ (0.5,-1.5) [-12.5|0.1234567890123456] \"\" N\n"),
              Success);
    ExpectSignal(0, 0,
                 {.name = "S",
                  .longName = "S",
                  .receiverList = "N",
                  .bitLength = 8,
                  .factor = 0.5,
                  .offset = -1.5,
                  .minimum = -12.5,
                  .maximum = 0.1234567890123456});
}

}  // namespace
}  // namespace vexil::test
