// Notes, what CM_ and VAL_ statements and appended records say about a message or signal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "text/arena.h"
#include "text/constants.h"
#include "text/line_buffer.h"

namespace vexil {

// A text of a file: of a CM_ statement what is between its quotes, of a VAL_ statement what follows
// the name of the signal. Owners of one id and name share the notes: each has those from its first
// one on, up to the end of the list.
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

// Texts are kept as they came, and joined and parsed when they are fetched. All memory is the
// arena's.
struct Notes {
    Note* comments = nullptr;                 // of CM_ statements, the first one
    Note* statements = nullptr;               // of VAL_ statements, the first one
    const AddedDescription* added = nullptr;  // the newest

    bool HasComment() const noexcept { return comments != nullptr; }

    // Makes text the comment. Precondition: there is none.
    void SetComment(Arena& arena, std::string_view text);

    // Appends the comment to line: the texts one after the other, with a backslash before each
    // double quote. Intentional: only the one character before a quote counts, so a backslash at
    // the end of one text escapes a quote at the start of the next.
    //   enough  stops when line has so many bytes.
    void AppendComment(LineBuffer& line, std::size_t enough = npos) const;

    // Returns the comment. A view into the arena or into scratch.
    //   enough  how many bytes the caller looks at; the rest may be missing.
    std::string_view Comment(LineBuffer& scratch, std::size_t enough) const;
};

}  // namespace vexil
