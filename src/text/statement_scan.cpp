// StatementFile: dividing a file into statements.
//
// A statement starts at a keyword and ends before the next one, which may be inside quotes: quotes
// are not tracked. Only CM_, BA_ and BA_DEF_, which contain free text, require a ";" before the
// keyword that ends them. If it is missing, that keyword counts as text, the rest of its line is
// not searched, and the next keyword of a later line ends the statement, with or without a ";".
// SPDX-License-Identifier: MIT
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/statement_file.h"
#include "vexil64.h"

namespace vexil {
namespace {

constexpr std::size_t StatementLimit = 4096;  // a longer statement ends at the end of its line

// Whether the last character other than white space is ";". Precondition: there is such a one.
bool EndsInSemicolon(std::string_view text) {
    while (IsSpace(text.back())) {
        text.remove_suffix(1);
    }
    return text.back() == ';';
}

}  // namespace

bool StatementFile::BeginLine() {
    if (nextMark == blocks.Marks().size()) {
        const LineBlocks::Outcome outcome = blocks.Read(file, keywordOffset);
        keywordOffset = LineBlocks::Start;
        nextMark = 0;
        if (outcome != LineBlocks::Outcome::Lines) {
            hasFailed = outcome == LineBlocks::Outcome::Failure;
            parseState = hasFailed ? StateStreamError : StateEndOfFile;
            return false;
        }
    }
    ++lineNumber;
    return true;
}

std::size_t StatementFile::KeywordBefore(std::size_t mark, std::size_t& offset) const {
    offset = mark;
    if (!MayEndKeyword(blocks.At(mark - 1))) {
        return KeywordCount;
    }
    while (!IsSpace(blocks.At(offset - 1)) && mark - offset <= LongestKeyword) {
        --offset;
    }
    return KeywordRowOf(blocks.Text(offset, mark));
}

bool StatementFile::FindFirstKeyword() {
    for (;;) {
        keywordOffset = blocks.End();  // keeps no earlier line
        if (!BeginLine()) {
            return false;
        }
        for (bool isLineEnd = false; !isLineEnd; ++nextMark) {
            std::size_t offset = 0;
            keywordRow = KeywordBefore(blocks.Marks()[nextMark], offset);
            if (keywordRow != KeywordCount) {
                keywordOffset = offset;
                return true;
            }
            isLineEnd = IsAtLineEnd();
        }
    }
}

bool StatementFile::NextStatement() {
    if (parseState != StateReading || (!keywordPending && !FindFirstKeyword())) {
        return false;
    }
    statementKeyword = keywordRow;
    bool wantsSemicolon = keywordTable[keywordRow].needsSemicolon;
    for (;;) {
        std::size_t offset = 0;
        const std::size_t row = KeywordBefore(blocks.Marks()[nextMark], offset);
        if (row != KeywordCount && offset != keywordOffset) {
            if (!wantsSemicolon || EndsInSemicolon(blocks.Text(keywordOffset, offset))) {
                statement = blocks.Text(keywordOffset, offset);
                keywordOffset = offset;
                keywordRow = row;
                keywordPending = true;
                // If the mark also ends the line, it is needed again.
                nextMark += IsAtLineEnd() ? 0 : 1;
                return true;
            }
            wantsSemicolon = false;
            SkipToLineEnd();
        }
        const std::size_t mark = blocks.Marks()[nextMark++];
        if (blocks.At(mark) == '\n') {
            std::size_t end = mark + 1;
            if (end - keywordOffset <= StatementLimit) {
                if (BeginLine()) {
                    continue;
                }
                end = blocks.End();
            }
            statement = blocks.Text(keywordOffset, end);
            keywordPending = false;
            return true;
        }
    }
}

}  // namespace vexil
