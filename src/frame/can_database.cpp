// CANDatabase: the one instance and its reset.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"

#include "attributes/reserved_names.h"

namespace vexil {

CANDatabase database;

CANDatabase::CANDatabase() {
    Reset();
}

void CANDatabase::Reset() {
    info.protocolType = ProtocolPlainCan;
    messages.clear();
    parseErrors.clear();
    attributes.ClearEntries();
    attributes.reservedAttributeNames = ReservedAttributeNames;
}

}  // namespace vexil
