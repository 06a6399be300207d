// Cuts a text line by line, like the library.
// SPDX-License-Identifier: MIT
#include "source/library_cut.h"

namespace vexil::tool {
namespace {

struct FoundKeyword {
    const KeywordRow* row = nullptr;
    std::size_t begin = 0;
    std::size_t end = 0;
};

// The buffered lines are whole[bufferBegin, bufferEnd).
class Cutter {
  public:
    explicit Cutter(std::string_view text) : whole(text) {}

    std::vector<LibraryStatement> Run() {
        std::vector<LibraryStatement> statements;
        while (FindStart()) {
            statements.push_back(TakeStatement());
        }
        return statements;
    }

  private:
    bool ReadLine() {
        if (bufferEnd >= whole.size()) {
            atEnd = true;
            return false;
        }
        const std::size_t lineFeed = whole.find('\n', bufferEnd);
        bufferEnd = lineFeed == std::string_view::npos ? whole.size() : lineFeed + 1;
        ++lineCount;
        return true;
    }

    // Returns the first keyword from a position on that is a word of its own.
    FoundKeyword Find(std::size_t from) const {
        std::size_t at = from;
        while (at < bufferEnd) {
            while (at < bufferEnd && IsSpace(whole[at])) {
                ++at;
            }
            const std::size_t begin = at;
            while (at < bufferEnd && !IsSpace(whole[at])) {
                ++at;
            }
            if (const KeywordRow* row = FindKeyword(whole.substr(begin, at - begin))) {
                return {row, begin, at};
            }
        }
        return {};
    }

    // Finds the keyword of the next statement. Lines without a keyword are dropped.
    bool FindStart() {
        if (atEnd) {
            return false;
        }
        while (nextKeyword.row == nullptr) {
            bufferBegin = bufferEnd;
            if (!ReadLine()) {
                return false;
            }
            nextKeyword = Find(bufferBegin);
        }
        return true;
    }

    bool EndsWithSemicolon(std::size_t at) const {
        while (at > bufferBegin && IsSpace(whole[at - 1])) {
            --at;
        }
        return at > bufferBegin && whole[at - 1] == ';';
    }

    LibraryStatement TakeStatement() {
        bufferBegin = nextKeyword.begin;
        const KeywordRow& row = *nextKeyword.row;
        std::size_t scan = nextKeyword.end;
        unsigned needed = 1;
        unsigned found = 0;
        for (;;) {
            const FoundKeyword keyword = Find(scan);
            if (keyword.row != nullptr) {
                nextKeyword = keyword;
                ++found;
                const bool isText =
                    row.libraryNeedsSemicolon && found == 1 && !EndsWithSemicolon(keyword.begin);
                needed = isText ? 2 : needed;
                if (found >= needed) {
                    return {bufferBegin, keyword.begin, lineCount - 1, row.keyword, false};
                }
            }
            scan = bufferEnd;
            const bool isFull = bufferEnd - bufferBegin + (EndsOpen() ? 1 : 0) > LongestStatement;
            if (atEnd || isFull || !ReadLine()) {
                const bool overflowed = isFull && !atEnd;
                nextKeyword = {};
                return {bufferBegin, bufferEnd, lineCount - 1, row.keyword, overflowed};
            }
        }
    }

    // Whether the last line lacks its line feed, which the library adds.
    bool EndsOpen() const {
        return bufferEnd == whole.size() && bufferEnd != 0 && whole[bufferEnd - 1] != '\n';
    }

    std::string_view whole;
    std::size_t bufferBegin = 0;
    std::size_t bufferEnd = 0;
    std::uint32_t lineCount = 0;
    bool atEnd = false;
    FoundKeyword nextKeyword;
};

}  // namespace

std::vector<LibraryStatement> CutLikeLibrary(std::string_view text) {
    return Cutter(text).Run();
}

}  // namespace vexil::tool
