// Tests of the lenient number conversions of text/lexical.h.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include "text/lexical.h"

namespace vexil {
namespace {

using namespace std::string_view_literals;

template <typename Number>
struct NumberCase {
    std::string_view text;
    bool parses;
    Number value;
};

template <typename Number>
void ExpectNumbers(bool (*parse)(std::string_view, Number&),
                   std::initializer_list<NumberCase<Number>> rows) {
    for (const NumberCase<Number>& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text));
        Number value = 99;
        EXPECT_EQ(parse(row.text, value), row.parses);
        EXPECT_EQ(value, row.value);
    }
}

// -- 32 bits without a sign -------------------------------------------------------------------

TEST(TryParseU32, TakesTheNumberAtTheStart) {
    ExpectNumbers(TryParseU32,
                  {{"0", true, 0},        {"7", true, 7},         {"007", true, 7},
                   {"+5", true, 5},       {"  7", true, 7},       {" \f\n\r\t\v+7", true, 7},
                   {"12abc", true, 12},   {"12 34", true, 12},    {"0x10", true, 0},
                   {"1.9", true, 1},      {"1e3", true, 1},       {"8@1+", true, 8},
                   {"5-3", true, 5},      {"5\0006"sv, true, 5},  {"", false, 0},
                   {"  ", false, 0},      {"abc", false, 0},      {"+", false, 0},
                   {"-", false, 0},       {"+-5", false, 0},      {"--5", false, 0},
                   {"- 5", false, 0},     {"+ 5", false, 0},      {"x10", false, 0},
                   {".5", false, 0},      {"\xa0\x35", false, 0}, {"\0005"sv, false, 0},
                   {"\x01\x35", false, 0}});
}

TEST(TryParseU32, AcceptsNegativeNumbersModulo32Bits) {
    ExpectNumbers(TryParseU32, {{"4294967294", true, 4294967294U},
                                {"4294967295", true, 4294967295U},
                                {"4294967296", false, 0},
                                {"4294967297", false, 0},
                                {"0000000000000000004294967295", true, 4294967295U},
                                {"9223372036854775807", false, 0},
                                {"9223372036854775808", false, 0},
                                {"18446744073709551615", false, 0},
                                {"18446744073709551616", false, 0},
                                {"18446744073709551617", false, 0},
                                {"99999999999999999999999999", false, 0},
                                {"4294967296abc", false, 0},
                                // A minus sign negates within the 32 bits.
                                {"-0", true, 0},
                                {"-1", true, 4294967295U},
                                {"-2", true, 4294967294U},
                                {"  -1;", true, 4294967295U},
                                {"-2147483648", true, 2147483648U},
                                {"-4294967294", true, 2},
                                {"-4294967295", true, 1},
                                {"-4294967296", false, 0},
                                {"-4294967297", false, 0},
                                {"-18446744073709551615", false, 0},
                                {"-18446744073709551616", false, 0}});
}

// -- 32 bits with a sign ----------------------------------------------------------------------

TEST(TryParseI32, TakesTheNumberAtTheStartWithin32Bits) {
    ExpectNumbers(TryParseI32, {{"0", true, 0},
                                {"-0", true, 0},
                                {"+5", true, 5},
                                {"-5", true, -5},
                                {" \f\n\r\t\v-5 6", true, -5},
                                {"12abc", true, 12},
                                {"-12abc", true, -12},
                                {"0x10", true, 0},
                                {"-1.9", true, -1},
                                {"2147483647", true, 2147483647},
                                {"2147483648", false, 0},
                                {"4294967295", false, 0},
                                {"-2147483647", true, -2147483647},
                                {"-2147483648", true, std::numeric_limits<std::int32_t>::min()},
                                {"-2147483649", false, 0},
                                {"-4294967295", false, 0},
                                {"9223372036854775808", false, 0},
                                {"-9223372036854775809", false, 0},
                                {"18446744073709551616", false, 0},
                                {"", false, 0},
                                {" ", false, 0},
                                {"-", false, 0},
                                {"abc", false, 0},
                                {"+-1", false, 0},
                                {"- 1", false, 0}});
}

// -- 64 bits with a sign ----------------------------------------------------------------------

