// The orders in which messages are written.
// SPDX-License-Identifier: MIT
#include "write/write_order.h"

#include <algorithm>

namespace vexil {

bool CompareByIdDescending(const CANMessage& a, const CANMessage& b) {
    return a.id > b.id;
}

bool CompareByNameAscending(const CANMessage& a, const CANMessage& b) {
    return a.name < b.name;
}

MessageList MessagesInOrder(const PagedList<CANMessage>& messages, std::uint32_t order) {
    MessageList ordered(messages.Size());
    for (std::size_t at = 0; at < ordered.size(); ++at) {
        ordered[at] = &messages[at];
    }
    const auto sortBy = [&](auto comesBefore) {
        std::stable_sort(
            ordered.begin(), ordered.end(),
            [&](const CANMessage* a, const CANMessage* b) { return comesBefore(*a, *b); });
    };
    if (order == OrderByIdDescending) {
        sortBy(CompareByIdDescending);
    } else if (order == OrderByNameAscending) {
        sortBy(CompareByNameAscending);
    }
    return ordered;
}

}  // namespace vexil
