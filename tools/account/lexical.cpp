// Parses words and numbers.
// SPDX-License-Identifier: MIT
#include "account/lexical.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "source/keywords.h"
#include "source/utf8.h"

namespace vexil::tool {
namespace {

constexpr std::size_t MaxIdentifierLength = 32;
constexpr std::size_t MaxShown = 60;

bool IsDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

bool IsIdentifierCharacter(char ch) {
    return IsDigit(ch) || ch == '_' || (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
}

std::string_view WithoutPlus(std::string_view text) {
    const bool hasPlus = text.size() > 1 && text[0] == '+' && text[1] != '-';
    return hasPlus ? text.substr(1) : text;
}

}  // namespace

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsSpace(text.front())) {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text;
}

std::string Shown(std::string_view text) {
    std::string shown;
    Words words(text);
    for (std::string_view word = words.Next(); !word.empty(); word = words.Next()) {
        if (!shown.empty()) {
            shown += ' ';
        }
        shown += word.substr(0, MaxShown + 1);
        if (shown.size() > MaxShown) {
            std::size_t end = MaxShown;
            while (end > 0 && (static_cast<unsigned char>(shown[end]) & 0xC0U) == 0x80U) {
                --end;
            }
            return shown.substr(0, end) + "...";
        }
    }
    return shown;
}

std::string_view Words::Peek() const {
    std::size_t begin = position;
    while (begin < whole.size() && IsSpace(whole[begin])) {
        ++begin;
    }
    std::size_t end = begin;
    while (end < whole.size() && !IsSpace(whole[end])) {
        ++end;
    }
    return whole.substr(begin, end - begin);
}

std::string_view Words::Next() {
    const std::string_view word = Peek();
    position = word.empty() ? whole.size()
                            : static_cast<std::size_t>(word.data() - whole.data()) + word.size();
    return word;
}

std::optional<std::uint32_t> TakeId(Words& words) {
    const std::string_view word = words.Next();
    if (word.empty() || words.Rest().empty() || !std::all_of(word.begin(), word.end(), IsDigit)) {
        return std::nullopt;
    }
    std::uint32_t id = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), id);
    return result.ec == std::errc() ? std::optional(id) : std::nullopt;
}

std::optional<LeadingNumber> ReadLeadingNumber(std::string_view text) {
    text = WithoutPlus(Trim(text));
    LeadingNumber number;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number.value);
    if (result.ec != std::errc()) {
        return std::nullopt;
    }
    number.isWhole = result.ptr == text.data() + text.size();
    return number;
}

std::optional<LeadingDouble> ReadLeadingDouble(std::string_view text) {
    // Not every standard library has from_chars for doubles. The tool sets no locale for strtod.
    const std::string copy(Trim(text));
    char* end = nullptr;
    LeadingDouble number;
    errno = 0;
    number.value = std::strtod(copy.c_str(), &end);
    if (end == copy.c_str() || (errno == ERANGE && std::isinf(number.value))) {
        return std::nullopt;
    }
    number.isWhole = end == copy.c_str() + copy.size();
    return number;
}

bool HasIdentifierCharacters(std::string_view name) {
    return !name.empty() && !IsDigit(name.front()) &&
           std::all_of(name.begin(), name.end(), IsIdentifierCharacter);
}

bool IsIdentifier(std::string_view name) {
    return name.size() <= MaxIdentifierLength && HasIdentifierCharacters(name);
}

std::string MakeIdentifier(std::string_view text) {
    std::string made;
    for (std::size_t at = 0; at < text.size() && made.size() < MaxIdentifierLength;) {
        const char ch = text[at];
        made += IsIdentifierCharacter(ch) ? ch : '_';
        at += std::max<std::size_t>(1, Utf8Length(text, at));
    }
    if (!made.empty() && IsDigit(made.front())) {
        made.front() = '_';
    }
    return made;
}

}  // namespace vexil::tool
