// Scans the text in one pass. After an unclosed quote, it looks ahead to the next one.
// SPDX-License-Identifier: MIT
#include "source/statement_scanner.h"

#include <algorithm>
#include <utility>

namespace vexil::tool {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

bool IsWordCharacter(char ch) {
    return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z') || (ch >= '0' && ch <= '9') ||
           ch == '_';
}

// Returns whether the character has no meaning for the scan.
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
    explicit Scanner(std::string_view text)
        : whole(text), position(text.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0) {}

    std::vector<SourceStatement> Run() {
        for (SkipSpace(); position < whole.size(); SkipSpace()) {
            current = {};
            current.begin = position;
            const Start start = StartAt(position);
            if (start.row == nullptr) {
                ScanStray();
            } else {
                current.keyword = start.row->keyword;
                current.isGlued = start.isGlued;
                position += start.row->text.size();
                ScanStatement(*start.row);
            }
            current.end = LastEnd();
            authored.push_back(current);
        }
        return std::move(authored);
    }

  private:
    void SkipSpace() {
        while (position < whole.size() && IsSpace(whole[position])) {
            ++position;
        }
    }

    // The end of the statement, without white space before the current position.
    std::size_t LastEnd() const {
        std::size_t end = position;
        while (end > current.begin && IsSpace(whole[end - 1])) {
            --end;
        }
        return end;
    }

    std::size_t WordEnd(std::size_t from) const {
        while (from < whole.size() && IsWordCharacter(whole[from])) {
            ++from;
        }
        return from;
    }

    // Returns the keyword that begins a statement at a position. Some files have a colon, a quote
    // or a semicolon directly after a keyword.
    Start StartAt(std::size_t at) const {
        const std::size_t end = WordEnd(at);
        const KeywordRow* row = FindKeyword(whole.substr(at, end - at));
        if (row == nullptr || end == whole.size() || IsSpace(whole[end])) {
            return {row, false};
        }
        const char next = whole[end];
        const bool mayTouch = next == ':' || next == '"' || next == ';';
        return mayTouch ? Start{row, true} : Start{};
    }

    // Whether only white space precedes the position in its line.
    bool BeginsLine(std::size_t at) const {
        while (at > 0 && (whole[at - 1] == ' ' || whole[at - 1] == '\t')) {
            --at;
        }
        return at == 0 || IsSpace(whole[at - 1]);
    }

    void ScanStatement(const KeywordRow& row) {
        if (row.keyword == Keyword::Ns) {
            ScanSymbols();
        } else {
            ScanBody(row);
        }
    }

    // Skips the symbols under NS_: lines of words that are keywords or have the form of one.
    void ScanSymbols() {
        SkipSpace();
        if (position < whole.size() && whole[position] == ':') {
            ++position;
        }
        std::size_t end = position;
        while (TakeLineOfSymbols()) {
            end = position;
        }
        position = end;
    }

    // Returns the next line that is not empty if it has only symbols. At the colon, this is the
    // rest of its line.
    bool TakeLineOfSymbols() {
        SkipSpace();
        if (position == whole.size()) {
            return false;
        }
        std::size_t at = position;
        while (at < whole.size() && !EndsLine(whole[at])) {
            const std::size_t end = WordEnd(at);
            if (end < whole.size() && !IsSpace(whole[end])) {
                return false;
            }
            if (!IsSymbol(whole.substr(at, end - at))) {
                return false;
            }
            for (at = end; at < whole.size() && IsSpace(whole[at]) && !EndsLine(whole[at]);) {
                ++at;
            }
        }
        position = at;
        return true;
    }

    static bool IsSymbol(std::string_view word) {
        if (const KeywordRow* row = FindKeyword(word)) {
            return row->isSymbol;
        }
        return word.size() >= 3 && word.back() == '_' &&
               std::none_of(word.begin(), word.end(),
                            [](char ch) { return ch >= 'a' && ch <= 'z'; });
    }

