// The lenient number conversions, declared in lexical.h.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cerrno>
#include <charconv>
#include <clocale>
#include <cmath>
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

// The numbers of an ordinary file, at a third of the time: decimal, with white space or nothing
// behind. True only where strtod gives the same; the value is left alone otherwise. What overflows
// or may underflow, all signs but a minus, all words and all hexadecimal numbers are left to
// strtod.
bool TryParsePlainDouble(std::string_view text, double& value) {
    text.remove_prefix(std::min<std::size_t>(FindNonSpace(text, 0), text.size()));
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    if (text.size() == sign || !IsDigit(text[sign])) {
        return false;
    }
    const char* const end = text.data() + text.size();
    double number = 0;
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const double magnitude = std::abs(number);
    const bool isInRange = magnitude > std::numeric_limits<double>::min() ||
                           (number == 0 && stop == text.data() + sign + 1);
    if (error != std::errc() || !isInRange || (stop != end && !IsSpace(*stop))) {
        return false;
    }
    if (text.find('.') != std::string_view::npos && !IsPointFullStop()) {
        return false;
    }
    value = number;
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
