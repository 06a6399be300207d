// The facts of a network in words, for one line of text. Control characters are escaped.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "comparison/aspect.h"
#include "database/snapshot.h"

namespace vexil::tool {

// A text of the network in double quotes.
std::string Quoted(std::string_view text);

// Such as "291 (0x123) Tank".
std::string MessageTitle(const Snapshot& snapshot, const MessageFacts& message);

// A message with its size, its sender and the number of its signals.
std::string MessageLine(const Snapshot& snapshot, const MessageFacts& message);

// A signal in the form of its statement, such as "Level: 0|16@1+ (0.5,0) [0|100] "l" Dash".
std::string SignalLine(const Snapshot& snapshot, const SignalFacts& signal);

// One aspect. An aspect that the object does not have, or that is a list, gives an empty text.
std::string NetworkText(const DatabaseInfo& info, Aspect aspect);
std::string MessageText(const Snapshot& snapshot, const MessageFacts& message, Aspect aspect);
std::string SignalText(const Snapshot& snapshot, const SignalFacts& signal, Aspect aspect);

}  // namespace vexil::tool
