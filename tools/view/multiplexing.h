// Which signals of a message depend on which value of its multiplexer.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "database/snapshot.h"
#include "view/draw_style.h"

namespace vexil::tool {

// Returns a multiplexer value with its description, such as 2 "Faults".
//   selector  an index into Snapshot::signals, or NoSignal
std::string MultiplexValueInWords(const Snapshot& snapshot, std::uint32_t selector,
                                  std::uint32_t value);

// Returns the first multiplexer of the message, which is the one that counts, or NoSignal.
std::uint32_t FindSelector(const Snapshot& snapshot, const MessageFacts& message);

// Returns the lines of a tree: the multiplexer, its values, the signals of each value. There are
// none for a message without multiplexed signals.
std::vector<std::string> DrawMultiplexing(const Snapshot& snapshot, const MessageFacts& message,
                                          const DrawStyle& style);

// The multiplexing of a signal as its statement has it: "M" for a selector, such as "m5" for a
// multiplexed signal, otherwise empty.
std::string MultiplexMark(const SignalFacts& signal);

}  // namespace vexil::tool
