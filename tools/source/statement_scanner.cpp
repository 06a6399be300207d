// The scan: one pass over the text, with a look ahead to the next quote where one was not closed.
// SPDX-License-Identifier: MIT
#include "source/statement_scanner.h"

#include <utility>

namespace vexil::tool {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsWordCharacter(char ch) {
    return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') ||
           ch == '_';
}

// Whether the character means nothing to the scan.
bool IsPlain(char ch) {
    return static_cast<unsigned char>(ch) > ' ' && ch != '"' && ch != ';' && ch != '\\';
}

bool EndsLine(char ch) {
    return ch == '\n' || ch == '\r';
}

struct Start {
    const KeywordRow* row = nullptr;
    bool isGlued = false;
};

class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {
        at_ = text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
    }

    std::vector<SourceStatement> Run() {
        for (SkipSpace(); at_ < text_.size(); SkipSpace()) {
            statement_ = {};
            statement_.begin = at_;
            const Start start = StartAt(at_);
            if (start.row == nullptr) {
                ScanStray();
            } else {
                statement_.keyword = start.row->keyword;
                statement_.isGlued = start.isGlued;
                at_ += start.row->text.size();
                ScanStatement(*start.row);
            }
            statement_.end = LastEnd();
            statements_.push_back(statement_);
        }
        return std::move(statements_);
    }

  private:
    void SkipSpace() {
        while (at_ < text_.size() && IsSpace(text_[at_])) {
            ++at_;
        }
    }

    // Where the statement ends when white space before the present position does not count.
    std::size_t LastEnd() const {
        std::size_t end = at_;
        while (end > statement_.begin && IsSpace(text_[end - 1])) {
            --end;
        }
        return end;
    }

    std::size_t WordEnd(std::size_t from) const {
        while (from < text_.size() && IsWordCharacter(text_[from])) {
            ++from;
        }
        return from;
    }

    // The keyword that begins a statement at a position. Authors put a colon, a quote or a
    // semicolon directly after some keywords.
    Start StartAt(std::size_t at) const {
        const std::size_t end = WordEnd(at);
        const KeywordRow* row = FindKeyword(text_.substr(at, end - at));
        if (row == nullptr || end == text_.size() || IsSpace(text_[end])) {
            return {row, false};
        }
        const char next = text_[end];
        const bool mayTouch = next == ':' || next == '"' || next == ';';
        return mayTouch ? Start{row, true} : Start{};
    }

    // Whether the position is the first of its line that is not white space.
    bool BeginsLine(std::size_t at) const {
        while (at > 0 && (text_[at - 1] == ' ' || text_[at - 1] == '\t')) {
            --at;
        }
        return at == 0 || IsSpace(text_[at - 1]);
    }

    void ScanStatement(const KeywordRow& row) {
        if (row.keyword == Keyword::Ns) {
            ScanSymbols();
        } else {
            ScanBody(row);
        }
    }

    // The symbols under NS_: lines of words that are keywords or made like one.
    void ScanSymbols() {
        SkipSpace();
        if (at_ < text_.size() && text_[at_] == ':') {
            ++at_;
        }
        std::size_t end = at_;
        while (TakeLineOfSymbols()) {
            end = at_;
        }
        at_ = end;
    }

    // The next line that is not empty, if it has nothing but symbols. At the colon, what is left of
    // its line.
    bool TakeLineOfSymbols() {
        SkipSpace();
        if (at_ == text_.size()) {
            return false;
        }
        std::size_t at = at_;
        while (at < text_.size() && !EndsLine(text_[at])) {
            const std::size_t end = WordEnd(at);
            if (end < text_.size() && !IsSpace(text_[end])) {
                return false;
            }
            if (!IsSymbol(text_.substr(at, end - at))) {
                return false;
            }
            for (at = end; at < text_.size() && IsSpace(text_[at]) && !EndsLine(text_[at]);) {
                ++at;
            }
        }
        at_ = at;
        return true;
    }

    static bool IsSymbol(std::string_view word) {
        if (const KeywordRow* row = FindKeyword(word)) {
            return row->isSymbol;
        }
        if (word.size() < 3 || word.back() != '_') {
            return false;
        }
        for (const char ch : word) {
            if (ch >= 'a' && ch <= 'z') {
                return false;
            }
        }
        return true;
    }

