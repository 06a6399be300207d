// ValueDescriptions, what the raw values of a signal mean.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "frame/description_list.h"
#include "frame/shared_tail.h"
#include "text/constants.h"

namespace vexil {

// Lists that came one after the other.
class DescriptionLists {
  public:
    void Append(std::shared_ptr<DescriptionList> list);

    // The entries of the lists from position start on as those of one list, valid until the next
    // call. REQUIRES: start < size().
    const std::vector<DescriptionList::Entry>& SortedFrom(std::size_t start);

    // How many these are.
    std::size_t CountFrom(std::size_t start);

    // The list, if it is the only one and nothing else holds it; null otherwise.
    DescriptionList* OwnList() const noexcept;

    // NOLINTNEXTLINE(readability-identifier-naming): as every container has it
    std::size_t size() const noexcept { return lists.size(); }

  private:
    // What several lists give. Put together when somebody looks, which few do, and kept for the
    // last start alone, since there may be as many starts as lists.
    struct Merging {
        std::size_t start = npos;
        DescriptionList list;
        std::vector<std::size_t> counts;  // of values, by start; empty until somebody asks
    };

    std::vector<std::shared_ptr<DescriptionList>> lists;
    std::unique_ptr<Merging> merging;  // null until somebody looks
};

// Signals of one id and name share what a file gives them.
class ValueDescriptions {
  public:
    using Entry = DescriptionList::Entry;

    // Adds a description, to this signal alone; behind an earlier one of the same value with " - "
    // between them. Exhausted memory changes nothing.
    void Add(std::int32_t value, std::string_view text);

    // Adds the list, to all that share this one.
    void Append(std::shared_ptr<DescriptionList> list) { tail.Whole().Append(std::move(list)); }

    // Shares with other what is appended to it from now on. REQUIRES: HasNoList().
    void Follow(ValueDescriptions& other) { tail.Follow(other.tail, other.tail.Whole().size()); }

    // The entries in ascending order of the value, each value once. Valid until the next call of
    // any that share them.
    const std::vector<Entry>& Sorted() const;

    // How many entries there are.
    std::size_t Count() const;

    bool HasNoList() const noexcept { return tail.IsEmpty(); }
    void Clear() noexcept { tail.Clear(); }

  private:
    SharedTail<DescriptionLists> tail;
};

// Appends the list to the descriptions of each of the owners. REQUIRES: owners is not empty, and
// holds those of all earlier calls with later ones behind them.
template <typename Owners>
void AppendDescriptions(const Owners& owners, std::shared_ptr<DescriptionList> list) {
    const auto isNew = [](const auto& owner) { return owner.enums.HasNoList(); };
    for (const auto& newcomer : Newcomers(owners, isNew)) {
        newcomer->enums.Follow(owners[0]->enums);
    }
    owners[0]->enums.Append(std::move(list));
}

}  // namespace vexil
