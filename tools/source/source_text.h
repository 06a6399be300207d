// The bytes of a DBC file, and the text that the library makes of them: one underscore for each
// byte that is not valid UTF-8, no control characters but white space.
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

// Views into Bytes() and Text() last as long as the object, which therefore stays where it is.
class SourceText {
  public:
    explicit SourceText(std::string bytes);
    SourceText(const SourceText&) = delete;
    SourceText& operator=(const SourceText&) = delete;
    ~SourceText() = default;

    std::string_view Bytes() const { return std::string_view(content).substr(0, fileSize); }

    // The text as the library sees it: its last line ends, too. All offsets of statements count in
    // it.
    std::string_view Text() const { return isClean ? std::string_view(content) : cleaned; }

    // Where the byte of the file is that became this byte of the text.
    std::size_t ByteOffset(std::size_t textOffset) const;

    // The place of a byte of the file.
    Place PlaceOf(std::size_t byteOffset) const;

    // The bytes that are not valid UTF-8, and the control characters that the library removes, both
    // as offsets into the file in ascending order.
    const std::vector<std::size_t>& InvalidBytes() const { return invalid; }
    const std::vector<std::size_t>& RemovedBytes() const { return removed; }

    // 3 if the text begins with the byte order mark of UTF-8, else 0.
    std::size_t ByteOrderMarkSize() const;

    // Whether the file looks like UTF-16: by its byte order mark, or by a NUL in every other byte.
    Utf16 LooksLikeUtf16() const;

    // A carriage return without a line feed after it ends a line when the file has no line feed.
    bool LinesEndWithCarriageReturn() const { return carriageReturnLines; }
    std::size_t LoneCarriageReturns() const { return loneCarriageReturns; }

  private:
    void Clean();
    void FindLines();

    std::string content;   // with a line feed at the end, which the file may not have
    std::size_t fileSize;  // of the file
    std::string cleaned;
    bool isClean = true;
    bool carriageReturnLines = false;
    std::size_t loneCarriageReturns = 0;
    std::vector<std::size_t> invalid;
    std::vector<std::size_t> removed;
    std::vector<std::size_t> lineStarts;
};

}  // namespace vexil::tool
