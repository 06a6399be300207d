// ValueDescriptions: adding, and looking at what several lists give together.
// SPDX-License-Identifier: MIT
#include "frame/value_descriptions.h"

#include <set>

namespace vexil {

void DescriptionLists::Append(std::shared_ptr<DescriptionList> list) {
    merging.reset();
    lists.push_back(std::move(list));
}

const std::vector<DescriptionList::Entry>& DescriptionLists::SortedFrom(std::size_t start) {
    if (start + 1 == lists.size()) {
        return lists[start]->Sorted();
    }
    if (merging == nullptr) {
        merging = std::make_unique<Merging>();
    }
    if (merging->start != start) {
        DescriptionList list;
        for (std::size_t at = start; at < lists.size(); ++at) {
            list.AddAll(lists[at]->Sorted());
        }
        merging->list = std::move(list);
        merging->start = start;
    }
    return merging->list.Sorted();
}

std::size_t DescriptionLists::CountFrom(std::size_t start) {
    if (start + 1 == lists.size()) {
        return lists[start]->Sorted().size();
    }
    if (merging == nullptr) {
        merging = std::make_unique<Merging>();
    }
    if (merging->counts.empty()) {
        std::vector<std::size_t> counts(lists.size());
        std::set<std::int32_t> values;
        for (std::size_t at = lists.size(); at-- > 0;) {
            for (const auto& entry : lists[at]->Sorted()) {
                values.insert(entry.first);
            }
            counts[at] = values.size();
        }
        merging->counts = std::move(counts);
    }
    return merging->counts[start];
}

DescriptionList* DescriptionLists::OwnList() const noexcept {
    return lists.size() == 1 && lists.front().use_count() == 1 ? lists.front().get() : nullptr;
}

void ValueDescriptions::Add(std::int32_t value, std::string_view text) {
    DescriptionList* own = !tail.IsEmpty() && tail.IsAlone() ? tail.Present().OwnList() : nullptr;
    if (own != nullptr) {
        own->Add(value, text);
        return;
    }
    const auto list = std::make_shared<DescriptionList>();
    list->AddAll(Sorted());
    list->Add(value, text);
    ValueDescriptions alone;
    alone.Append(list);
    *this = std::move(alone);
}

const std::vector<DescriptionList::Entry>& ValueDescriptions::Sorted() const {
    static const std::vector<Entry> none;
    return tail.IsEmpty() ? none : tail.Present().SortedFrom(tail.Start());
}

std::size_t ValueDescriptions::Count() const {
    return tail.IsEmpty() ? 0 : tail.Present().CountFrom(tail.Start());
}

}  // namespace vexil
