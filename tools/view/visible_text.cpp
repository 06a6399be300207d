// Characters that would move the cursor, change colours or hide text become escapes.
// SPDX-License-Identifier: MIT
#include "view/visible_text.h"

#include <cstddef>

#include "format/format.h"
#include "source/utf8.h"

namespace vexil::tool {
namespace {

// Controls from U+0080 on, and those of the direction of text.
bool IsControl(std::string_view character) {
    constexpr std::string_view FirstC1 = "\xC2\x80";
    constexpr std::string_view LastC1 = "\xC2\x9F";
    const auto isIn = [character](std::string_view first, std::string_view last) {
        return character >= first && character <= last;
    };
    return (character.size() == 2 && isIn(FirstC1, LastC1)) ||
           (character.size() == 3 &&
            (isIn("\xE2\x80\x8B", "\xE2\x80\x8F") || isIn("\xE2\x80\xA8", "\xE2\x80\xAE") ||
             isIn("\xE2\x81\xA6", "\xE2\x81\xA9")));
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
