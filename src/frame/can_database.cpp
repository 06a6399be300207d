// CANDatabase: the one instance and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <algorithm>
#include <memory>

namespace vexil {
namespace {

// An object that is there before any code runs, and is not destroyed: static objects of a host may
// call in their constructors, and its exit handlers after those of the library.
union Instance {
    constexpr Instance() : object() {}
    ~Instance() {}
    CANDatabase object;
};
constinit Instance instance;

// Gives its memory back at exit.
void ResetLast(CANDatabase* last) {
    last->Reset();
}
const std::unique_ptr<CANDatabase, void (*)(CANDatabase*)> lastReset(&instance.object, ResetLast);

}  // namespace

constinit CANDatabase& database = instance.object;

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
