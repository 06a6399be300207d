// CANDatabase: the one instance and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include <algorithm>
#include <memory>

namespace vexil {
namespace {

// An object that exists before any code runs, and is not destroyed: constructors of static objects
// of a host may call the library, and so may exit handlers that run after those of the library.
union Instance {  // NOLINT(cppcoreguidelines-special-member-functions)
    constexpr Instance() : object() {}
    ~Instance() {}  // NOLINT(modernize-use-equals-default): the default is deleted
    CANDatabase object;
};
constinit Instance instance;

void ResetAtExit(CANDatabase* last) {
    last->Reset();
}
// NOLINTNEXTLINE(cppcoreguidelines-interfaces-global-init): the reference is a constant
const std::unique_ptr<CANDatabase, void (*)(CANDatabase*)> lastReset(&database, ResetAtExit);

}  // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): it always holds the object
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
