// The lenient number conversions, declared in lexical.h.
// SPDX-License-Identifier: MIT
#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <limits>

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

}  // namespace vexil
