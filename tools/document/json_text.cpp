// Escapes, and numbers in their shortest form.
// SPDX-License-Identifier: MIT
#include "document/json_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "source/utf8.h"

namespace vexil::tool {
namespace {

constexpr unsigned char Delete = 0x7F;

// Whether a byte is copied without a change, whatever its neighbours are.
constexpr std::array<bool, 256> PlainBytes = [] {
    std::array<bool, 256> plain{};
    for (std::size_t byte = ' '; byte < Delete; ++byte) {
        plain[byte] = byte != '"' && byte != '\\';
    }
    return plain;
}();

bool IsPlain(char ch) {
    return PlainBytes[static_cast<unsigned char>(ch)];
}

void AppendEscape(std::string& out, unsigned code) {
    constexpr std::string_view Digits = "0123456789abcdef";
    out += "\\u00";
    out += Digits[code / 16U];
    out += Digits[code % 16U];
}

void AppendAscii(std::string& out, char ch) {
    switch (ch) {
        case '"':
        case '\\':
            out += '\\';
            out += ch;
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            AppendEscape(out, static_cast<unsigned char>(ch));
            break;
    }
}

// Appends a character of several bytes and returns its size; 1 for an invalid byte.
std::size_t AppendCharacter(std::string& out, std::string_view text, std::size_t at) {
    constexpr unsigned char LeadOfLatin1 = 0xC2;  // of U+0080 to U+00BF
    constexpr unsigned char FirstGraphic = 0xA0;
    const std::size_t size = Utf8Length(text, at);
    if (size == 0) {
        out += "\\ufffd";
        return 1;
    }
    const auto second = static_cast<unsigned char>(text[at + 1]);
    if (static_cast<unsigned char>(text[at]) == LeadOfLatin1 && second < FirstGraphic) {
        AppendEscape(out, second);
    } else {
        out += text.substr(at, size);
    }
    return size;
}

template <typename Number>
void AppendShortest(std::string& out, Number number) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    out.append(digits.data(), result.ptr);
}

}  // namespace

void AppendJsonText(std::string& out, std::string_view text) {
    out += '"';
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && IsPlain(text[end])) {
            ++end;
        }
        out.append(text, at, end - at);
        at = end;
        if (at < text.size() && static_cast<unsigned char>(text[at]) <= Delete) {
            AppendAscii(out, text[at]);
            ++at;
        } else if (at < text.size()) {
            at += AppendCharacter(out, text, at);
        }
    }
    out += '"';
}

void AppendJsonNumber(std::string& out, double number) {
    if (std::isnan(number)) {
        out += std::signbit(number) ? R"("-NaN")" : R"("NaN")";
    } else if (std::isinf(number)) {
        out += number < 0 ? R"("-Infinity")" : R"("Infinity")";
    } else if (number == 0 && std::signbit(number)) {
        out += "-0.0";  // many readers parse -0 as an integer, which has no negative zero
    } else {
        AppendShortest(out, number);
    }
}

void AppendJsonWhole(std::string& out, std::int64_t number) {
    AppendShortest(out, number);
}

void AppendJsonValue(std::string& out, const RecordField& field, const void* record) {
    switch (field.kind) {
        case FieldKind::Text:
            AppendJsonText(out, LoadText(field, record));
            break;
        case FieldKind::Double:
            AppendJsonNumber(out, LoadDouble(field, record));
            break;
        default:
            AppendJsonWhole(out, LoadWhole(field, record));
            break;
    }
}

std::string JsonExcerpt(std::string_view text, std::size_t most) {
    std::size_t size = 0;
    while (size < text.size()) {
        const std::size_t next = size + std::max<std::size_t>(1, Utf8Length(text, size));
        if (next > most) {
            break;
        }
        size = next;
    }
    std::string out;
    AppendJsonText(out, text.substr(0, size));
    if (size < text.size()) {
        out += "...";
    }
    return out;
}

}  // namespace vexil::tool
