// Characters that would move the cursor, change colours or hide text become escapes.
// SPDX-License-Identifier: MIT
#include "view/visible_text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "format/format.h"
#include "source/utf8.h"

namespace vexil::tool {
namespace {

// The number of a character of two or three bytes.
std::uint32_t CodePoint(std::string_view character) {
    std::uint32_t number = static_cast<unsigned char>(character[0]) & 0x1FU;
    if (character.size() == 3) {
        number &= 0x0FU;
    }
    for (const char ch : character.substr(1)) {
        number = number << 6U | (static_cast<unsigned char>(ch) & 0x3FU);
    }
    return number;
}

// Controls from U+0080 on, characters without a width, and those that change the direction of text.
bool IsControl(std::string_view character) {
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };
    static constexpr std::array<Range, 4> Controls = {
        {{0x80, 0x9F}, {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2066, 0x2069}}};
    if (character.size() != 2 && character.size() != 3) {
        return false;
    }
    const std::uint32_t number = CodePoint(character);
    return std::any_of(Controls.begin(), Controls.end(), [number](const Range& range) {
        return number >= range.first && number <= range.last;
    });
}

void AppendEscape(std::string& out, char ch) {
    switch (ch) {
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
            out += Format("\\x{:02X}", static_cast<unsigned char>(ch));
    }
}

}  // namespace

std::string Visible(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte >= 0x20 && byte < 0x7F) {
            out += text[at++];
            continue;
        }
        const std::size_t size = byte < 0x80 ? 0 : Utf8Length(text, at);
        const std::string_view character = text.substr(at, size == 0 ? 1 : size);
        if (size == 0 || IsControl(character)) {
            for (const char ch : character) {
                AppendEscape(out, ch);
            }
        } else {
            out += character;
        }
        at += character.size();
    }
    return out;
}

}  // namespace vexil::tool
