// ValueDescriptions: adding, sharing, and looking at what several lists give together.
// SPDX-License-Identifier: MIT
#include "frame/value_descriptions.h"

#include <set>

namespace vexil {

void DescriptionLists::Append(DescriptionList list) {
    merging.reset();
    lists.push_back({std::move(list)});
}

void DescriptionLists::AppendPairs(std::shared_ptr<const std::string> text, Position from) {
    merging.reset();
    lists.push_back({{}, std::move(text), from});
}

const std::vector<DescriptionList::Entry>& DescriptionLists::SortedAt(std::size_t position) {
    Item& item = lists[position];
    if (item.pairs != nullptr) {
        DescriptionList list;
        list.AddPairs(*item.pairs, item.from);
        item.list = std::move(list);
        item.pairs = nullptr;
    }
    return item.list.Sorted();
}

DescriptionLists::Merging& DescriptionLists::MergingOfLists() {
    if (merging == nullptr) {
        merging = std::make_unique<Merging>();
    }
    return *merging;
}

const std::vector<DescriptionList::Entry>& DescriptionLists::SortedFrom(std::size_t start) {
    if (start + 1 == lists.size()) {
        return SortedAt(start);
    }
    Merging& merged = MergingOfLists();
    if (merged.start != start) {
        DescriptionList list;
        for (std::size_t at = start; at < lists.size(); ++at) {
            list.AddAll(SortedAt(at));
        }
        merged.list = std::move(list);
        merged.start = start;
    }
    return merged.list.Sorted();
}

std::size_t DescriptionLists::CountFrom(std::size_t start) {
    if (start + 1 == lists.size()) {
        return SortedAt(start).size();
    }
    Merging& merged = MergingOfLists();
    if (merged.counts.empty()) {
        std::vector<std::size_t> counts(lists.size());
        std::set<std::int32_t> values;
        for (std::size_t at = lists.size(); at-- > 0;) {
            for (const Entry& entry : SortedAt(at)) {
                values.insert(entry.first);
            }
            counts[at] = values.size();
        }
        merged.counts = std::move(counts);
    }
    return merged.counts[start];
}

void ValueDescriptions::Add(std::int32_t value, std::string_view text) {
    if (DescriptionList* own = OwnList()) {
        own->Add(value, text);
        return;
    }
    DescriptionList list;
    list.AddAll(Sorted());
    list.Add(value, text);
    content = std::move(list);
}

DescriptionLists& ValueDescriptions::SharedLists() {
    if (DescriptionList* own = OwnList()) {
        Tail tail;
        if (!own->IsEmpty()) {
            tail.Whole().Append(std::move(*own));
        }
        content = std::move(tail);
    }
    return std::get_if<Tail>(&content)->Whole();
}

void ValueDescriptions::Follow(ValueDescriptions& other) {
    const std::size_t start = other.SharedLists().size();
    content = Tail(*std::get_if<Tail>(&other.content), start);
}

const std::vector<DescriptionList::Entry>& ValueDescriptions::Sorted() const {
    if (const auto* own = std::get_if<DescriptionList>(&content)) {
        return own->Sorted();
    }
    static const std::vector<Entry> none;
    const Tail& tail = *std::get_if<Tail>(&content);
    return tail.IsEmpty() ? none : tail.Whole().SortedFrom(tail.Start());
}

std::size_t ValueDescriptions::Count() const {
    if (const auto* own = std::get_if<DescriptionList>(&content)) {
        return own->Sorted().size();
    }
    const Tail& tail = *std::get_if<Tail>(&content);
    return tail.IsEmpty() ? 0 : tail.Whole().CountFrom(tail.Start());
}

bool ValueDescriptions::HasNone() const noexcept {
    const auto* own = std::get_if<DescriptionList>(&content);
    return own != nullptr ? own->IsEmpty() : std::get_if<Tail>(&content)->IsEmpty();
}

void ValueDescriptions::Clear() noexcept {
    if (DescriptionList* own = OwnList()) {
        own->Clear();
    } else {
        content = DescriptionList();
    }
}

}  // namespace vexil
