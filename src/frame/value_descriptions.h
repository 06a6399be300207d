// The value descriptions of a signal: texts by raw value.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vexil {

// Entries in ascending order of the value, each value once. They lie side by side, since nearly all
// come in ascending order, are never taken out and are then walked; what comes out of order waits
// at the end until somebody looks or until it is worth sorting in, so that no order of arrival is
// slow.
class ValueDescriptions {
  public:
    using Entry = std::pair<std::int32_t, std::string>;

    // Adds a description; behind an earlier one of the same value with " - " between them.
    void Add(std::int32_t value, std::string_view text);

    // The entries, valid until the next Add.
    const std::vector<Entry>& Sorted() const;

    bool IsEmpty() const { return entries.empty(); }
    void Clear();
    void Reserve(std::size_t count) { entries.reserve(count); }

  private:
    void SortIn() const;

    // Sorting is not seen from outside, and looking at entries changes nothing else.
    mutable std::vector<Entry> entries;
    mutable std::size_t sortedCount = 0;  // the entries behind wait in the order of arrival
};

}  // namespace vexil
