// The value descriptions of a signal.
// SPDX-License-Identifier: MIT
#include "frame/value_descriptions.h"

#include <algorithm>
#include <iterator>

namespace vexil {
namespace {

using Entry = ValueDescriptions::Entry;

bool IsLess(const Entry& a, const Entry& b) {
    return a.first < b.first;
}

void Join(std::string& text, std::string_view more) {
    text.append(" - ").append(more);
}

}  // namespace

void ValueDescriptions::Add(std::int32_t value, std::string_view text) {
    const auto sortedEnd = entries.begin() + static_cast<std::ptrdiff_t>(sortedCount);
    const bool isSorted = sortedCount == entries.size();
    if (isSorted && (entries.empty() || entries.back().first < value)) {
        entries.emplace_back(value, text);
        ++sortedCount;
        return;
    }
    const auto entry = std::lower_bound(
        entries.begin(), sortedEnd, value,
        [](const Entry& candidate, std::int32_t wanted) { return candidate.first < wanted; });
    if (entry != sortedEnd && entry->first == value) {
        Join(entry->second, text);
        return;
    }
    entries.emplace_back(value, text);
    // As many waiting as sorted: the work of sorting in is then spread over as many additions.
    if (entries.size() - sortedCount > sortedCount) {
        SortIn();
    }
}

const std::vector<Entry>& ValueDescriptions::Sorted() const {
    SortIn();
    return entries;
}

void ValueDescriptions::Clear() {
    entries.clear();
    sortedCount = 0;
}

void ValueDescriptions::SortIn() const {
    if (sortedCount == entries.size()) {
        return;
    }
    const auto sortedEnd = entries.begin() + static_cast<std::ptrdiff_t>(sortedCount);
    std::stable_sort(sortedEnd, entries.end(), IsLess);
    std::inplace_merge(entries.begin(), sortedEnd, entries.end(), IsLess);
    // Equal values stand in the order of arrival now; the first takes the texts of the others.
    auto last = entries.begin();
    for (auto entry = std::next(last); entry != entries.end(); ++entry) {
        if (entry->first == last->first) {
            Join(last->second, entry->second);
        } else if (++last != entry) {
            *last = std::move(*entry);
        }
    }
    entries.erase(std::next(last), entries.end());
    sortedCount = entries.size();
}

}  // namespace vexil
