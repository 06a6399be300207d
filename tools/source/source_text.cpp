// Cleans the bytes of a file as the library does, and finds places in it.
// SPDX-License-Identifier: MIT
#include "source/source_text.h"

#include <algorithm>
#include <utility>

#include "source/utf8.h"

namespace vexil::tool {
namespace {

bool IsRemoved(char ch) {
    const auto byte = static_cast<unsigned char>(ch);
    return byte == 0x7F || (byte < 0x20 && (byte < 0x09 || byte > 0x0D));
}

bool IsPlain(char ch) {
    return static_cast<unsigned char>(ch) < 0x80 && !IsRemoved(ch);
}

}  // namespace

SourceText::SourceText(std::string bytes) : content(std::move(bytes)), fileSize(content.size()) {
    if (fileSize != 0 && content.back() != '\n') {
        content += '\n';
    }
    Clean();
    FindLines();
}

void SourceText::Clean() {
    const std::string_view bytes = content;
    std::size_t at = 0;
    std::size_t copied = 0;  // unless the text is clean, the bytes up to here are in "cleaned"
    while (at < bytes.size()) {
        if (IsPlain(bytes[at])) {
            ++at;
            continue;
        }
        const std::size_t length = IsRemoved(bytes[at]) ? 0 : Utf8Length(bytes, at);
        if (length != 0) {
            at += length;
            continue;
        }
        if (isClean) {
            isClean = false;
            cleaned.reserve(bytes.size());
        }
        cleaned += bytes.substr(copied, at - copied);
        if (IsRemoved(bytes[at])) {
            removed.push_back(at);
        } else {
            invalid.push_back(at);
            cleaned += '_';
        }
        copied = ++at;
    }
    if (!isClean) {
        cleaned += bytes.substr(copied);
    }
}

void SourceText::FindLines() {
    lineStarts.push_back(0);
    std::size_t returns = 0;
    const std::string_view bytes = Bytes();
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] == '\n') {
            lineStarts.push_back(at + 1);
        } else if (bytes[at] == '\r' && (at + 1 == bytes.size() || bytes[at + 1] != '\n')) {
            ++returns;
        }
    }
    loneCarriageReturns = returns;
    carriageReturnLines = returns != 0 && lineStarts.size() == 1;
    for (std::size_t at = 0; carriageReturnLines && at < bytes.size(); ++at) {
        if (bytes[at] == '\r') {
            lineStarts.push_back(at + 1);
        }
    }
}

std::size_t SourceText::ByteOffset(std::size_t textOffset) const {
    // Counts the removed bytes before the byte of the text, by a binary search.
    std::size_t low = 0;
    std::size_t high = removed.size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (removed[middle] - middle <= textOffset) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return textOffset + low;
}

Place SourceText::PlaceOf(std::size_t byteOffset) const {
    const auto next = std::upper_bound(lineStarts.begin(), lineStarts.end(), byteOffset);
    return {static_cast<std::uint32_t>(next - lineStarts.begin()),
            static_cast<std::uint32_t>(byteOffset - *(next - 1) + 1)};
}

std::size_t SourceText::ByteOrderMarkSize() const {
    return Text().starts_with("\xEF\xBB\xBF") ? 3 : 0;
}

Utf16 SourceText::LooksLikeUtf16() const {
    if (content.starts_with("\xFF\xFE")) {
        return Utf16::LittleEndian;
    }
    if (content.starts_with("\xFE\xFF")) {
        return Utf16::BigEndian;
    }
    constexpr std::size_t Looked = 64;
    const std::string_view front = Bytes().substr(0, Looked);
    std::size_t nuls[2] = {0, 0};
    for (std::size_t at = 0; at < front.size(); ++at) {
        nuls[at % 2] += front[at] == '\0' ? 1U : 0U;
    }
    const std::size_t most = front.size() / 2;
    if (most < 2 || std::max(nuls[0], nuls[1]) * 10 < most * 9) {
        return Utf16::None;
    }
    if (std::min(nuls[0], nuls[1]) * 10 > most) {
        return Utf16::None;  // NULs at all positions: not a text
    }
    return nuls[1] > nuls[0] ? Utf16::LittleEndian : Utf16::BigEndian;
}

}  // namespace vexil::tool
