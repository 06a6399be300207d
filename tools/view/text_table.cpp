// The widths of columns, and cells of several lines.
// SPDX-License-Identifier: MIT
#include "view/text_table.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

#include "view/display_text.h"
#include "view/draw_style.h"

namespace vexil::tool {
namespace {

constexpr std::size_t Gap = 2;
constexpr std::size_t LeastColumn = 8;
constexpr std::size_t NoteIndent = 4;

// Takes from the widest column that is wider than its least width, one by one.
void Shrink(std::vector<std::size_t>& widths, const std::vector<std::size_t>& least,
            std::size_t limit) {
    const std::size_t gaps = Gap * (widths.size() - 1);
    std::size_t total = std::accumulate(widths.begin(), widths.end(), gaps);
    for (; total > limit; --total) {
        std::size_t widest = widths.size();
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const bool isWider = widest == widths.size() || widths[column] > widths[widest];
            widest = widths[column] > least[column] && isWider ? column : widest;
        }
        if (widest == widths.size()) {
            return;
        }
        --widths[widest];
    }
}

std::size_t LongestWord(std::string_view text) {
    std::size_t longest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        longest = std::max(longest, DisplayWidth(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return longest;
}

void TrimEnd(std::string& line) {
    line.erase(line.find_last_not_of(' ') + 1);
}

void AppendRow(std::vector<std::string>& lines, const std::vector<std::string>& cells,
               const std::vector<TableColumn>& columns, const std::vector<std::size_t>& widths) {
    std::vector<std::vector<std::string>> wrapped;
    std::size_t height = 1;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        wrapped.push_back(WrapText(cells[column], widths[column]));
        height = std::max(height, wrapped.back().size());
    }
    for (std::size_t number = 0; number < height; ++number) {
        std::string line;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const bool hasText = number < wrapped[column].size();
            const std::string text = hasText ? wrapped[column][number] : "";
            line += columns[column].isNumber ? PadLeft(text, widths[column])
                                             : PadRight(text, widths[column]);
            line.append(Gap, ' ');
        }
        TrimEnd(line);
        lines.push_back(std::move(line));
    }
}

}  // namespace

void TextTable::AddRow(std::vector<std::string> cells, std::string note) {
    rows.push_back({std::move(cells), std::move(note)});
}

template <typename Measure>
std::vector<std::size_t> TextTable::Widest(Measure measure) const {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < columns.size(); ++column) {
        widths.push_back(measure(columns[column].heading));
        for (const Row& row : rows) {
            widths.back() = std::max(widths.back(), measure(row.cells[column]));
        }
    }
    return widths;
}

std::size_t TextTable::WidthOfWords() const {
    const std::vector<std::size_t> words = Widest(LongestWord);
    return std::accumulate(words.begin(), words.end(), Gap * (words.size() - 1));
}

std::vector<std::string> TextTable::Lines(std::size_t width) const {
    std::vector<std::size_t> widths = Widest(DisplayWidth);
    const std::vector<std::size_t> words = Widest(LongestWord);
    std::vector<std::size_t> least;
    std::vector<std::string> headings;
    for (const TableColumn& column : columns) {
        headings.push_back(column.heading);
        least.push_back(std::max(column.heading.size(), LeastColumn));
    }
    // Words are broken only where breaking lines between them is not enough, and those of the first
    // column, which names the row, last of all.
    Shrink(widths, words, width);
    const std::size_t leastOfFirst = std::exchange(least.front(), words.front());
    Shrink(widths, least, width);
    least.front() = leastOfFirst;
    Shrink(widths, least, width);
    std::vector<std::string> lines;
    AppendRow(lines, headings, columns, widths);
    for (const Row& row : rows) {
        AppendRow(lines, row.cells, columns, widths);
        if (!row.note.empty()) {
            for (const std::string& line :
                 WrapText(row.note, std::max(width, LeastWidth) - NoteIndent)) {
                lines.push_back(std::string(NoteIndent, ' ') + line);
            }
        }
    }
    return lines;
}

}  // namespace vexil::tool
