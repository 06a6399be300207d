// Text from the model to the fixed array of a record.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "frame/notes.h"
#include "text/utf8_text.h"

namespace vexil {

// Copies text into the array and terminates it; a text that does not fit is cut at a character.
// False with an empty array when Utf8FitLength refuses the text.
template <std::size_t Size>
bool CopyTextOut(std::string_view text, char (&array)[Size]) {
    std::uint64_t length = 0;
    const bool fits = Utf8FitLength(text, Size, length);
    const std::size_t count = std::min<std::size_t>(length, text.size());
    std::copy_n(text.begin(), count, array);
    array[count] = '\0';
    return fits;
}

// Sets text to what the array holds, as a view into it. False with an empty text when that is not
// valid UTF-8.
template <std::size_t Size>
bool CopyTextIn(std::string_view& text, const char (&array)[Size]) {
    return CopyUtf8Text(text, array, Size);
}

// Copies the comment of the notes into the array, as CopyTextOut does.
template <std::size_t Size>
bool CopyCommentOut(const Notes& notes, char (&array)[Size]) {
    LineBuffer scratch;
    return CopyTextOut(notes.Comment(scratch, Size), array);
}

}  // namespace vexil
