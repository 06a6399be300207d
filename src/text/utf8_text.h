// UTF-8 text: fitting it into a fixed array, reading it from one, and folding it to ASCII.
// A text is valid when utf8-cpp decodes all its sequences in order.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vexil {

// Computes how many bytes of text fit an array of bufferSize bytes with its NUL, in whole
// characters.
// length: the number of bytes, 0 after false. A text with fewer than bufferSize - 1 bytes is not
// checked and gives bufferSize - 1, more than its size. Returns false when bufferSize is below 2,
// or when the bytes that would fit are not valid, except for a character that was cut off within
// their last three bytes. Intentional: at most three invalid bytes without such a character give
// true and length 0.
bool Utf8FitLength(std::string_view text, std::uint64_t bufferSize, std::uint64_t& length);

// Sets out to the text in a caller's array, as a view into it: up to its first NUL. Without a NUL
// the last byte is dropped, since the last position of an array always counts as the place of the
// NUL. A character that was cut off at the end is dropped.
//   buffer  the array, of bufferSize bytes; not read when bufferSize is 0.
// Returns false and an empty out when the text is not valid UTF-8 for another reason.
bool CopyUtf8Text(std::string_view& out, const char* buffer, std::uint64_t bufferSize);

// Overwrites each byte that does not begin a valid sequence with "_".
void ReplaceInvalidUtf8(std::span<char> text);

// Whether every byte is below 128.
bool IsAscii(std::string_view text);

// Returns text with one "_" in place of every character of more than one byte.
// Precondition: text is valid UTF-8; otherwise utf8-cpp throws. ReplaceInvalidUtf8 and CopyUtf8Text
// ensure this for all text in the library.
std::string FoldToAscii(std::string_view text);

}  // namespace vexil
