// Draws borders between bits that belong to different signals, and the corners of the borders.
// SPDX-License-Identifier: MIT
#include "view/frame_drawing.h"

#include <string_view>

#include "format/format.h"
#include "view/colour.h"
#include "view/display_text.h"

namespace vexil::tool {
namespace {

// The directions in which borders leave a corner.
constexpr unsigned Up = 1;
constexpr unsigned Down = 2;
constexpr unsigned Left = 4;
constexpr unsigned Right = 8;

// By directions. A border never ends at a corner, so those with one direction are not used.
constexpr std::string_view BoxCorners[] = {" ", "?", "?", "│", "?", "┘", "┐", "┤",
                                           "?", "└", "┌", "├", "─", "┴", "┬", "┼"};

// A longer series of bytes without a signal is shortened.
constexpr std::size_t MostFreeRows = 8;

std::string Repeat(std::string_view text, std::size_t count) {
    std::string repeated;
    for (std::size_t index = 0; index < count; ++index) {
        repeated += text;
    }
    return repeated;
}

class Painter {
  public:
    Painter(const std::vector<BitCell>& frameCells, std::size_t columnsOfABit,
            const DrawStyle& drawStyle)
        : cells(frameCells),
          bitWidth(columnsOfABit),
          style(drawStyle),
          rows(frameCells.size() / BitsInByte) {}

    std::vector<std::string> Run(const FrameRuns& frame, const std::vector<RunLabel>& labels) {
        AddHeading();
        std::size_t run = 0;
        for (std::size_t row = 0; row < rows; ++row) {
            AddBorder(row);
            if (const std::size_t freeRows = CountFreeRows(row); freeRows > MostFreeRows) {
                AddFreeRows(row, freeRows);
                row += freeRows - 1;
                run += freeRows;
                continue;
            }
            std::string line = Format("{:>{}} ", row, FrameMargin - 1);
            for (; run < frame.runs.size() && frame.runs[run].row == row; ++run) {
                line += Vertical();
                line += Inside(frame.runs[run], labels[run]);
            }
            lines.push_back(line + std::string(Vertical()));
        }
        AddBorder(rows);
        return std::move(lines);
    }

  private:
    // How many rows from this one on have no signal.
    std::size_t CountFreeRows(std::size_t row) const {
        std::size_t count = 0;
        const auto isFree = [this](std::size_t position) {
            return cells[position].signalCount == 0;
        };
        for (std::size_t position = row * BitsInByte; position < cells.size() && isFree(position);
             ++position) {
            ++count;
        }
        return count / BitsInByte;
    }

    // Draws rows without signals. Of a long series only the first and the last row are drawn.
    void AddFreeRows(std::size_t row, std::size_t count) {
        const BitRun run{row, 0, BitsInByte, {}, 0, 0, 0};
        const std::string inside = std::string(Vertical()) +
                                   std::string(InnerWidth(run, bitWidth), ' ') +
                                   std::string(Vertical());
        lines.push_back(Format("{:>{}} ", row, FrameMargin - 1) + inside);
        lines.push_back(std::string(FrameMargin - 2, ' ') + (style.ascii ? ": " : "⋮ ") + inside);
        lines.push_back(Format("{:>{}} ", row + count - 1, FrameMargin - 1) + inside);
    }

    std::string_view Vertical() const { return style.ascii ? "|" : "│"; }
    std::string_view Horizontal() const { return style.ascii ? "-" : "─"; }
    std::string_view Shade() const { return style.ascii ? "#" : "▒"; }

    std::string Marked(const std::string& text) const {
        return style.colour ? InColour(text, Colour::Red) : text;
    }

    void AddHeading() {
        std::string line(FrameMargin, ' ');
        for (std::size_t bit = BitsInByte; bit-- > 0;) {
            line += Format(" {:^{}}", bit, bitWidth);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        lines.push_back(line);
    }

    // Whether there is a border above a bit; the row after the last one has the lower border.
    bool HasBorderAbove(std::size_t row, std::size_t column) const {
        return row == 0 || row == rows ||
               OwnerAt(cells, row - 1, column) != OwnerAt(cells, row, column);
    }

    // Whether there is a border before a bit; the column after the last one has the right border.
    bool HasBorderBefore(std::size_t row, std::size_t column) const {
        return column == 0 || column == BitsInByte ||
               OwnerAt(cells, row, column - 1) != OwnerAt(cells, row, column);
    }

    std::string_view Corner(std::size_t row, std::size_t column) const {
        unsigned directions = 0;
        directions |= row > 0 && HasBorderBefore(row - 1, column) ? Up : 0;
        directions |= row < rows && HasBorderBefore(row, column) ? Down : 0;
        directions |= column > 0 && HasBorderAbove(row, column - 1) ? Left : 0;
        directions |= column < BitsInByte && HasBorderAbove(row, column) ? Right : 0;
        if (!style.ascii) {
            return BoxCorners[directions];
        }
        const bool isStraight = directions == (Left | Right) || directions == (Up | Down);
        return directions == 0 ? " " : !isStraight ? "+" : directions == (Up | Down) ? "|" : "-";
    }

    void AddBorder(std::size_t row) {
        bool isNeeded = false;
        std::string line(FrameMargin, ' ');
        for (std::size_t column = 0; column < BitsInByte; ++column) {
            const bool hasBorder = HasBorderAbove(row, column);
            isNeeded = isNeeded || hasBorder;
            line += Corner(row, column);
            if (hasBorder) {
                line += Repeat(Horizontal(), bitWidth);
            } else {
                const bool isOverlap = OwnerAt(cells, row, column).IsOverlap();
                const std::string inside = Repeat(isOverlap ? Shade() : " ", bitWidth);
                line += isOverlap ? Marked(inside) : inside;
            }
        }
        if (isNeeded) {
            lines.push_back(line + std::string(Corner(row, BitsInByte)));
        }
    }

    std::string Inside(const BitRun& run, const RunLabel& label) const {
        const std::size_t inner = InnerWidth(run, bitWidth);
        const std::string name = Shorten(label.name, inner, "");
        const std::size_t used = DisplayWidth(name) + label.bits.size();
        const std::size_t between = name.empty() || label.bits.empty() ? 0 : 1;
        const bool hasPadding = used + between + 2 <= inner;
        if (run.owner.IsOverlap()) {
            const std::string text = hasPadding && !name.empty() ? " " + name + " " : name;
            const std::size_t shaded = inner - DisplayWidth(text);
            return Marked(Repeat(Shade(), shaded / 2) + text +
                          Repeat(Shade(), shaded - shaded / 2));
        }
        const std::string side = hasPadding ? " " : "";
        return side + name + std::string(inner - used - 2 * side.size(), ' ') + label.bits + side;
    }

    const std::vector<BitCell>& cells;
    std::size_t bitWidth;
    const DrawStyle& style;
    std::size_t rows;
    std::vector<std::string> lines;
};

}  // namespace

std::vector<std::string> DrawFrame(const std::vector<BitCell>& cells, const FrameRuns& frame,
                                   const std::vector<RunLabel>& labels, std::size_t bitWidth,
                                   const DrawStyle& style) {
    return Painter(cells, bitWidth, style).Run(frame, labels);
}

}  // namespace vexil::tool
