// A frame as a drawing: a row for each byte, a column for each bit, and an area for each signal.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "view/draw_style.h"
#include "view/frame_labels.h"
#include "view/frame_runs.h"

namespace vexil::tool {

// The columns in front of the first bit, and the borders.
inline constexpr std::size_t FrameMargin = 5;
inline constexpr std::size_t FrameBorders = BitsInByte + 1;

// Returns the lines of the drawing. A line between two rows is left out where no area ends.
//   cells   the frame, as FrameLayout has it; not empty
//   frame   its runs
//   labels  a label for each run, which fits into it
std::vector<std::string> DrawFrame(const std::vector<BitCell>& cells, const FrameRuns& frame,
                                   const std::vector<RunLabel>& labels, std::size_t bitWidth,
                                   const DrawStyle& style);

}  // namespace vexil::tool
