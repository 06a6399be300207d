// StatementFile: the cut of a file into statements.
//
// A statement starts at a keyword and ends in front of the next one, which may stand inside quotes:
// quotes are not tracked. Only the keywords of free text (CM_, BA_, BA_DEF_) want a ";" in front of
// the keyword that ends them. Where it is missing, that keyword counts as text, the rest of the
// lines read so far is not searched, and the next keyword of a later line ends the statement
// whatever stands in front of it. SPDX-License-Identifier: MIT
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"
#include "text/statement_file.h"
#include "vexil64.h"

namespace vexil {
namespace {

constexpr Position StatementLimit = 4096;  // a longer statement is given out without its end

bool EndsInSemicolon(std::string_view text) {
    return Trimmed(text).ends_with(';');
}

}  // namespace

bool StatementFile::FindKeyword(Position from, std::size_t& index, Position& offset,
                                Position& end) const {
    const std::string_view text = buffer;
    Position start = FindNonSpace(text, from);
    while (start != npos) {
        // Every line of the buffer ends in a line feed, so every token in white space.
        const Position stop = FindSpace(text, start);
        const std::size_t row = BeginsKeyword(text[start])
                                    ? KeywordRowOf(text.substr(start, stop - start))
                                    : KeywordCount;
        if (row != KeywordCount) {
            index = row;
            offset = start;
            end = stop;
            return true;
        }
        start = FindNonSpace(text, stop);
    }
    return false;
}

bool StatementFile::FindFirstKeyword() {
    while (parseState == StateReading) {
        buffer.clear();
        if (ReadLine()) {
            keywordPending = FindKeyword(0, keywordIndex, keywordOffset, scanPosition);
            if (keywordPending) {
                return true;
            }
        }
    }
    return false;
}

std::string_view StatementFile::StatementUpTo(Position end) const {
    return std::string_view(buffer).substr(keywordOffset, end - keywordOffset);
}

void StatementFile::TakeStatement(Position end) {
    statement = StatementUpTo(end);
    statementKeyword = keywordIndex;
}

bool StatementFile::NextStatement() {
    if (parseState != StateReading) {
        return false;
    }
    if (keywordPending) {
        keywordOffset = nextKeywordOffset;
        keywordIndex = nextKeywordIndex;
    } else if (!FindFirstKeyword()) {
        return false;
    }

    bool wantsSemicolon = keywordTable[keywordIndex].needsSemicolon;
    for (;;) {
        if (FindKeyword(scanPosition, nextKeywordIndex, nextKeywordOffset, scanPosition)) {
            if (!wantsSemicolon || EndsInSemicolon(StatementUpTo(nextKeywordOffset))) {
                TakeStatement(nextKeywordOffset);
                return true;
            }
            wantsSemicolon = false;
        }
        scanPosition = buffer.size();
        if (parseState != StateReading || buffer.size() - keywordOffset > StatementLimit) {
            break;
        }
        // What stands in front of the statement has been given out: room for the next line.
        buffer.erase(0, keywordOffset);
        scanPosition -= keywordOffset;
        keywordOffset = 0;
        ReadLine();
    }
    TakeStatement(buffer.size());
    keywordPending = false;
    return true;
}

}  // namespace vexil
