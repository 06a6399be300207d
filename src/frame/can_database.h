// CANDatabase, the whole state of the library.
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "attributes/attribute_table.h"
#include "frame/can_message.h"
#include "frame/descriptions.h"
#include "frame/owner_index.h"
#include "frame/parse_errors.h"
#include "text/arena.h"
#include "text/arena_list.h"
#include "vexil64.h"

namespace vexil {

class CANDatabase {
  public:
    DatabaseInfo info{};

    // All texts, messages, signals and errors until the next reset.
    Arena arena;

    PagedList<CANMessage> messages;           // in the order of reading or appending
    PagedList<RefusedStatement> parseErrors;  // in the order of the file

    OwnerIndex owners;          // messages and signals of the file; empty outside a read
    AttributeTable attributes;  // those of the file; without entries outside a read

    // Empties the database and gives its memory back. Intentional: busType stays, so a file without
    // it leaves the value of the file before.
    void Reset();

    // Empties what serves a read alone.
    void EndRead();

    // The value descriptions of the signal, valid until the next call.
    const Descriptions& DescriptionsOf(const CANSignal& signal);

  private:
    // Of the signals that were looked at last: hosts may go back and forth among a few.
    std::array<Descriptions, 4> looks;
    std::size_t oldestLook = 0;
};

// The one instance. It takes no code to make, so it is there from the start, and is emptied when
// the library is unloaded.
extern CANDatabase& database;

}  // namespace vexil
