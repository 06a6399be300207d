// CANDatabase: the one instance and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>

namespace vexil {
namespace {

alignas(CANDatabase) std::array<std::byte, sizeof(CANDatabase)> memory;

}  // namespace

CANDatabase& database = *::new (memory.data()) CANDatabase;

namespace {

// It is emptied but not destroyed: exit handlers of a host may run later, and call.
const std::unique_ptr<CANDatabase, void (*)(CANDatabase*)> lastReset(&database,
                                                                     [](CANDatabase* instance) {
                                                                         instance->Reset();
                                                                     });

}  // namespace

void CANDatabase::Reset() {
    info.protocolType = ProtocolPlainCan;
    messages.Clear();
    parseErrors.Clear();
    EndRead();
    for (Descriptions& look : looks) {
        look.Clear();
    }
    arena.Release();
}

void CANDatabase::EndRead() {
    owners.Clear();
    attributes.ClearEntries();
}

const Descriptions& CANDatabase::DescriptionsOf(const CANSignal& signal) {
    auto* look = std::find_if(looks.begin(), looks.end(), [&](const Descriptions& candidate) {
        return candidate.IsOf(signal.notes);
    });
    if (look == looks.end()) {
        look = &looks[oldestLook];
        oldestLook = (oldestLook + 1) % looks.size();
    }
    look->LookAt(signal.notes);
    return *look;
}

}  // namespace vexil