TEST(TryParseI64, TakesTheNumberAtTheStartWithin64Bits) {
    ExpectNumbers(TryParseI64,
                  {{"0", true, 0},
                   {"-0", true, 0},
                   {"+5", true, 5},
                   {" -5x", true, -5},
                   {"2147483648", true, 2147483648LL},
                   {"-2147483649", true, -2147483649LL},
                   {"0x10", true, 0},
                   {"9223372036854775806", true, 9223372036854775806LL},
                   {"9223372036854775807", true, std::numeric_limits<std::int64_t>::max()},
                   {"9223372036854775808", false, 0},
                   {"-9223372036854775807", true, -9223372036854775807LL},
                   {"-9223372036854775808", true, std::numeric_limits<std::int64_t>::min()},
                   {"-9223372036854775809", false, 0},
                   {"18446744073709551615", false, 0},
                   {"18446744073709551616", false, 0},
                   {"-18446744073709551616", false, 0},
                   {"", false, 0},
                   {"-", false, 0},
                   {"abc", false, 0},
                   {"--1", false, 0}});
}

// -- Floating point ---------------------------------------------------------------------------

TEST(TryParseDouble, TakesTheNumberAtTheStart) {
    ExpectNumbers(TryParseDouble, {{"0", true, 0},
                                   {"1", true, 1},
                                   {"+1.5", true, 1.5},
                                   {"-40", true, -40},
                                   {" \f\n\r\t\v-0.5 ", true, -0.5},
                                   {".5", true, 0.5},
                                   {"5.", true, 5},
                                   {"1e3", true, 1000},
                                   {"1E-3", true, 0.001},
                                   {"1e", true, 1},
                                   {"1e+", true, 1},
                                   {"1.5abc", true, 1.5},
                                   {"1,5", true, 1},
                                   {"1 2", true, 1},
                                   {"0.1", true, 0.1},
                                   {"1\0002"sv, true, 1},
                                   {"", false, 0},
                                   {"  ", false, 0},
                                   {"abc", false, 0},
                                   {".", false, 0},
                                   {"-", false, 0},
                                   {"e5", false, 0},
                                   {"--1", false, 0},
                                   {"- 1", false, 0},
                                   {"\0001"sv, false, 0}});
}

TEST(TryParseDouble, TakesInfinityAndHexadecimalForms) {
    ExpectNumbers(TryParseDouble, {{"inf", true, std::numeric_limits<double>::infinity()},
                                   {"-INFINITY", true, -std::numeric_limits<double>::infinity()},
                                   {"infx", true, std::numeric_limits<double>::infinity()},
                                   {"0x10", true, 16},
                                   {"-0x1.8p1", true, -3},
                                   {"0x", true, 0},
                                   {"in", false, 0}});
}

TEST(TryParseDouble, RefusesOverflowAndUnderflow) {
    ExpectNumbers(TryParseDouble,
                  {{"1.7976931348623157e308", true, std::numeric_limits<double>::max()},
                   {"-1.7976931348623157e308", true, std::numeric_limits<double>::lowest()},
                   {"1.7976931348623159e308", false, 0},
                   {"1e308", true, 1e308},
                   {"1e309", false, 0},
                   {"1e999", false, 0},
                   {"-1e999", false, 0},
                   {"1e999abc", false, 0},
                   {"2.2250738585072014e-308", true, std::numeric_limits<double>::min()},
                   {"1e-999", false, 0},
                   {"-1e-999", false, 0},
                   {"0e-999", true, 0},
                   {"0e999", true, 0}});
}

TEST(TryParseDouble, TakesNanAsANumber) {
    double value = 99;
    EXPECT_TRUE(TryParseDouble("nan", value));
    EXPECT_TRUE(std::isnan(value));
    EXPECT_TRUE(TryParseDouble("-NaN(7)x", value));
    EXPECT_TRUE(std::isnan(value));
}

TEST(TryParseDouble, KeepsTheSignOfZero) {
    double value = 99;
    EXPECT_TRUE(TryParseDouble("-0", value));
    EXPECT_EQ(value, 0);
    EXPECT_TRUE(std::signbit(value));
}

