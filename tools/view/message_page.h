// All about one message.
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "database/snapshot.h"
#include "view/draw_style.h"

namespace vexil::tool {

// Prints the facts of the message, a table of its signals, the multiplexing tree, the value
// descriptions and the layout.
void PrintMessagePage(std::ostream& out, const Snapshot& snapshot, const MessageFacts& message,
                      const DrawStyle& style);

}  // namespace vexil::tool
