// Descriptions, the value descriptions of one signal in their order.
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

// Made from the notes of a signal on the first fetch, and kept for the next one: hosts fetch the
// descriptions of a signal one after the other. The texts are views into the notes.
class Descriptions {
  public:
    // Makes these the descriptions of the notes. Throws std::bad_alloc with none left.
    void LookAt(const Notes& notes);

    // Whether they are those of the notes already, but for what was appended since.
    bool IsOf(const Notes& notes) const noexcept {
        return isValid && statements == notes.statements &&
               (owner == &notes || added == notes.added);
    }

    // How many different values there are.
    std::size_t Count() const noexcept { return runs.size(); }

    // The value at a position in ascending order.
    std::int32_t ValueAt(std::size_t position) const { return pairs[runs[position]].value; }

    // Returns the text of the value at a position: all texts that describe the value, in the order
    // in which they came, with " - " between them. A view into the notes or into scratch.
    //   enough  how many bytes the caller looks at; the rest may be missing.
    std::string_view Text(std::size_t position, LineBuffer& scratch, std::size_t enough) const;

    // Forgets everything and gives the memory back.
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

    std::vector<Pair> pairs;        // by value, those of one value in the order in which they came
    std::vector<std::size_t> runs;  // positions of the first pairs of the values
    std::size_t sortedCount = 0;    // pairs that are in order; the others were added since
    bool isValid = false;
    const Note* statements = nullptr;  // of the notes that were looked at
    const AddedDescription* added = nullptr;
    const Notes* owner = nullptr;
};

}  // namespace vexil
