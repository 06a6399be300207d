// The cut, line by line as the library takes them in.
// SPDX-License-Identifier: MIT
#include "source/library_cut.h"

namespace vexil::tool {
namespace {

struct FoundKeyword {
    const KeywordRow* row = nullptr;
    std::size_t begin = 0;
    std::size_t end = 0;
};

// The lines that were taken in and not yet given out are text_[begin_, end_).
class Cutter {
  public:
    explicit Cutter(std::string_view text) : text_(text) {}

    std::vector<LibraryStatement> Run() {
        std::vector<LibraryStatement> statements;
        while (FindStart()) {
            statements.push_back(TakeStatement());
        }
        return statements;
    }

  private:
    bool ReadLine() {
        if (end_ >= text_.size()) {
            atEnd_ = true;
            return false;
        }
        const std::size_t lineFeed = text_.find('\n', end_);
        end_ = lineFeed == std::string_view::npos ? text_.size() : lineFeed + 1;
        ++lines_;
        return true;
    }

    // The first keyword from a position on that is a word of its own.
    FoundKeyword Find(std::size_t from) const {
        std::size_t at = from;
        while (at < end_) {
            while (at < end_ && IsSpace(text_[at])) {
                ++at;
            }
            const std::size_t begin = at;
            while (at < end_ && !IsSpace(text_[at])) {
                ++at;
            }
            if (const KeywordRow* row = FindKeyword(text_.substr(begin, at - begin))) {
                return {row, begin, at};
            }
        }
        return {};
    }

    // Finds the keyword of the next statement; a line without any is thrown away.
    bool FindStart() {
        if (atEnd_) {
            return false;
        }
        while (next_.row == nullptr) {
            begin_ = end_;
            if (!ReadLine()) {
                return false;
            }
            next_ = Find(begin_);
        }
        return true;
    }

    bool EndsWithSemicolon(std::size_t at) const {
        while (at > begin_ && IsSpace(text_[at - 1])) {
            --at;
        }
        return at > begin_ && text_[at - 1] == ';';
    }

    LibraryStatement TakeStatement() {
        begin_ = next_.begin;
        const KeywordRow& row = *next_.row;
        std::size_t scan = next_.end;
        unsigned needed = 1;
        unsigned found = 0;
        for (;;) {
            const FoundKeyword keyword = Find(scan);
            if (keyword.row != nullptr) {
                next_ = keyword;
                ++found;
                const bool isText =
                    row.libraryNeedsSemicolon && found == 1 && !EndsWithSemicolon(keyword.begin);
                needed = isText ? 2 : needed;
                if (found >= needed) {
                    return {begin_, keyword.begin, lines_ - 1, row.keyword, false};
                }
            }
            scan = end_;
            const bool isFull = end_ - begin_ + (EndsOpen() ? 1 : 0) > LongestStatement;
            if (atEnd_ || isFull || !ReadLine()) {
                const bool overflowed = isFull && !atEnd_;
                next_ = {};
                return {begin_, end_, lines_ - 1, row.keyword, overflowed};
            }
        }
    }

    // Whether the last line lacks its line feed, which the library adds.
    bool EndsOpen() const { return end_ == text_.size() && end_ != 0 && text_[end_ - 1] != '\n'; }

    std::string_view text_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::uint32_t lines_ = 0;
    bool atEnd_ = false;
    FoundKeyword next_;
};

}  // namespace

std::vector<LibraryStatement> CutLikeLibrary(std::string_view text) {
    return Cutter(text).Run();
}

}  // namespace vexil::tool
