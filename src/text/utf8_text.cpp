// UTF-8 text: fitting, copying, repairing, folding.
// SPDX-License-Identifier: MIT
#include "text/utf8_text.h"

#include <utf8.h>

namespace vexil {
namespace {

// Whether every byte is below 128. Without a branch in the loop, for the compiler to make it wide.
bool IsAscii(std::string_view text) {
    unsigned char seen = 0;
    for (const char ch : text) {
        seen |= static_cast<unsigned char>(ch);
    }
    return seen < 128;
}

bool IsValid(std::string_view text) {
    return IsAscii(text) || utf8::is_valid(text.begin(), text.end());
}

unsigned char ByteFromEnd(std::string_view text, std::size_t distance) {
    return static_cast<unsigned char>(text[text.size() - distance]);
}

}  // namespace

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
    // The span may end inside a character: behind its lead byte, or one or two bytes further on.
    if (size == 1) {
        return true;
    }
    if (ByteFromEnd(span, 1) >= 0xC0 && IsValid(span.substr(0, size - 1))) {
        length = size - 1;
        return true;
    }
    if (size == 2) {
        return true;
    }
    if (ByteFromEnd(span, 2) >= 0xE0 && IsValid(span.substr(0, size - 2))) {
        length = size - 2;
        return true;
    }
    if (size == 3) {
        return true;
    }
    if (ByteFromEnd(span, 3) < 0xF0 || !IsValid(span.substr(0, size - 3))) {
        return false;
    }
    length = size - 3;
    return true;
}

bool CopyUtf8Text(std::string& out, const char* buffer, std::uint64_t bufferSize) {
    out.clear();
    if (bufferSize == 0 || buffer[0] == '\0') {
        return true;
    }
    const std::string_view array(buffer, bufferSize);
    const std::size_t terminator = array.find('\0');
    const std::string_view text =
        array.substr(0, terminator == std::string_view::npos ? bufferSize - 1 : terminator);
    std::uint64_t length = 0;
    if (!Utf8FitLength(text, text.size() + 1, length)) {
        return false;
    }
    out.assign(text.substr(0, length));
    return true;
}

void ReplaceInvalidUtf8(std::string& line) {
    auto at = utf8::find_invalid(line.begin(), line.end());
    while (at != line.end()) {
        *at = '_';
        at = utf8::find_invalid(at, line.end());
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
