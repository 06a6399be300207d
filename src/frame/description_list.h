// DescriptionList, texts by raw value.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "text/constants.h"

namespace vexil {

// Entries in ascending order of the value, each value once. They lie side by side, since nearly all
// come in ascending order, are never taken out and are then walked; what comes out of order waits
// at the end until somebody looks or until it is worth sorting in, so that no order of arrival is
// slow. Exhausted memory leaves the entries as they were.
class DescriptionList {
  public:
    using Entry = std::pair<std::int32_t, std::string>;

    // Adds a description; behind an earlier one of the same value with " - " between them.
    void Add(std::int32_t value, std::string_view text);

    // Adds what another list has.
    void AddAll(const std::vector<Entry>& others);

    // Adds the pairs of a number and a quoted text that stand in text from from on. Kept on
    // purpose: a head that is no number does not end the list. Its opening quote is where the
    // search goes on, so that the pairs shift by one quote for the rest. REQUIRES: from > 0; a name
    // stands in front of it.
    void AddPairs(std::string_view text, Position from);

    // The entries, valid until the next addition.
    const std::vector<Entry>& Sorted() const;

    bool IsEmpty() const noexcept { return entries.empty(); }
    void Clear() noexcept;

  private:
    void SortIn() const;

    // Sorting is not seen from outside, and looking at entries changes nothing else.
    mutable std::vector<Entry> entries;
    mutable std::size_t sortedCount = 0;  // the entries behind wait in the order of arrival
};

}  // namespace vexil
