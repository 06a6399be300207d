// StatementFile, which reads and writes all DBC text. Reading divides a file into statements: the
// text from one keyword up to the next, whatever lines, quotes and semicolons are between them.
// Writing appends whole lines.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/file.h"
#include "text/line_blocks.h"
#include "text/line_buffer.h"

namespace vexil {

class StatementFile {
  public:
    // Opens the file at path. The outcome is parseState: StateReading or StateWriting, or the code
    // of the failure.
    //   path            the caller's buffer, UTF-8; null counts as empty.
    //   pathBufferSize  its size in bytes, with the NUL.
    void Open(const char* path, std::uint32_t pathBufferSize, OpenMode mode);

    // Closes the file and empties the object. parseState becomes StateClosed, or StateStreamError
    // when a read or write has failed. The rest of a failed write is written again. Close errors
    // are not reported.
    void Close();

    // Finds the next statement. Returns false when none is left. The last statement of a file is
    // returned with parseState already at StateEndOfFile.
    bool NextStatement();

    // Writes line and a line feed in one system call, and clears line. Only clears it unless
    // parseState is StateWriting. If an earlier write failed, sets parseState to StateStreamError
    // and writes nothing: a failure is reported at the next line.
    void WriteLine(LineBuffer& line);

    std::uint32_t parseState = 2;      // a State constant of the public header
    std::uint32_t lineNumber = 0;      // lines read so far
    std::string_view statement;        // the statement found last; valid until the next call
    std::size_t statementKeyword = 0;  // row of the keyword that it begins with

  private:
    // Continues with the next line. Returns false and sets parseState at the end of the file or
    // after a failure.
    bool BeginLine();

    // Searches for a keyword that ends at the mark. Returns its row, or KeywordCount.
    // offset: the position of its first character.
    std::size_t KeywordBefore(std::size_t mark, std::size_t& offset) const;

    // Whether the next mark ends its line.
    bool IsAtLineEnd() const { return blocks.At(blocks.Marks()[nextMark]) == '\n'; }

    void SkipToLineEnd() {
        while (!IsAtLineEnd()) {
            ++nextMark;
        }
    }

    // Finds the first line with a keyword, and drops the text before the keyword.
    bool FindFirstKeyword();

    File file;
    bool hasFailed = false;       // whether a read or write of file has failed
    std::string unwritten;        // the part of a line that a failed write left
    LineBlocks blocks;            // the lines in memory
    std::size_t nextMark = 0;     // the position in the marks of blocks where the search continues
    bool keywordPending = false;  // the keyword of the next statement is known
    std::size_t keywordOffset = 0;  // the position in blocks of the keyword of the statement
    std::size_t keywordRow = 0;     // its row in the keyword table
};

}  // namespace vexil
