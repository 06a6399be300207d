// Tests of write/number_text.h.
// SPDX-License-Identifier: MIT
#include "write/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <locale>
#include <random>

#include "write/model.h"

namespace vexil {
namespace {

std::string PairText(std::string_view separators, double first, double second) {
    LineBuffer line;
    line.Append('<');
    NumberText().AppendPair(line, separators, first, second);
    return std::string(line.Text().substr(1));
}

// The text of a number, the same in both places of a pair.
std::string Written(double number) {
    const std::string pair = PairText("<(,)", number, number);
    const std::string text = pair.substr(2, (pair.size() - 4) / 2);
    EXPECT_EQ(pair, "<(" + text + ',' + text + ')');
    return text;
}

TEST(NumberText, PutsTheSeparatorsAroundTheNumbers) {
    EXPECT_EQ(PairText(" (,)", 0.1, -40), " (0.1,-40)");
    EXPECT_EQ(PairText(" [|]", 0, 6553.5), " [0|6553.5]");
}

TEST(NumberText, WritesAtMostTenDigits) {
    const std::pair<double, std::string_view> cases[] = {
        {1, "1"},
        {0, "0"},
        {-0.0, "-0"},
        {0.1, "0.1"},
        {0.30000000000000004, "0.3"},
        {0.0001, "0.0001"},
        {0.00001, "1e-05"},
        {-40, "-40"},
        {100000, "100000"},
        {4294967295.0, "4294967295"},
        {9999999999.5, "1e+10"},
        {12345678901.0, "1.23456789e+10"},
        {18446744073709551615.0, "1.844674407e+19"},
        // Both sides of each limit.
        {9999999999.0, "9999999999"},
        {9999999999.4, "9999999999"},
        {10000000000.0, "1e+10"},
        {-9999999999.0, "-9999999999"},
        {-10000000000.0, "-1e+10"},
        {1234567890.4, "1234567890"},
        {1234567890.6, "1234567891"},
        {0.00009999999999, "9.999999999e-05"},
        {0.000099999999999, "0.0001"},
        {0.00012345678905, "0.0001234567891"},
        {1.0000000001, "1"},
        {1.000000001, "1.000000001"},
        {999999.1234, "999999.1234"},
        {1000000.1234, "1000000.123"},
        {9999999.123, "9999999.123"},
        {10000000.123, "10000000.12"},
        {99999999.12, "99999999.12"},
        {100000000.12, "100000000.1"},
        {999999999.1, "999999999.1"},
        {1000000000.1, "1000000000"},
        {0.5, "0.5"},
        {100.25, "100.25"},
        {1e100, "1e+100"},
        {1.5e-300, "1.5e-300"},
        {std::numeric_limits<double>::max(), "1.797693135e+308"},
        {std::numeric_limits<double>::min(), "2.225073859e-308"},
        {std::numeric_limits<double>::denorm_min(), "4.940656458e-324"},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(Written(number), text);
    }
}

TEST(NumberText, WritesWholeNumbersWithAtMostTenDigits) {
    for (const std::int64_t number : {7LL, -7LL, 1000000LL, 123456789LL, 1234567890LL}) {
        EXPECT_EQ(Written(static_cast<double>(number)), std::to_string(number));
    }
    EXPECT_EQ(Written(12345678900.0), "1.23456789e+10");
}

TEST(NumberText, WritesInfinityAndNanWithTheirSign) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(Written(infinity), "inf");
    EXPECT_EQ(Written(-infinity), "-inf");
    EXPECT_EQ(Written(notANumber), "nan");
    EXPECT_EQ(Written(-notANumber), "-nan");
}

// Except NaN, which has a sign in some runtimes only.
void ExpectAsPrinted(double number) {
    if (!std::isnan(number)) {
        char expected[64];
        std::snprintf(expected, sizeof expected, "%.10g", number);
        EXPECT_EQ(Written(number), expected);
    }
}

// Whole numbers on both sides of each number of digits, with decimals of each number of digits.
TEST(NumberText, IsPrintfWithTenDigitsAtEachNumberOfDigits) {
    for (double power = 1; power <= 1e11; power *= 10) {
        for (const double whole : {power - 1, power, power + 1, power * 4.294967295}) {
            for (double scale = 1; scale <= 1e6; scale *= 10) {
                for (const double decimals : {0.0, 1.0, scale / 2, scale - 1, 0.123456 * scale}) {
                    ExpectAsPrinted(whole + std::floor(decimals) / scale);
                }
            }
        }
    }
}

TEST(NumberText, IsPrintfWithTenDigitsOnRandomNumbers) {
    constexpr unsigned Seed = 60517;
    SCOPED_TRACE("seed " + std::to_string(Seed));
    std::mt19937_64 random(Seed);
    for (int power = -323; power <= 308; ++power) {
        const double number = std::pow(10.0, power);
        ExpectAsPrinted(number);
        ExpectAsPrinted(-number);
        ExpectAsPrinted(std::nextafter(number, 0));
        ExpectAsPrinted(std::nextafter(number, std::numeric_limits<double>::infinity()));
    }
    for (int round = 0; round < 20000; ++round) {
        ExpectAsPrinted(std::bit_cast<double>(random()));                   // any bit pattern
        ExpectAsPrinted(std::bit_cast<double>(random() >> 12));             // denormal
        ExpectAsPrinted(static_cast<double>(random() >> (random() % 64)));  // whole
        ExpectAsPrinted(-static_cast<double>(random() % 1000000) / 1000);   // of few digits
        ExpectAsPrinted(static_cast<double>(random() % 100000000000) / 10 + 0.05);  // on the edge
    }
}

class CommaAndGroups : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// Sets a global locale with a decimal comma and groups of three, and takes it back.
class GlobalLocale {
  public:
    GlobalLocale()
        : former(std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups))) {}
    GlobalLocale(const GlobalLocale&) = delete;
    GlobalLocale& operator=(const GlobalLocale&) = delete;
    ~GlobalLocale() { std::locale::global(former); }

  private:
    std::locale former;
};

TEST(NumberText, UsesPointAndGroupsOfTheCurrentGlobalLocale) {
    {
        const GlobalLocale locale;
        EXPECT_EQ(PairText(" (,)", 0.5, -40), " (0,5,-40)");
        EXPECT_EQ(PairText(" [|]", 1234567.25, 1000), " [1.234.567,25|1.000]");
    }
    EXPECT_EQ(PairText(" (,)", 0.5, -40), " (0.5,-40)");
    EXPECT_EQ(PairText(" [|]", 1234567.25, 1000), " [1234567.25|1000]");
}

TEST(NumberText, UsesTheLocaleOfItsConstruction) {
    LineBuffer line;
    const NumberText before;
    {
        const GlobalLocale locale;
        before.AppendPair(line, " (,)", 0.5, -40);
    }
    EXPECT_EQ(line.Text(), " (0.5,-40)");
}

using Locale = test::ModelTest;

TEST_F(Locale, ChangesOnlyNumbersWithAPoint) {
    constexpr std::string_view File =
        "BO_ 2147483938 M: 1000 N\n"
        " SG_ S m1234 : 5678|9012@1+ (1,0) [0|1] \"\" N\n"
        "\n"
        "CM_ SG_ 2147483938 S \"c\";\n"
        "VAL_ 2147483938 S -123456 \"x\";\n";
    const GlobalLocale locale;
    EXPECT_EQ(test::ReadText(File), test::GoodRead);
    const std::string file = WrittenFile();
    EXPECT_EQ(file.substr(file.find("BO_ 2")), File);
}

}  // namespace
}  // namespace vexil
