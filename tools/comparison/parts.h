// Parts of signals that are lists.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "database/snapshot.h"

namespace vexil::tool {

// Returns the receivers of a signal, sorted, without duplicates.
std::vector<std::string_view> ReceiversOf(const Snapshot& snapshot, const SignalFacts& signal);

// The description of one value in two networks; null if it has none.
struct DescriptionDifference {
    const DescriptionFacts* before = nullptr;
    const DescriptionFacts* after = nullptr;
};

// Finds the values whose descriptions differ, ascending.
std::vector<DescriptionDifference> CompareDescriptions(const Snapshot& before,
                                                       const SignalFacts& signalBefore,
                                                       const Snapshot& after,
                                                       const SignalFacts& signalAfter);

}  // namespace vexil::tool
