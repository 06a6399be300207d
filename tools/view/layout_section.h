// The layout of a message: a drawing for each multiplexer value, with its legend.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "database/snapshot.h"
#include "view/draw_style.h"

namespace vexil::tool {

// Returns the lines of the section. At most 64 bytes and 256 multiplexer values are drawn; lines
// say what is not.
std::vector<std::string> DrawLayout(const Snapshot& snapshot, const MessageFacts& message,
                                    const DrawStyle& style);

}  // namespace vexil::tool
