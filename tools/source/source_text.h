// The bytes of a DBC file, and the text that the library makes of them: an underscore for each byte
// that is not valid UTF-8, and no control characters except white space.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexil::tool {

// A place in a file as an editor shows it, both counted from 1. The column counts bytes.
struct Place {
    std::uint32_t line = 0;
    std::uint32_t column = 0;

    bool operator==(const Place&) const = default;
};

enum class Utf16 { None, LittleEndian, BigEndian };

// Views into Bytes() and Text() are valid as long as the object, so it can be neither copied nor
// moved.
class SourceText {
  public:
    explicit SourceText(std::string bytes);
    SourceText(const SourceText&) = delete;
    SourceText& operator=(const SourceText&) = delete;
    ~SourceText() = default;

    std::string_view Bytes() const { return std::string_view(content).substr(0, fileSize); }

    // The text that the library reads. Its last line always has a line end. Offsets of statements
    // refer to this text.
    std::string_view Text() const { return isClean ? std::string_view(content) : cleaned; }

    // Returns the offset in the file of a byte of the text.
    std::size_t ByteOffset(std::size_t textOffset) const;

    // Returns the line and column of a byte of the file.
    Place PlaceOf(std::size_t byteOffset) const;

    // The bytes that are not valid UTF-8, and the control characters that the library removes, both
    // as offsets into the file in ascending order.
    const std::vector<std::size_t>& InvalidBytes() const { return invalid; }
    const std::vector<std::size_t>& RemovedBytes() const { return removed; }

    // 3 if the text begins with the byte order mark of UTF-8, else 0.
    std::size_t ByteOrderMarkSize() const;

    // Whether the file seems to be UTF-16: it has a byte order mark, or a NUL in every other byte.
    Utf16 LooksLikeUtf16() const;

    // Whether lines end with a carriage return alone, because the file has no line feed.
    bool LinesEndWithCarriageReturn() const { return carriageReturnLines; }
    std::size_t LoneCarriageReturns() const { return loneCarriageReturns; }

  private:
    void Clean();
    void FindLines();

    std::string content;   // the bytes of the file; a missing line feed at the end is added
    std::size_t fileSize;  // without the added line feed
    std::string cleaned;
    bool isClean = true;
    bool carriageReturnLines = false;
    std::size_t loneCarriageReturns = 0;
    std::vector<std::size_t> invalid;
    std::vector<std::size_t> removed;
    std::vector<std::size_t> lineStarts;
};

}  // namespace vexil::tool
