// Finds the bytes of a character.
// SPDX-License-Identifier: MIT
#include "source/utf8.h"

namespace vexil::tool {
namespace {

unsigned ByteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

bool IsContinuation(unsigned byte) {
    return (byte & 0xC0U) == 0x80U;
}

}  // namespace

std::size_t Utf8Length(std::string_view text, std::size_t at) {
    const unsigned lead = ByteAt(text, at);
    const unsigned second = ByteAt(text, at + 1);
    if (lead < 0x80) {
        return at < text.size() ? 1 : 0;
    }
    if (lead < 0xC2 || lead > 0xF4 || !IsContinuation(second)) {
        return 0;
    }
    if (lead < 0xE0) {
        return 2;
    }
    if (!IsContinuation(ByteAt(text, at + 2))) {
        return 0;
    }
    if (lead < 0xF0) {
        const bool overlong = lead == 0xE0 && second < 0xA0;
        const bool surrogate = lead == 0xED && second > 0x9F;
        return overlong || surrogate ? 0 : 3;
    }
    const bool overlong = lead == 0xF0 && second < 0x90;
    const bool tooLarge = lead == 0xF4 && second > 0x8F;
    return overlong || tooLarge || !IsContinuation(ByteAt(text, at + 3)) ? 0 : 4;
}

}  // namespace vexil::tool
