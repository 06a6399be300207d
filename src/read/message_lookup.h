// How the statements behind a BO_ find its messages.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "frame/can_database.h"

namespace vexil {

// Returns the messages read so far under the id, or null when there is none. Owned by the database.
inline MessagesOfId* FindMessages(std::uint32_t id) {
    const auto entry = database.messagesById.find(id);
    return entry == database.messagesById.end() ? nullptr : &entry->second;
}

}  // namespace vexil
