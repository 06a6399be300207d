// CANDatabase: the one instance and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <algorithm>

namespace vexil {

CANDatabase database;

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
