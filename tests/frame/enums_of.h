// The value descriptions of a signal as plain pairs.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/descriptions.h"

namespace vexil::test {

using EnumPairs = std::vector<std::pair<std::int32_t, std::string>>;

// In the order in which they are fetched and written.
inline EnumPairs EnumsOf(const Descriptions& descriptions) {
    EnumPairs pairs(descriptions.Count());
    for (std::size_t position = 0; position < pairs.size(); ++position) {
        pairs[position].first = descriptions.ValueAt(position);
        LineBuffer scratch;
        pairs[position].second = descriptions.Text(position, scratch, npos);
    }
    return pairs;
}

inline EnumPairs EnumsOf(const Notes& notes) {
    Descriptions descriptions;
    descriptions.LookAt(notes);
    return EnumsOf(descriptions);
}

}  // namespace vexil::test
