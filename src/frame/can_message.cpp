// CANMessage: what a message is and its defaults.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"

#include <utility>

#include "frame/model_text.h"

namespace vexil {
namespace {

constexpr std::size_t OrdinarySignalCount = 8;

}  // namespace

void CANMessage::Reset() {
    isEmpty = true;
    id = 0;
    longName.Clear();
    name.Clear();
    transmitter.clear();
    sendType.clear();
    cycleTime = 0;
    comment.Clear();
    dlc = 0;
    signals.clear();
    rawName.Clear();
}

void CANMessage::UpdateName() {
    name = IdentifierForm(longName);
}

void CANMessage::AddSignal(std::shared_ptr<CANSignal> signal) {
    if (signals.empty()) {
        signals.reserve(OrdinarySignalCount);
    }
    if (signals.size() < MaxSignalsPerMessage) {
        signals.push_back(std::move(signal));
    }
}

}  // namespace vexil
