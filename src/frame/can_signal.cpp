// CANSignal: what a signal is and its defaults.
// SPDX-License-Identifier: MIT
#include "frame/can_signal.h"

#include <utility>

#include "frame/model_text.h"

namespace vexil {

void CANSignal::Reset() {
    std::vector<std::uint32_t> kept = std::move(stepErrors);
    *this = CANSignal();
    stepErrors = std::move(kept);
}

void CANSignal::UpdateName() {
    name = IdentifierForm(longName);
}

std::string CANSignal::ReceiverList() const {
    std::string list;
    for (const std::string& receiver : receivers) {
        list.append(list.empty() ? "" : ",").append(receiver);
    }
    return list;
}

void CANSignal::DescribeValue(std::int32_t value, std::string_view text) {
    const auto [entry, isNew] = enums.try_emplace(value, text);
    if (!isNew) {
        entry->second.append(" - ").append(text);
    }
}

}  // namespace vexil
