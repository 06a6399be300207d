// Descriptions, the value descriptions of one signal, sorted by value.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "frame/notes.h"
#include "text/constants.h"
#include "text/line_buffer.h"

namespace vexil {

// Made from the notes of a signal at its first fetch and kept for the next ones, since hosts fetch
// the descriptions of a signal one after the other. The texts are views into the notes.
class Descriptions {
  public:
    // Makes this object the descriptions of the notes. It is empty if this throws std::bad_alloc.
    void LookAt(const Notes& notes);

    // Whether this object was made from the notes; descriptions may have been appended since.
    bool IsOf(const Notes& notes) const noexcept {
        return isValid && statements == notes.statements &&
               (owner == &notes || added == notes.added);
    }

    // The number of different values.
    std::size_t Count() const noexcept { return runs.size(); }

    // The value at a position in ascending order.
    std::int32_t ValueAt(std::size_t position) const { return pairs[runs[position]].value; }

    // Returns the text of the value at a position: all texts of the value, in the order of reading
    // and appending, joined by " - ". A view into the notes or into scratch.
    //   enough  the number of bytes that the caller needs; the rest may be missing.
    std::string_view Text(std::size_t position, LineBuffer& scratch, std::size_t enough) const;

    // Removes all descriptions and frees the memory.
    void Clear() noexcept;

  private:
    struct Pair {
        std::int32_t value = 0;
        std::string_view text;
    };

    void AddStatement(std::string_view text);
    void AddAppended(const AddedDescription* newest, std::size_t count);
    void Sort();
    void CountSorted();

    // The position after the last pair of a value.
    std::size_t RunEnd(std::size_t position) const {
        return position + 1 < runs.size() ? runs[position + 1] : pairs.size();
    }

    std::vector<Pair> pairs;        // sorted by value, and within a value by arrival
    std::vector<std::size_t> runs;  // the position of the first pair of each value
    std::size_t sortedCount = 0;    // pairs that are sorted; the others are newer
    bool isValid = false;
    const Note* statements = nullptr;  // members of the notes at the last LookAt
    const AddedDescription* added = nullptr;
    const Notes* owner = nullptr;
};

}  // namespace vexil
