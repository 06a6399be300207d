// CANDatabase, the complete state of the library.
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
    AttributeTable attributes;  // attributes of the file; without entries outside a read

    // Empties the database and frees its memory. Intentional: busType stays, so a file without the
    // attribute keeps the value of the file before.
    void Reset();

    // Empties the tables that only a read needs.
    void EndRead();

    // The value descriptions of the signal, valid until the next call.
    const Descriptions& DescriptionsOf(const CANSignal& signal);

  private:
    // Those of the signals that were fetched last: hosts may alternate among a few.
    std::array<Descriptions, 4> looks;
    std::size_t oldestLook = 0;
};

// The only instance. It is a constant at load time, so it needs no code to exist, and is emptied
// when the library is unloaded.
extern CANDatabase& database;

}  // namespace vexil
