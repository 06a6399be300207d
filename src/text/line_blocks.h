// LineBlocks, the lines of a file as clean text, one block of the file at a time.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "text/file.h"

namespace vexil {

// Positions refer to the buffer. It begins with an extra line feed, so that every token has white
// space on both sides; the text follows at Start.
class LineBlocks {
  public:
    enum class Outcome { Lines, EndOfFile, Failure };

    static constexpr std::size_t Start = 1;

    // Reads until a line is complete. Drops the text before keepFrom, moves the rest to Start and
    // appends the new lines. A last line without a line feed gets one; an incomplete line is lost
    // if reading fails. Invalid bytes of a line become "_", and control characters other than white
    // space are removed.
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

    // The position after the text.
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
    std::size_t rawEnd = Start;  // of the bytes read, with an incomplete line at their end
    bool isAtEnd = false;        // the end of the file was reached; no more is read
    std::vector<std::size_t> marks;
};

}  // namespace vexil
