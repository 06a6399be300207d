// Notes, the comments and value descriptions of a message or signal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/arena.h"
#include "text/constants.h"
#include "text/line_buffer.h"

namespace vexil {

// A text of a file: the text between the quotes of a CM_ statement, or the text after the signal
// name of a VAL_ statement. Owners of one id and name share a list of notes: each has the notes
// from its first one to the end of the list.
struct Note {
    std::string_view text;
    Note* next = nullptr;
};

// A value description that a host appended. It belongs to one signal.
struct AddedDescription {
    std::int32_t value = 0;
    std::string_view text;
    const AddedDescription* earlier = nullptr;
};

// Texts are stored as in the file. A fetch joins and parses them. All memory belongs to the arena.
struct Notes {
    Note* comments = nullptr;                 // the first of the CM_ statements
    Note* statements = nullptr;               // the first of the VAL_ statements
    const AddedDescription* added = nullptr;  // the newest

    bool HasComment() const noexcept { return comments != nullptr; }

    // Sets the comment to text. Precondition: there is none.
    void SetComment(Arena& arena, std::string_view text);

    // Appends the comment to line: the texts in order, with a backslash before each
    // double quote. Intentional: only the one character before a quote counts, so a backslash at
    // the end of one text escapes a quote at the start of the next.
    //   enough  the number of bytes in line at which to stop.
    void AppendComment(LineBuffer& line, std::size_t enough = npos) const;

    // Returns the comment. A view into the arena or into scratch.
    //   enough  the number of bytes that the caller needs; the rest may be missing.
    std::string_view Comment(LineBuffer& scratch, std::size_t enough) const;
};

}  // namespace vexil
