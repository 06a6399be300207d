// Cutting rows into runs, and joining runs of one owner to areas.
// SPDX-License-Identifier: MIT
#include "view/frame_runs.h"

namespace vexil::tool {
namespace {

const BitCell& CellAt(const std::vector<BitCell>& cells, std::size_t row, std::size_t column) {
    return cells[row * BitsInByte + (BitsInByte - 1 - column)];
}

// Whether two runs of neighbouring rows belong to one area.
bool Touch(const BitRun& upper, const BitRun& lower) {
    return upper.owner == lower.owner && upper.column < lower.column + lower.length &&
           lower.column < upper.column + upper.length;
}

}  // namespace

BitOwner OwnerAt(const std::vector<BitCell>& cells, std::size_t row, std::size_t column) {
    const BitCell& cell = CellAt(cells, row, column);
    return {cell.signal, cell.other, cell.signalCount};
}

FrameRuns FindRuns(const std::vector<BitCell>& cells) {
    FrameRuns found;
    std::size_t firstOfRowAbove = 0;
    std::size_t firstOfRow = 0;
    for (std::size_t row = 0; row < cells.size() / BitsInByte; ++row) {
        firstOfRowAbove = firstOfRow;
        firstOfRow = found.runs.size();
        for (std::size_t column = 0; column < BitsInByte;) {
            BitRun run{row, column, 0, OwnerAt(cells, row, column), 0, 0, found.areas.size()};
            run.highBit = CellAt(cells, row, column).signalBit;
            while (column < BitsInByte && OwnerAt(cells, row, column) == run.owner) {
                run.lowBit = CellAt(cells, row, column).signalBit;
                ++run.length;
                ++column;
            }
            for (std::size_t above = firstOfRowAbove; above < firstOfRow; ++above) {
                if (Touch(found.runs[above], run)) {
                    run.area = found.runs[above].area;
                    break;
                }
            }
            if (run.area == found.areas.size()) {
                found.areas.emplace_back();
            }
            found.areas[run.area].push_back(found.runs.size());
            found.runs.push_back(run);
        }
    }
    return found;
}

}  // namespace vexil::tool
