// StatementFile: opening, closing, lines in and out. The cut into statements is in
// statement_scan.cpp.
// SPDX-License-Identifier: MIT
#include "text/statement_file.h"

#include <string>

#include "text/char_class.h"
#include "text/utf8_text.h"
#include "vexil64.h"

namespace vexil {
namespace {

constexpr std::size_t BufferReserve = 4096;  // ordinary statements assemble without reallocation

constexpr bool IsRemoved(char ch) {
    return IsControl(ch) & !IsSpace(ch);
}

// Whether the line is ASCII without control characters but white space, as most lines are. Without
// a branch in the loop, so that the compiler makes it wide.
bool IsPlain(std::string_view text) {
    unsigned char found = 0;
    for (const char ch : text) {
        found |= static_cast<unsigned char>((static_cast<unsigned char>(ch) & 0x80) |
                                            static_cast<unsigned char>(IsRemoved(ch)));
    }
    return found == 0;
}

}  // namespace

void StatementFile::Open(const char* path, std::uint32_t pathBufferSize, OpenMode mode) {
    Close();
    const std::string checkedPath = CheckedPath(path, pathBufferSize, parseState);
    if (checkedPath.empty()) {
        return;
    }
    OpenStream(stream, checkedPath, mode);
    if (!stream.is_open()) {
        parseState = StateOpenFailed;
    } else if (mode == OpenMode::Read) {
        parseState = StateReading;
        // Exhausted memory travels on; a stream left to itself makes a failed line of it.
        stream.exceptions(std::ios_base::badbit);
        buffer.reserve(BufferReserve);
    } else {
        parseState = StateWriting;
    }
}

void StatementFile::Close() {
    stream.exceptions(std::ios_base::goodbit);
    if (stream.is_open()) {
        stream.close();
    }
    if (stream.bad()) {
        parseState = StateStreamError;
    } else {
        parseState = StateClosed;
        stream.clear();
    }
    lineNumber = 0;
    statement = {};
    // What else there is, the first statement of the next file sets.
    keywordPending = false;
}

bool StatementFile::ReadLine() {
    try {
        std::getline(stream, line);
    } catch (const std::ios_base::failure&) {
        // A failure of the file, which the state of the stream tells, too.
    }
    if (stream.fail()) {
        parseState = stream.eof() ? StateEndOfFile : StateStreamError;
        return false;
    }
    ++lineNumber;
    if (!IsPlain(line)) {
        ReplaceInvalidUtf8(line);
        std::erase_if(line, IsRemoved);
    }
    buffer += line;
    buffer += '\n';
    return true;
}

void StatementFile::WriteLine(std::string_view text) {
    if (parseState != StateWriting) {
        return;
    }
    if (stream.fail()) {
        parseState = StateStreamError;
        return;
    }
    // As "stream << text << std::endl" does, without its checks before each of the three steps.
    std::filebuf& file = *stream.rdbuf();
    const auto size = static_cast<std::streamsize>(text.size());
    if (file.sputn(text.data(), size) != size ||
        file.sputc('\n') == std::filebuf::traits_type::eof() || file.pubsync() == -1) {
        stream.setstate(std::ios_base::badbit);
    }
}

}  // namespace vexil
