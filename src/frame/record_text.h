// Copying text between the model and the arrays of records.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "frame/notes.h"
#include "text/utf8_text.h"

namespace vexil {

// Copies text into the array with a NUL. A text that does not fit is cut at the end of a character.
// Returns false and stores an empty text when Utf8FitLength refuses the text.
template <std::size_t Size>
bool CopyTextOut(std::string_view text, char (&array)[Size]) {
    std::uint64_t length = 0;
    const bool fits = Utf8FitLength(text, Size, length);
    const std::size_t count = std::min<std::size_t>(length, text.size());
    std::copy_n(text.begin(), count, array);
    array[count] = '\0';
    return fits;
}

// Sets text to the content of the array, as a view into it. Returns false and an empty text when it
// is refused, see CopyUtf8Text.
template <std::size_t Size>
bool CopyTextIn(std::string_view& text, const char (&array)[Size]) {
    return CopyUtf8Text(text, array, Size);
}

// Copies the comment of the notes into the array, in the manner of CopyTextOut.
template <std::size_t Size>
bool CopyCommentOut(const Notes& notes, char (&array)[Size]) {
    LineBuffer scratch;
    return CopyTextOut(notes.Comment(scratch, Size), array);
}

}  // namespace vexil
