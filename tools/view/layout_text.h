// The layout of a frame in a short text, of which the script of a report draws a picture.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "database/snapshot.h"

namespace vexil::tool {

// No frame is longer, whatever a file says of its messages.
inline constexpr std::size_t LongestFrame = 64;

// Returns the bits of the frame from position 0 on as runs of bits with the same owner: their
// number, then the signal in letters (a is the first one of the message, z the 26th, then aa) or a
// full stop for no signal, then "!" if other signals have the bits as well. So "16a8.4b!" has 16
// bits of the first signal, 8 free ones, and 4 on which the second signal overlaps another one.
//   multiplexValue  as in FrameLayout
std::string LayoutText(const Snapshot& snapshot, const MessageFacts& message,
                       std::optional<std::uint32_t> multiplexValue);

// Returns the length in bytes of the frame that LayoutText describes: that of the message, or up to
// the end of its last signal, but LongestFrame at most.
std::size_t ShownBytes(const Snapshot& snapshot, const MessageFacts& message);

}  // namespace vexil::tool
