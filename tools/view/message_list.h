// Messages as a list.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <iosfwd>
#include <vector>

#include "database/snapshot.h"
#include "view/draw_style.h"

namespace vexil::tool {

// Prints a line of headings and a line for each of the messages: id, kind of frame, name, size,
// number of signals, sender, cycle time, send type, and as much of the comment as the line has room
// for. Nothing else is shortened, so a line may take more columns than there are.
//   messages  indexes into Snapshot::messages
void PrintMessageList(std::ostream& out, const Snapshot& snapshot,
                      const std::vector<std::uint32_t>& messages, const DrawStyle& style);

}  // namespace vexil::tool
