// StatementFile, through which all DBC text enters and leaves the library. Reading cuts a file into
// statements: the text from one keyword up to the next, whatever lines, quotes and semicolons stand
// between them. Writing puts out whole lines.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

#include "text/constants.h"
#include "text/open_stream.h"

namespace vexil {

class StatementFile {
  public:
    // Opens the file at path. The outcome is parseState: StateReading or StateWriting, or the code
    // of the failure.
    //   path            the caller's buffer, UTF-8; null counts as empty.
    //   pathBufferSize  its size in bytes, counting the NUL.
    void Open(const char* path, std::uint32_t pathBufferSize, OpenMode mode);

    // Closes the file and empties the object. parseState becomes StateClosed, or StateStreamError
    // when the stream is bad; a close that fails without making it bad does not count.
    void Close();

    // Assembles the next statement. Implemented in statement_scan.cpp.
    // Returns false when none is left. The last statement of a file is handed out with parseState
    // already at StateEndOfFile.
    bool NextStatement();

    // Writes text and a line end and flushes. Does nothing unless parseState is StateWriting; on a
    // stream that has failed before, sets parseState to StateStreamError. So a failure of this very
    // write shows at the next call.
    void WriteLine(std::string_view text);

    std::uint32_t parseState = 2;      // a State constant of the public header
    std::uint32_t lineNumber = 0;      // lines read so far
    std::string_view statement;        // the statement last assembled; valid until the next call
    std::size_t statementKeyword = 0;  // row of the keyword that it begins with

  private:
    // Appends the next line to buffer, with invalid bytes turned into "_", control characters that
    // are no white space taken out and one line feed at its end. On failure sets parseState to
    // StateEndOfFile or StateStreamError and returns false.
    bool ReadLine();

    // Looks for the first keyword of buffer at or behind from.
    // index, offset, end: its row in the keyword table, its position and the position behind it;
    // all are left alone when there is none.
    bool FindKeyword(Position from, std::size_t& index, Position& offset, Position& end) const;

    // Finds the first line with a keyword and throws those in front of it away.
    bool FindFirstKeyword();

    // The buffer from the current keyword up to end.
    std::string_view StatementUpTo(Position end) const;

    // Gives that out.
    void TakeStatement(Position end);

    std::fstream stream;
    std::string line;                  // scratch of ReadLine
    std::string buffer;                // lines read and not yet given out
    bool keywordPending = false;       // the keyword of the next statement is known
    Position keywordOffset = 0;        // position in buffer of the keyword of the current statement
    std::size_t keywordIndex = 0;      // its row in the keyword table
    Position nextKeywordOffset = 0;    // position in buffer of the keyword that ends the statement
    std::size_t nextKeywordIndex = 0;  // its row
    Position scanPosition = 0;         // where the search for the next keyword starts
};

}  // namespace vexil
