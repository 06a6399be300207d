// The lenient number conversions, declared in lexical.h.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <string>

#include "text/char_class.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// An integer as the runtime's conversions split it: sign and magnitude.
struct Integer {
    bool negative = false;
    std::uint64_t magnitude = 0;
};

// The integer at the start of text. False when there is no digit or the magnitude exceeds 64 bits.
// Our own, since strtoul and strtol are of 32 bits on one platform and of 64 on another.
bool ParseInteger(std::string_view text, Integer& integer) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && IsSpace(*at)) {
        ++at;
    }
    if (at != end && (*at == '-' || *at == '+')) {
        integer.negative = *at == '-';
        ++at;
    }
    return std::from_chars(at, end, integer.magnitude).ec == std::errc();
}

template <typename Signed>
bool ParseSigned(std::string_view text, Signed& value) {
    value = 0;
    Integer integer;
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<Signed>::max());
    if (!ParseInteger(text, integer) || integer.magnitude > largest + (integer.negative ? 1 : 0)) {
        return false;
    }
    // Negated as unsigned, since the magnitude of the smallest number has no signed form.
    value = static_cast<Signed>(integer.negative ? 0 - integer.magnitude : integer.magnitude);
    return true;
}

// Whether the decimal point of the host's C locale is a full stop.
bool IsPointFullStop() {
    return std::string_view(std::localeconv()->decimal_point) == ".";
}

// What strtod makes of text, with the host's C locale.
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

// The numbers of an ordinary file, at a tenth of the time: decimals of at most fifteen digits, with
// white space or nothing behind. Their digits as an integer and the power of ten are exact doubles,
// so that one division gives the nearest double, as strtod does. Returns false with value left
// alone for all else, which is left to strtod: other signs than a minus, exponents, words,
// hexadecimal numbers.
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
    value = 0;
    Integer integer;
    if (!ParseInteger(text, integer) ||
        integer.magnitude > std::numeric_limits<std::uint32_t>::max()) {
        return false;
    }
    const auto magnitude = static_cast<std::uint32_t>(integer.magnitude);
    value = integer.negative ? 0 - magnitude : magnitude;
    return true;
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
