// LineBlocks, the lines of a file as clean text, a block of the file at a time.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "text/file.h"

namespace vexil {

// Positions are those in the buffer. It begins with a line feed of its own, so that every token in
// it has white space on both sides, and the text follows at Start.
class LineBlocks {
  public:
    enum class Outcome { Lines, EndOfFile, Failure };

    static constexpr std::size_t Start = 1;

    // Reads on until a line ends. What precedes keepFrom is given up, and what follows moves to
    // Start; the new lines come after it. A line that the end of the file cuts off gets its line
    // feed; one that a failure cuts off is lost. Invalid bytes of a line become "_", and control
    // characters that are no white space go.
    //   keepFrom  a position of the text, or its end to keep nothing.
    // Returns Lines when there are new lines. Precondition: the last call returned Lines, if any.
    Outcome Read(File& file, std::size_t keepFrom);

    // Empties the object for another file.
    void Clear() { *this = LineBlocks(); }

    // The text from one position up to another. Valid until the next Read.
    std::string_view Text(std::size_t from, std::size_t to) const {
        return {buffer.get() + from, to - from};
    }

    char At(std::size_t position) const { return buffer[position]; }

    // The end of the text.
    std::size_t End() const { return end; }

    // The positions in the new lines, in ascending order, of every line feed, and of every white
    // space that follows a character in which a keyword may end.
    const std::vector<std::size_t>& Marks() const { return marks; }

  private:
    void GiveUp(std::size_t keepFrom);
    void MakeRoom();
    Outcome ReadLines(File& file, std::size_t& linesEnd);

    std::unique_ptr<char[]> buffer;
    std::size_t capacity = 0;
    std::size_t end = Start;     // of the clean lines
    std::size_t rawEnd = Start;  // of what was read: a line that has not ended yet comes last
    bool isAtEnd = false;        // the end of the file was met; nothing is read after it
    std::vector<std::size_t> marks;
};

}  // namespace vexil
