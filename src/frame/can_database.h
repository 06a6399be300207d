// CANDatabase, the whole state of the library.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "attributes/attribute_table.h"
#include "frame/can_message.h"
#include "frame/messages_of_id.h"
#include "vexil64.h"

namespace vexil {

class CANDatabase {
  public:
    CANDatabase();
    CANDatabase(const CANDatabase&) = delete;
    CANDatabase& operator=(const CANDatabase&) = delete;
    virtual ~CANDatabase() = default;

    DatabaseInfo info{};

    // The messages read so far under their id, several of which may share one; empty outside a
    // read.
    MessagesById messagesById;

    MessageList messages;                 // all messages in the order of reading or appending
    std::vector<ParseError> parseErrors;  // refused statements, in the order of the file
    AttributeTable attributes;            // those of the file; without entries outside a read

    // Empties the database. Kept on purpose: busType stays, so a file that does not tell it leaves
    // the value of the file before.
    void Reset();
};

// The one instance, made when the library is loaded and destroyed when it is unloaded.
extern CANDatabase database;

}  // namespace vexil
