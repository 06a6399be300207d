// CANSignal: what a signal is and its defaults.
// SPDX-License-Identifier: MIT
#include "frame/can_signal.h"

#include "frame/model_text.h"

namespace vexil {

// Member by member, since every statement of a file comes through here and strings that are empty
// already cost nothing to empty.
void CANSignal::Reset() {
    isEmpty = true;
    name.Clear();
    longName.Clear();
    unit.clear();
    unitUtf8.clear();
    comment.Clear();
    multiplexType = MultiplexNone;
    multiplexValue = 0;
    startBit = 0;
    bitLength = 0;
    byteOrder = ByteOrderLittleEndian;
    valueType = ValueUnsigned;
    factor = 0;
    offset = 0;
    minimum = 0;
    maximum = 0;
    receivers.Clear();
    enums.Clear();
    startValue = 0;
    inactiveValue = 0;
    rawName.Clear();
    hasNameSuffix = false;
}

void CANSignal::UpdateName() {
    name = IdentifierForm(longName);
}

const std::string& CANSignal::ReceiverList() const {
    return receivers.Joined();
}

}  // namespace vexil
