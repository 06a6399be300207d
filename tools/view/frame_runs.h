// The rows of a drawn frame: a row for each byte, bit 7 first, cut where the owner of a bit
// changes.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "layout/bit_layout.h"

namespace vexil::tool {

// Who has a bit. Bits of equal owners are drawn as one area.
struct BitOwner {
    std::uint32_t signal = NoSignal;
    std::uint32_t other = NoSignal;
    std::uint32_t signalCount = 0;

    bool IsFree() const { return signalCount == 0; }
    bool IsOverlap() const { return signalCount > 1; }
    auto operator<=>(const BitOwner&) const = default;
};

// The owner of a bit of a drawn frame.
//   column  0 for bit 7 to 7 for bit 0
BitOwner OwnerAt(const std::vector<BitCell>& cells, std::size_t row, std::size_t column);

// Neighbouring bits of one row with one owner.
struct BitRun {
    std::size_t row = 0;
    std::size_t column = 0;
    std::size_t length = 0;
    BitOwner owner;
    std::uint32_t highBit = 0;  // of the signal, in the first column
    std::uint32_t lowBit = 0;   // in the last one
    std::size_t area = 0;
};

struct FrameRuns {
    std::vector<BitRun> runs;                     // row by row, the free bits included
    std::vector<std::vector<std::size_t>> areas;  // the runs that touch each other, from top down
};

// Returns the runs of a frame as FrameLayout has it.
FrameRuns FindRuns(const std::vector<BitCell>& cells);

}  // namespace vexil::tool
