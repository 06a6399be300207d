// Describes the first invalid byte of a statement and their number.
// SPDX-License-Identifier: MIT
#include "account/bytes.h"

#include "format/format.h"

namespace vexil::tool {
namespace {

// Returns whether a byte is probably a character of Windows-1252: the bytes beside it are ASCII.
// Several such bytes in a row are more likely another encoding.
bool LooksLikeWindows1252(const std::string_view bytes, std::size_t at) {
    const auto isAscii = [bytes](std::size_t place) {
        return place >= bytes.size() || static_cast<unsigned char>(bytes[place]) < 0x80;
    };
    return static_cast<unsigned char>(bytes[at]) >= 0xA0 && (at == 0 || isAscii(at - 1)) &&
           isAscii(at + 1);
}

// Converts a byte from 0xA0 on to UTF-8. In Windows-1252 it is the character with the same number.
std::string CharacterOf(unsigned char byte) {
    return {static_cast<char>(0xC0U | (byte >> 6U)), static_cast<char>(0x80U | (byte & 0x3FU))};
}

}  // namespace

std::string DescribeInvalidBytes(const SourceText& source, std::size_t first, std::size_t count) {
    const std::size_t at = source.InvalidBytes()[first];
    const Place place = source.PlaceOf(at);
    const auto byte = static_cast<unsigned char>(source.Bytes()[at]);
    std::string detail = Format("line {}, column {}: byte {:02X}", place.line, place.column, byte);
    if (source.LooksLikeUtf16() == Utf16::None && LooksLikeWindows1252(source.Bytes(), at)) {
        detail += Format(" looks like \"{}\" of Windows-1252", CharacterOf(byte));
    }
    if (count > 1) {
        detail += Format("; {} such bytes in the statement", count);
    }
    return detail;
}

}  // namespace vexil::tool
