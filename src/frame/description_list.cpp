// DescriptionList: adding, taking apart and sorting.
// SPDX-License-Identifier: MIT
#include "frame/description_list.h"

#include <algorithm>
#include <iterator>

#include "text/lexical.h"

namespace vexil {
namespace {

using Entry = DescriptionList::Entry;

constexpr std::string_view Separator = " - ";
constexpr std::size_t OrdinaryPairCount = 16;

bool IsLess(const Entry& a, const Entry& b) {
    return a.first < b.first;
}

void Join(std::string& text, std::string_view more) {
    text.reserve(text.size() + Separator.size() + more.size());
    text.append(Separator).append(more);
}

// Sets memory aside for the texts that Join puts together, so that it cannot fail on the way.
void ReserveForJoins(std::vector<Entry>& sorted) {
    for (auto first = sorted.begin(); first != sorted.end();) {
        std::size_t size = first->second.size();
        auto next = std::next(first);
        for (; next != sorted.end() && next->first == first->first; ++next) {
            size += Separator.size() + next->second.size();
        }
        first->second.reserve(size);
        first = next;
    }
}

}  // namespace

void DescriptionList::Add(std::int32_t value, std::string_view text) {
    // As many waiting as sorted: the work of sorting in is then spread over as many additions.
    if (entries.size() - sortedCount > sortedCount) {
        SortIn();
    }
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
}

void DescriptionList::AddAll(const std::vector<Entry>& others) {
    for (const auto& [value, text] : others) {
        Add(value, text);
    }
}

void DescriptionList::AddPairs(std::string_view text, Position from) {
    std::vector<std::pair<std::int32_t, std::string_view>> found;
    found.reserve(OrdinaryPairCount);
    Position pos = from - 1;
    while (pos < text.size()) {
        std::int32_t value = 0;
        if (TryParseI32(TextUpToChar(text, pos + 1, '"', pos), value)) {
            found.emplace_back(value, TextUpToChar(text, pos + 1, '"', pos));
        }
    }
    entries.reserve(found.size());
    for (const auto& [value, description] : found) {
        Add(value, description);
    }
}

const std::vector<Entry>& DescriptionList::Sorted() const {
    SortIn();
    return entries;
}

void DescriptionList::Clear() noexcept {
    entries.clear();
    sortedCount = 0;
}

void DescriptionList::SortIn() const {
    if (sortedCount == entries.size()) {
        return;
    }
    const auto sortedEnd = entries.begin() + static_cast<std::ptrdiff_t>(sortedCount);
    std::stable_sort(sortedEnd, entries.end(), IsLess);
    std::inplace_merge(entries.begin(), sortedEnd, entries.end(), IsLess);
    // Equal values stand in the order of arrival now; the first takes the texts of the others.
    // Until it has them none counts as sorted.
    sortedCount = 0;
    ReserveForJoins(entries);
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
