// StatementFile: opening, closing and writing. statement_scan.cpp finds the statements.
// SPDX-License-Identifier: MIT
#include "text/statement_file.h"

#include "vexil64.h"

namespace vexil {

void StatementFile::Open(const char* path, std::uint32_t pathBufferSize, OpenMode mode) {
    Close();
    const std::string checkedPath = CheckedPath(path, pathBufferSize, parseState);
    if (checkedPath.empty()) {
        return;
    }
    if (!file.Open(checkedPath, mode)) {
        parseState = StateOpenFailed;
    } else {
        parseState = mode == OpenMode::Read ? StateReading : StateWriting;
    }
}

void StatementFile::Close() {
    file.Write(unwritten);
    unwritten.clear();
    file.Close();
    parseState = hasFailed ? StateStreamError : StateClosed;
    hasFailed = false;
    lineNumber = 0;
    statement = {};
    blocks.Clear();
    nextMark = 0;
    keywordPending = false;
    keywordOffset = LineBlocks::Start;
}

void StatementFile::WriteLine(LineBuffer& line) {
    if (parseState == StateWriting && hasFailed) {
        parseState = StateStreamError;
    } else if (parseState == StateWriting) {
        const std::string_view text = line.Append('\n').Text();
        const std::size_t written = file.Write(text);
        if (written < text.size()) {
            hasFailed = true;
            unwritten = text.substr(written);
        }
    }
    line.Clear();
}

}  // namespace vexil
