// The orders in which messages are written.
// SPDX-License-Identifier: MIT
#include "write/write_order.h"

#include <algorithm>

namespace vexil {

bool CompareByIdDescending(const CANMessage& a, const CANMessage& b) {
    return a.id > b.id;
}

bool CompareByNameAscending(const CANMessage& a, const CANMessage& b) {
    return std::string_view(a.name) < std::string_view(b.name);
}

MessageList MessagesInOrder(const MessageList& messages, std::uint32_t order) {
    MessageList ordered = messages;
    if (order == OrderByIdDescending) {
        std::stable_sort(ordered.begin(), ordered.end(), [](const auto& a, const auto& b) {
            return CompareByIdDescending(*a, *b);
        });
    } else if (order == OrderByNameAscending) {
        std::stable_sort(ordered.begin(), ordered.end(), [](const auto& a, const auto& b) {
            return CompareByNameAscending(*a, *b);
        });
    }
    return ordered;
}

}  // namespace vexil