    // Text up to the end of the statement. Stops before the next statement.
    void ScanBody(const KeywordRow& row) {
        bool inQuotes = false;
        while (at_ < text_.size()) {
            const char ch = text_[at_];
            if (IsPlain(ch)) {
                ++at_;
            } else if (IsSpace(ch)) {
                const bool afterLine = SkipSpaceAndLines();
                if (at_ < text_.size() && IsNextStatement(row, inQuotes, afterLine)) {
                    break;
                }
            } else if (ch == ';' && !inQuotes && row.endsWithSemicolon) {
                SkipSemicolons();
                return;
            } else {
                inQuotes = inQuotes != (ch == '"');
                const bool isEscape =
                    ch == '\\' && inQuotes && at_ + 1 < text_.size() && !IsSpace(text_[at_ + 1]);
                at_ += isEscape ? 2 : 1;
            }
        }
        statement_.isClosed = IsClosed(row);
    }

    // Returns whether a line ended.
    bool SkipSpaceAndLines() {
        bool endsLine = false;
        for (; at_ < text_.size() && IsSpace(text_[at_]); ++at_) {
            endsLine = endsLine || EndsLine(text_[at_]);
        }
        return endsLine;
    }

    // Whether the statement has its semicolon where the scan has not seen it as one, inside quotes
    // that were not closed.
    bool IsClosed(const KeywordRow& row) const {
        return !row.endsWithSemicolon || text_[LastEnd() - 1] == ';';
    }

    // Takes further semicolons into the statement, which mean nothing.
    void SkipSemicolons() {
        std::size_t end = ++at_;
        for (SkipSpace(); at_ < text_.size() && text_[at_] == ';'; SkipSpace()) {
            end = ++at_;
        }
        at_ = end;
    }

    // Whether the next statement begins here, at the beginning of a word.
    bool IsNextStatement(const KeywordRow& row, bool inQuotes, bool afterLine) {
        if (!afterLine && (inQuotes || row.endsWithSemicolon)) {
            return false;
        }
        const char first = text_[at_];
        if (first < 'B' || first > 'V') {
            return false;
        }
        const Start start = StartAt(at_);
        if (start.row == nullptr || (start.isGlued && !afterLine)) {
            return false;
        }
        if (inQuotes) {
            return !ClosesLater(row);
        }
        return !row.endsWithSemicolon || !IsOwner(row, *start.row);
    }

    // Whether a free text that is open here has its closing quote further on: the next quote is the
    // one before a semicolon. Texts of other kinds do not reach over lines.
    bool ClosesLater(const KeywordRow& row) {
        if (!row.libraryNeedsSemicolon) {
            return false;
        }
        if (nextQuote_ < at_) {
            nextQuote_ = at_;
            while (nextQuote_ < text_.size() && text_[nextQuote_] != '"') {
                nextQuote_ += text_[nextQuote_] == '\\' ? 2 : 1;
            }
            std::size_t after = nextQuote_ + 1;
            while (after < text_.size() && IsSpace(text_[after])) {
                ++after;
            }
            nextQuoteCloses_ = after < text_.size() && text_[after] == ';';
        }
        return nextQuoteCloses_;
    }

    // Whether the keyword at the beginning of a line names the owner of a comment or of an
    // attribute, which its author has put on a line of its own.
    bool IsOwner(const KeywordRow& row, const KeywordRow& found) const {
        const bool mayOwn = found.keyword == Keyword::Bo || found.keyword == Keyword::Sg ||
                            found.keyword == Keyword::Bu || found.keyword == Keyword::Ev;
        if (!mayOwn || !row.libraryNeedsSemicolon) {
            return false;
        }
        const std::size_t bodyBegin = statement_.begin + row.text.size();
        for (std::size_t at = bodyBegin; at < at_; ++at) {
            if (!IsSpace(text_[at])) {
                return false;
            }
        }
        return true;
    }

    // Text that belongs to no statement, up to the next keyword that is a word of its own or begins
    // a line.
    void ScanStray() {
        while (at_ < text_.size()) {
            while (at_ < text_.size() && !IsSpace(text_[at_])) {
                ++at_;
            }
            SkipSpace();
            if (at_ < text_.size()) {
                const Start start = StartAt(at_);
                if (start.row != nullptr && (!start.isGlued || BeginsLine(at_))) {
                    return;
                }
            }
        }
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t nextQuote_ = 0;  // as it was looked up last, with what follows it
    bool nextQuoteCloses_ = false;
    SourceStatement statement_;
    std::vector<SourceStatement> statements_;
};

}  // namespace

std::vector<SourceStatement> ScanStatements(std::string_view text) {
    return Scanner(text).Run();
}

}  // namespace vexil::tool
