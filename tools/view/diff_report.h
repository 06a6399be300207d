// What a comparison has found, for the views, and the words that they share.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "comparison/comparison.h"

namespace vexil::tool {

struct DiffReport {
    std::string_view nameBefore;  // of the file
    std::string_view nameAfter;
    const Snapshot& before;
    const Snapshot& after;
    const Comparison& comparison;
};

struct DiffCounts {
    std::size_t removed = 0;
    std::size_t added = 0;
    std::size_t changed = 0;
    std::size_t moved = 0;
};

// Counts the messages of a comparison.
DiffCounts CountMessages(const Comparison& comparison);

// Such as "float32" and "little-endian"; "unknown" for a number without a meaning.
std::string_view ValueTypeWord(const SignalFacts& signal);
std::string_view ByteOrderWord(const SignalFacts& signal);
std::string_view ProtocolWord(const DatabaseInfo& info);
std::string_view BusTypeWord(const DatabaseInfo& info);

}  // namespace vexil::tool