// Whether a number below the normal ones is out of range is for the runtime to say.
TEST(TryParseDouble, RefusesNumbersThatStrtodReportsOutOfRange) {
    for (const char* const text :
         {"1e-310", "-1e-310", "4.9406564584124654e-324", "2.2250738585072011e-308", "1e-323",
          "0x1p-1074", "0x1p-1075", "0x1.8p-1074", "3e-324", "1e-400", "1e400", "1e-307"}) {
        SCOPED_TRACE(text);
        errno = 0;
        const double number = std::strtod(text, nullptr);
        const bool outOfRange = errno == ERANGE;
        double value = 99;
        EXPECT_EQ(TryParseDouble(text, value), !outOfRange);
        EXPECT_EQ(value, outOfRange ? 0 : number);
    }
}

// The library sets no locale and takes the one that the host has set.
TEST(TryParseDouble, TakesTheDecimalPointOfTheHostsLocale) {
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    const char* found = nullptr;
    for (const char* const name :
         {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "German"}) {
        found = found != nullptr ? found : std::setlocale(LC_NUMERIC, name);
    }
    if (found == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma is installed";
    }
    double comma = 99;
    double point = 99;
    const bool commaParses = TryParseDouble("1,5", comma);
    const bool pointParses = TryParseDouble("1.5", point);
    std::setlocale(LC_NUMERIC, before.c_str());
    EXPECT_TRUE(commaParses);
    EXPECT_EQ(comma, 1.5);
    EXPECT_TRUE(pointParses);
    EXPECT_EQ(point, 1);
}

// Seen by the error number, which is set before each call of strtod.
TEST(TryParseDouble, CallsStrtodForAllButPlainDecimals) {
    const auto callsStrtod = [](std::string_view text) {
        double value = 0;
        errno = EDOM;
        TryParseDouble(text, value);
        return errno != EDOM;
    };
    for (const std::string_view text :
         {"0", "-0", "9", " 1", "\n-12.5 x", ".5", "5.", "-.5", "-5.", "1.5\t", "00000",
          "123456789012345", "12345678901234.5", "-0.12345678901234", ".123456789012345"}) {
        EXPECT_FALSE(callsStrtod(text)) << text;
    }
    for (const std::string_view text :
         {"", " ", "-", ".", "-.", "+1", "--1", "- 1", "1e3", "1,5", "1.5.5", "1..", "0x1", "inf",
          "1:", "1/", "1234567890123456", "0.123456789012345"}) {
        EXPECT_TRUE(callsStrtod(text)) << text;
    }
}

TEST(TryParse, IgnoresAnEarlierErrno) {
    std::uint32_t u32 = 99;
    std::int32_t i32 = 99;
    std::int64_t i64 = 99;
    double f64 = 99;
    errno = ERANGE;
    EXPECT_TRUE(TryParseU32("1", u32));
    errno = ERANGE;
    EXPECT_TRUE(TryParseI32("2", i32));
    errno = ERANGE;
    EXPECT_TRUE(TryParseI64("3", i64));
    errno = ERANGE;
    EXPECT_TRUE(TryParseDouble("4e0", f64));
    EXPECT_EQ(u32, 1U);
    EXPECT_EQ(i32, 2);
    EXPECT_EQ(i64, 3);
    EXPECT_EQ(f64, 4);
}

// A view may end inside a longer number, which is not the text's.
TEST(TryParse, ReadsNothingAfterTheText) {
    const std::string_view digits = "123456";
    std::uint32_t u32 = 99;
    std::int32_t i32 = 99;
    std::int64_t i64 = 99;
    double f64 = 99;
    EXPECT_TRUE(TryParseU32(digits.substr(1, 2), u32));
    EXPECT_TRUE(TryParseI32(digits.substr(1, 2), i32));
    EXPECT_TRUE(TryParseI64(digits.substr(1, 2), i64));
    EXPECT_TRUE(TryParseDouble(digits.substr(1, 2), f64));
    EXPECT_EQ(u32, 23U);
    EXPECT_EQ(i32, 23);
    EXPECT_EQ(i64, 23);
    EXPECT_EQ(f64, 23);
}

}  // namespace
}  // namespace vexil
