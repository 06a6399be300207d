// The differences between two networks.
//
// Messages are paired by id, and the remaining ones by name; signals of a pair of messages by name,
// and the remaining ones by bits and multiplexing. If several have the same id or name, those that
// agree in more are paired first, and the rest in their order.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "comparison/aspect.h"
#include "comparison/pairing.h"
#include "database/snapshot.h"

namespace vexil::tool {

// A signal that was removed, added or changed: one of the indexes, or both.
struct SignalDifference {
    Pair signal;        // in Snapshot::signals
    AspectSet aspects;  // of a signal that is in both

    bool operator==(const SignalDifference&) const = default;
};

// A message that was removed, added or changed.
struct MessageDifference {
    Pair message;                             // in Snapshot::messages
    AspectSet aspects;                        // of a message that is in both, Order not among them
    std::vector<SignalDifference> signals;    // likewise: removed ones first
    std::vector<std::uint32_t> movedSignals;  // in Snapshot::signals of the second network

    bool operator==(const MessageDifference&) const = default;
};

struct Comparison {
    AspectSet aspects;                         // of the network, Order not among them
    std::vector<MessageDifference> messages;   // removed ones first
    std::vector<std::uint32_t> movedMessages;  // in Snapshot::messages of the second network

    bool IsEmpty() const { return aspects.IsEmpty() && messages.empty() && movedMessages.empty(); }
    bool operator==(const Comparison&) const = default;
};

// Compares two networks. Only the parts of texts that fit their records are compared.
//   ignored  aspects that are not compared
Comparison Compare(const Snapshot& before, const Snapshot& after, AspectSet ignored = {});

}  // namespace vexil::tool
