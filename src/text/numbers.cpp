// The lenient number conversions, declared in lexical.h.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <string>

#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// Parses the integer at the start of text. It replaces strtoul and strtol, which have 32 bits on
// one platform and 64 on another.
//   most          the largest magnitude of a number.
//   mostNegative  the largest magnitude after a minus sign.
template <typename Number>
bool ParseInteger(std::string_view text, Number& value, std::uint64_t most,
                  std::uint64_t mostNegative) {
    value = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && spaceTable[static_cast<unsigned char>(*at)]) {
        ++at;
    }
    const bool isNegative = at != end && *at == '-';
    if (isNegative || (at != end && *at == '+')) {
        ++at;
    }
    const char* const digits = at;
    std::uint64_t magnitude = 0;
    for (; at != end; ++at) {
        const unsigned digit = static_cast<unsigned char>(*at) - unsigned{'0'};
        if (digit > 9) {
            break;
        }
        // With another digit, a larger number would be out of every range.
        if (magnitude > std::numeric_limits<std::int64_t>::max() / 10) {
            return false;
        }
        magnitude = magnitude * 10 + digit;
    }
    if (at == digits || magnitude > (isNegative ? mostNegative : most)) {
        return false;
    }
    value = static_cast<Number>(isNegative ? 0 - magnitude : magnitude);
    return true;
}

template <typename Signed>
bool ParseSigned(std::string_view text, Signed& value) {
    constexpr auto Largest = static_cast<std::uint64_t>(std::numeric_limits<Signed>::max());
    return ParseInteger(text, value, Largest, Largest + 1);
}

// Whether the decimal point of the C locale is a full stop.
bool IsPointFullStop() {
    return std::string_view(std::localeconv()->decimal_point) == ".";
}

// Converts text with strtod, under the C locale of the host.
bool TryParseAnyDouble(std::string_view text, double& value) {
    value = 0;
    const std::string terminated(text);
    char* end = nullptr;
    errno = 0;
    const double number = std::strtod(terminated.c_str(), &end);
    if (end == terminated.c_str() || errno == ERANGE) {
        return false;
    }
    value = number;
    return true;
}

// Converts the numbers of ordinary files in a tenth of the time: decimals of at most fifteen
// digits, followed by white space or nothing. Their digits as an integer and the power of ten are
// exact doubles, so one division gives the nearest double, as strtod does. Returns false and leaves
// value unchanged for all other numbers, such as those with a plus sign, exponents, words or
// hexadecimal digits.
bool TryParsePlainDouble(std::string_view text, double& value) {
    constexpr std::array<double, 16> PowersOfTen = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                    1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    std::size_t at = std::min<std::size_t>(FindNonSpace(text, 0), text.size());
    const bool isNegative = at < text.size() && text[at] == '-';
    at += isNegative ? 1 : 0;
    std::int64_t digits = 0;
    std::size_t digitCount = 0;
    std::size_t decimals = 0;
    bool hasPoint = false;
    for (; at < text.size() && !IsSpace(text[at]); ++at) {
        if (text[at] == '.' && !hasPoint) {
            hasPoint = true;
        } else if (IsDigit(text[at]) && digitCount < PowersOfTen.size() - 1) {
            digits = digits * 10 + (text[at] - '0');
            ++digitCount;
            decimals += hasPoint ? 1 : 0;
        } else {
            return false;
        }
    }
    if (digitCount == 0 || (hasPoint && !IsPointFullStop())) {
        return false;
    }
    const double magnitude = static_cast<double>(digits) / PowersOfTen[decimals];
    value = isNegative ? -magnitude : magnitude;
    return true;
}

}  // namespace

bool TryParseU32(std::string_view text, std::uint32_t& value) {
    constexpr std::uint64_t Largest = std::numeric_limits<std::uint32_t>::max();
    return ParseInteger(text, value, Largest, Largest);
}

bool TryParseI32(std::string_view text, std::int32_t& value) {
    return ParseSigned(text, value);
}

bool TryParseI64(std::string_view text, std::int64_t& value) {
    return ParseSigned(text, value);
}

bool TryParseDouble(std::string_view text, double& value) {
    return TryParsePlainDouble(text, value) || TryParseAnyDouble(text, value);
}

}  // namespace vexil
