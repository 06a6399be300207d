// CANMessage: what a message is and its defaults.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"

#include <utility>

#include "frame/model_text.h"

namespace vexil {

void CANMessage::Reset() {
    std::vector<std::uint32_t> kept = std::move(stepErrors);
    *this = CANMessage();
    stepErrors = std::move(kept);
}

void CANMessage::UpdateName() {
    name = IdentifierForm(longName);
}

void CANMessage::AddSignal(std::shared_ptr<CANSignal> signal) {
    if (signals.size() < MaxSignalsPerMessage) {
        signals.push_back(std::move(signal));
    }
}

}  // namespace vexil
