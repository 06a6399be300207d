// A network in numbers: its nodes and how full its messages are.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "database/snapshot.h"

namespace vexil::tool {

struct SenderFacts {
    std::string_view name;
    std::size_t messages = 0;
    std::size_t signals = 0;
    double framesPerSecond = 0;  // of the messages that have a cycle time
    double bytesPerSecond = 0;
};

struct BitUse {
    std::uint64_t bits = 0;  // of all messages, as far as they have a layout
    std::uint64_t used = 0;  // those that a signal has in at least one frame
};

// Returns the senders in the order of their first messages.
std::vector<SenderFacts> FindSenders(const Snapshot& snapshot);

BitUse CountBits(const Snapshot& snapshot);

}  // namespace vexil::tool
