// The signals of a message and their value descriptions.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "database/snapshot.h"
#include "view/draw_style.h"

namespace vexil::tool {

// Returns the lines of a table with a row for each signal. Below the row are the long name, start
// and inactive value, and the comment, where the signal has them, and the receivers where their
// column would break words.
std::vector<std::string> DrawSignals(const Snapshot& snapshot, const MessageFacts& message,
                                     const DrawStyle& style);

// Returns the lines of a list of the values that the signal describes.
std::vector<std::string> DrawDescriptions(const Snapshot& snapshot, const SignalFacts& signal,
                                          const DrawStyle& style);

}  // namespace vexil::tool
