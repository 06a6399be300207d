// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#include "write/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <new>
#include <sstream>

namespace vexil {
namespace {

constexpr int SignificantDigits = 10;

// Appends a number of at most ten digits, with at most four decimals, from its digits as an
// integer. Nearly all numbers of a file have this form. A double is written as such a decimal if it
// is the nearest double to it. Returns false and appends nothing for other numbers. Intentional: a
// negative zero keeps its sign.
bool AppendShortDecimal(LineBuffer& line, double number) {
    const double magnitude = std::abs(number);
    const std::string_view sign = std::signbit(number) ? "-" : "";
    if (!(magnitude <= 4294967295.0)) {
        return false;
    }
    const auto whole = static_cast<std::uint32_t>(magnitude);
    if (static_cast<double>(whole) == magnitude) {
        line.Append(sign, whole);
        return true;
    }
    std::uint32_t scale = 10000;
    for (std::uint64_t limit = 1000000; whole >= limit; limit *= 10) {
        scale /= 10;
    }
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): the next line checks the result
    const auto scaled = static_cast<std::uint64_t>(magnitude * scale + 0.5);
    if (static_cast<double>(scaled) / scale != magnitude) {
        return false;
    }
    line.Append(sign, whole, '.');
    auto decimals = static_cast<std::uint32_t>(scaled % scale);
    for (std::uint32_t place = scale / 10; decimals != 0; place /= 10) {
        line.Append(static_cast<char>('0' + decimals / place));
        decimals %= place;
    }
    return true;
}

// Appends the number like a stream in the classic locale, in a fraction of the time.
void AppendClassic(LineBuffer& line, double number) {
    if (AppendShortDecimal(line, number)) {
        return;
    }
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                            std::chars_format::general, SignificantDigits);
    line.Append(std::string_view(digits.data(), std::find(digits.data(), end, '(')));  // nan(ind)
}

}  // namespace

NumberText::NumberText() : isClassic(std::locale() == std::locale::classic()) {}

void NumberText::AppendPair(LineBuffer& line, std::string_view separators, double first,
                            double second) const {
    line.Append(separators[0], separators[1]);
    if (isClassic) {
        AppendClassic(line, first);
        line.Append(separators[2]);
        AppendClassic(line, second);
    } else {
        std::ostringstream text;
        text.precision(SignificantDigits);
        text << first << separators[2] << second;
        line.Append(text ? text.str() : throw std::bad_alloc());  // bad: out of memory
    }
    line.Append(separators[3]);
}

}  // namespace vexil
