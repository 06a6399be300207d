// The orders in which messages are written.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "frame/can_message.h"
#include "text/arena_list.h"

namespace vexil {

// Whether a comes before b in a file that is ordered by id, the largest first.
bool CompareByIdDescending(const CANMessage& a, const CANMessage& b);

// Whether a comes before b in a file that is ordered by name, byte by byte, a shorter name first.
bool CompareByNameAscending(const CANMessage& a, const CANMessage& b);

// Returns the messages in the order of an Order constant; every other value keeps the order of the
// database. Equal messages keep their order. Intentional: ids descend, names ascend.
MessageList MessagesInOrder(const PagedList<CANMessage>& messages, std::uint32_t order);

}  // namespace vexil
