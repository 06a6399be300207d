// A table of text whose columns fit their contents and the terminal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vexil::tool {

struct TableColumn {
    std::string heading;
    bool isNumber = false;  // to the right
};

class TextTable {
  public:
    explicit TextTable(std::vector<TableColumn> tableColumns) : columns(std::move(tableColumns)) {}

    // Adds a row, with one cell for each column.
    //   note  text below the row, over the whole width; may be empty
    void AddRow(std::vector<std::string> cells, std::string note = "");

    // Returns the columns of the terminal that a line needs if no word is to be broken.
    std::size_t WidthOfWords() const;

    // Returns the lines of the table, the headings first. The widest columns give way until a line
    // takes at most so many columns of the terminal, and their cells are broken into lines. Columns
    // keep a width at which they can be read, even where the lines are then longer.
    std::vector<std::string> Lines(std::size_t width) const;

  private:
    struct Row {
        std::vector<std::string> cells;
        std::string note;
    };

    // The widest heading or cell of each column.
    //   measure  returns the width of a text
    template <typename Measure>
    std::vector<std::size_t> Widest(Measure measure) const;

    std::vector<TableColumn> columns;
    std::vector<Row> rows;
};

}  // namespace vexil::tool
