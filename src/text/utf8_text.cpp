// UTF-8 text: fitting, copying, repairing, folding.
// SPDX-License-Identifier: MIT
#include "text/utf8_text.h"

#include <utf8.h>

#include <array>

namespace vexil {
namespace {

bool IsValid(std::string_view text) {
    return IsAscii(text) || utf8::is_valid(text.begin(), text.end());
}

}  // namespace

// The loop has no branch, so that the compiler can vectorise it.
bool IsAscii(std::string_view text) {
    unsigned char seen = 0;
    for (const char ch : text) {
        seen |= static_cast<unsigned char>(ch);
    }
    return seen < 128;
}

bool Utf8FitLength(std::string_view text, std::uint64_t bufferSize, std::uint64_t& length) {
    length = 0;
    if (bufferSize < 2) {
        return false;
    }
    const std::uint64_t size = bufferSize - 1;
    if (text.size() < size) {
        length = size;
        return true;
    }
    const std::string_view span = text.substr(0, size);
    if (IsValid(span)) {
        length = size;
        return true;
    }
    // The span may end inside a character: after its lead byte, or one or two bytes further on.
    constexpr std::array<unsigned char, 3> LeadBytes = {0xC0, 0xE0, 0xF0};
    for (std::size_t cut = 1; cut <= LeadBytes.size(); ++cut) {
        if (size == cut) {
            return true;
        }
        const auto lead = static_cast<unsigned char>(span[size - cut]);
        if (lead >= LeadBytes[cut - 1] && IsValid(span.substr(0, size - cut))) {
            length = size - cut;
            return true;
        }
    }
    return false;
}

bool CopyUtf8Text(std::string_view& out, const char* buffer, std::uint64_t bufferSize) {
    out = {};
    if (bufferSize == 0 || buffer[0] == '\0') {
        return true;
    }
    const std::string_view array(buffer, bufferSize);
    const std::size_t terminator = array.find('\0');
    const std::string_view content =
        array.substr(0, terminator == std::string_view::npos ? bufferSize - 1 : terminator);
    std::uint64_t length = 0;
    const bool isValid = Utf8FitLength(content, content.size() + 1, length);
    out = content.substr(0, length);
    return isValid;
}

void ReplaceInvalidUtf8(std::span<char> text) {
    auto at = utf8::find_invalid(text.begin(), text.end());
    while (at != text.end()) {
        *at = '_';
        at = utf8::find_invalid(at, text.end());
    }
}

std::string FoldToAscii(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        const char* const start = at;
        utf8::next(at, end);
        folded += at - start == 1 ? *start : '_';
    }
    return folded;
}

}  // namespace vexil
