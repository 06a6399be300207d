// Fills records with one byte value, which shows the bytes that a call has changed.
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstring>

namespace vexil::fuzz {

inline constexpr unsigned char Pattern = 0x5A;

template <typename Record>
Record Patterned() {
    Record record;
    std::memset(&record, Pattern, sizeof record);
    return record;
}

// Returns whether every byte still has the value from Patterned.
template <typename Record>
bool IsUntouched(const Record& record) {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(&record);
    return std::all_of(bytes, bytes + sizeof record, [](auto byte) { return byte == Pattern; });
}

}  // namespace vexil::fuzz
