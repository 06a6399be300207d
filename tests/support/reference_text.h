// Plain forms of the text functions, for tests that compare the library with them over random text.
// They have a UTF-8 decoder and a keyword table of their own, and use nothing of the library.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vexil::test::reference {

inline constexpr std::uint64_t npos = ~std::uint64_t{0};

struct Keyword {
    std::string text;
    bool needsSemicolon = false;
};

extern const std::array<Keyword, 35> Keywords;

// Number of bytes of the UTF-8 character at position at of text; 0 when none begins there.
std::size_t CharacterLength(const std::string& text, std::size_t at);
bool IsValidUtf8(const std::string& text);

bool Utf8FitLength(const std::string& text, std::uint64_t bufferSize, std::uint64_t& length);
bool CopyUtf8Text(std::string& out, const char* buffer, std::uint64_t bufferSize);
void ReplaceInvalidUtf8(std::string& line);
std::string FoldToAscii(const std::string& text);  // of valid text only

bool ParseUnsignedToken(const std::string& text, std::uint32_t& value, std::uint64_t& end,
                        std::uint64_t from);
std::string Trimmed(const std::string& text);
bool IsValidCIdentifier(const std::string& text);
std::string MakeCIdentifier(const std::string& text);  // of valid text only
bool TryParseU32(const std::string& text, std::uint32_t& value);
bool TryParseI32(const std::string& text, std::int32_t& value);
bool TryParseI64(const std::string& text, std::int64_t& value);

// The text with an underscore for each invalid byte, and without control characters.
std::string CleanLine(std::string line);

}  // namespace vexil::test::reference
