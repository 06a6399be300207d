// Floating-point numbers as text.
// SPDX-License-Identifier: MIT
#include "write/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale>
#include <sstream>

namespace vexil {
namespace {

constexpr int SignificantDigits = 10;

// Appends a number that has at most four decimals and ten digits, as nearly all of a file have,
// from its digits as an integer. The nearest double to such a decimal is written as that decimal.
// Returns false with nothing appended for any other number. Kept on purpose: a negative zero has
// its sign.
bool AppendShortDecimal(std::string& text, double number) {
    constexpr double Scale = 10000;
    if (!(std::abs(number) < 1e6)) {
        return false;
    }
    const auto scaled = static_cast<std::int64_t>(std::round(number * Scale));
    if (static_cast<double>(scaled) / Scale != number) {
        return false;
    }
    const std::int64_t digits = std::abs(scaled);
    text += std::signbit(number) ? "-" : "";
    text += std::to_string(digits / 10000);
    std::int64_t decimals = digits % 10000;
    if (decimals != 0) {
        text += '.';
        for (std::int64_t place = 1000; decimals != 0; place /= 10) {
            text += static_cast<char>('0' + decimals / place);
            decimals %= place;
        }
    }
    return true;
}

// The number as a stream in the classic locale writes it, at a fraction of the time.
void AppendClassic(std::string& text, double number) {
    if (AppendShortDecimal(text, number)) {
        return;
    }
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                            std::chars_format::general, SignificantDigits);
    text.append(digits.data(), end);
}

void AppendClassicPair(std::string& text, std::string_view separators, double first,
                       double second) {
    text += separators[0];
    AppendClassic(text, first);
    text += separators[1];
    AppendClassic(text, second);
    text += separators[2];
}

}  // namespace

std::string NumberPairText(std::string_view separators, double first, double second,
                           std::string line) {
    if (std::locale() == std::locale::classic()) {
        AppendClassicPair(line, separators, first, second);
        return line;
    }
    std::ostringstream text;
    text.exceptions(std::ios_base::badbit);  // exhausted memory travels on, and cuts no number
    text.precision(SignificantDigits);
    text << separators[0] << first << separators[1] << second << separators[2];
    return line.append(text.str());
}

}  // namespace vexil