    // Skips text up to the end of the statement, at most up to the next statement.
    void ScanBody(const KeywordRow& row) {
        bool inQuotes = false;
        while (position < whole.size()) {
            const char ch = whole[position];
            if (IsPlain(ch)) {
                ++position;
            } else if (IsSpace(ch)) {
                const bool afterLine = SkipSpaceAndLines();
                if (position < whole.size() && IsNextStatement(row, inQuotes, afterLine)) {
                    break;
                }
            } else if (ch == ';' && !inQuotes && row.endsWithSemicolon) {
                SkipSemicolons();
                return;
            } else {
                inQuotes = inQuotes != (ch == '"');
                const bool isEscape = ch == '\\' && inQuotes && position + 1 < whole.size() &&
                                      !IsSpace(whole[position + 1]);
                position += isEscape ? 2 : 1;
            }
        }
        current.isClosed = IsClosed(row);
    }

    // Returns whether a line ended.
    bool SkipSpaceAndLines() {
        bool endsLine = false;
        for (; position < whole.size() && IsSpace(whole[position]); ++position) {
            endsLine = endsLine || EndsLine(whole[position]);
        }
        return endsLine;
    }

    // Whether the statement has its semicolon inside unclosed quotes, where the scan skipped it.
    bool IsClosed(const KeywordRow& row) const {
        return !row.endsWithSemicolon || whole[LastEnd() - 1] == ';';
    }

    // Skips further semicolons, which have no meaning, as a part of the statement.
    void SkipSemicolons() {
        std::size_t end = ++position;
        for (SkipSpace(); position < whole.size() && whole[position] == ';'; SkipSpace()) {
            end = ++position;
        }
        position = end;
    }

    // Whether the next statement begins here. Precondition: a word begins here.
    bool IsNextStatement(const KeywordRow& row, bool inQuotes, bool afterLine) {
        if (!afterLine && (inQuotes || row.endsWithSemicolon)) {
            return false;
        }
        const char first = whole[position];
        if (first < 'B' || first > 'V') {
            return false;
        }
        const Start start = StartAt(position);
        if (start.row == nullptr || (start.isGlued && !afterLine)) {
            return false;
        }
        if (inQuotes) {
            return !ClosesLater(row);
        }
        return !row.endsWithSemicolon || !IsOwner(row, *start.row);
    }

    // Whether a comment that is open here has a closing quote later: a semicolon follows the next
    // quote. Other texts do not extend over several lines.
    bool ClosesLater(const KeywordRow& row) {
        if (!row.libraryNeedsSemicolon) {
            return false;
        }
        if (nextQuote < position) {
            nextQuote = position;
            while (nextQuote < whole.size() && whole[nextQuote] != '"') {
                nextQuote += whole[nextQuote] == '\\' ? 2 : 1;
            }
            std::size_t after = nextQuote + 1;
            while (after < whole.size() && IsSpace(whole[after])) {
                ++after;
            }
            nextQuoteCloses = after < whole.size() && whole[after] == ';';
        }
        return nextQuoteCloses;
    }

    // Whether the keyword at the beginning of a line is the owner of a comment or an attribute,
    // which the author wrote on a separate line.
    bool IsOwner(const KeywordRow& row, const KeywordRow& found) const {
        const bool mayOwn = found.keyword == Keyword::Bo || found.keyword == Keyword::Sg ||
                            found.keyword == Keyword::Bu || found.keyword == Keyword::Ev;
        if (!mayOwn || !row.libraryNeedsSemicolon) {
            return false;
        }
        const std::size_t bodyBegin = current.begin + row.text.size();
        for (std::size_t at = bodyBegin; at < position; ++at) {
            if (!IsSpace(whole[at])) {
                return false;
            }
        }
        return true;
    }

    // Skips stray text, up to the next keyword that is a word of its own or begins a line.
    void ScanStray() {
        while (position < whole.size()) {
            while (position < whole.size() && !IsSpace(whole[position])) {
                ++position;
            }
            SkipSpace();
            if (position < whole.size()) {
                const Start start = StartAt(position);
                if (start.row != nullptr && (!start.isGlued || BeginsLine(position))) {
                    return;
                }
            }
        }
    }

    std::string_view whole;
    std::size_t position;
    std::size_t nextQuote = 0;  // the result of the last search, with the text after it
    bool nextQuoteCloses = false;
    SourceStatement current;
    std::vector<SourceStatement> authored;
};

}  // namespace

std::vector<SourceStatement> ScanStatements(std::string_view text) {
    return Scanner(text).Run();
}

}  // namespace vexil::tool
