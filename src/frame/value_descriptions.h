// ValueDescriptions, what the raw values of a signal mean.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "frame/description_list.h"
#include "frame/shared_tail.h"
#include "text/constants.h"

namespace vexil {

// Lists that came one after the other.
class DescriptionLists {
  public:
    using Entry = DescriptionList::Entry;

    void Append(DescriptionList list);

    // Appends the list of the pairs that DescriptionList::AddPairs finds, once somebody looks.
    void AppendPairs(std::shared_ptr<const std::string> text, Position from);

    // The entries of the lists from position start on as those of one list, valid until the next
    // call. REQUIRES: start < size().
    const std::vector<Entry>& SortedFrom(std::size_t start);

    // How many these are.
    std::size_t CountFrom(std::size_t start);

    // NOLINTNEXTLINE(readability-identifier-naming): as every container has it
    std::size_t size() const noexcept { return lists.size(); }

  private:
    struct Item {
        DescriptionList list;
        std::shared_ptr<const std::string> pairs = {};  // text still to be taken apart, or null
        Position from = npos;                           // where its pairs start
    };

    // What several lists give. Put together when somebody looks, which few do, and kept for the
    // last start alone, since there may be as many starts as lists.
    struct Merging {
        std::size_t start = npos;
        DescriptionList list;
        std::vector<std::size_t> counts;  // of values, by start; empty until somebody asks
    };

    const std::vector<Entry>& SortedAt(std::size_t position);
    Merging& MergingOfLists();

    std::vector<Item> lists;
    std::unique_ptr<Merging> merging;  // null until somebody looks
};

// Nearly every list has one owner; several signals of one id and name share what a file gives them.
class ValueDescriptions {
  public:
    using Entry = DescriptionList::Entry;

    // Adds a description, to this signal alone; behind an earlier one of the same value with " - "
    // between them. Exhausted memory changes nothing.
    void Add(std::int32_t value, std::string_view text);

    // The list, if it is shared with nobody; null otherwise.
    DescriptionList* OwnList() noexcept { return std::get_if<DescriptionList>(&content); }

    // The lists that this one shares with others, or may share from now on.
    DescriptionLists& SharedLists();

    // Shares with other what is appended to its lists from now on. REQUIRES: HasNone().
    void Follow(ValueDescriptions& other);

    // The entries in ascending order of the value, each value once. Valid until the next call of
    // any that share them.
    const std::vector<Entry>& Sorted() const;

    // How many entries there are.
    std::size_t Count() const;

    // Whether nothing was given to it; pairs that nobody has looked at count as something.
    bool HasNone() const noexcept;
    void Clear() noexcept;

  private:
    using Tail = SharedTail<DescriptionLists>;

    std::variant<DescriptionList, Tail> content;  // of its own, or shared
};

// The lists that each of the owners shares: what is appended to them reaches all. REQUIRES: owners
// is not empty, and holds those of all earlier calls with later ones behind them.
template <typename Owners>
DescriptionLists& ListsOf(const Owners& owners) {
    const auto isNew = [](const auto& owner) { return owner.enums.HasNone(); };
    for (const auto& newcomer : Newcomers(owners, isNew)) {
        newcomer->enums.Follow(owners[0]->enums);
    }
    return owners[0]->enums.SharedLists();
}

}  // namespace vexil
