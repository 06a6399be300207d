// UTF-8 text: what fits a fixed array, what a fixed array holds, and the way down to ASCII.
// A text is valid when utf8-cpp decodes every sequence of it in turn.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vexil {

// Says how many bytes of text fit an array of bufferSize bytes with its terminator, without cutting
// a character.
// length: the number of bytes; it may exceed the text, since a text with room to spare is not
// looked at and gives bufferSize - 1. 0 after false. Returns false when bufferSize is below 2, or
// when the bytes that would fit are not valid and that is not a matter of a character cut off in
// their last three bytes. Intentional: of at most three bytes, invalid ones give true and length 0.
bool Utf8FitLength(std::string_view text, std::uint64_t bufferSize, std::uint64_t& length);

// Sets out to the text in a caller's array, as a view into it: up to its first NUL, or all but the
// last byte when there is none, since the last position of an array always counts as the place of
// the terminator. A character cut off at the end is dropped.
//   buffer  the array, of bufferSize bytes; not looked at when bufferSize is 0.
// Returns false with out empty when the text is not valid UTF-8 in any other way.
bool CopyUtf8Text(std::string_view& out, const char* buffer, std::uint64_t bufferSize);

// Overwrites each byte that does not begin a valid sequence with "_".
void ReplaceInvalidUtf8(std::span<char> text);

// Whether every byte is below 128.
bool IsAscii(std::string_view text);

// Returns text with one "_" in place of every character of more than one byte.
// Precondition: text is valid UTF-8; otherwise an exception of utf8-cpp leaves the function. All
// text has passed ReplaceInvalidUtf8 or CopyUtf8Text before it gets here.
std::string FoldToAscii(std::string_view text);

}  // namespace vexil
