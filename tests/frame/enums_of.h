// The value descriptions of a signal as plain pairs, whatever holds them in the model.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/can_signal.h"

namespace vexil::test {

using EnumPairs = std::vector<std::pair<std::int32_t, std::string>>;

// In the order in which they are fetched and written.
inline EnumPairs EnumsOf(const CANSignal& signal) {
    const auto& entries = signal.enums.Sorted();
    return {entries.begin(), entries.end()};
}

}  // namespace vexil::test
