// The indexes of messages and signals.
// SPDX-License-Identifier: MIT
#include "account/owners.h"

#include <functional>

namespace vexil::tool {

std::size_t Owners::KeyHash::operator()(const Key& key) const {
    constexpr std::size_t Spread = 0x9E3779B97F4A7C15U;
    return std::hash<std::string_view>()(key.name) ^ (key.id * Spread);
}

Owners::Owners(const Snapshot& snapshot) : database(snapshot) {
    messagesById.reserve(snapshot.messages.size());
    signalsByKey.reserve(snapshot.signals.size());
    nextSignals.reserve(snapshot.signals.size());
    messageNames.reserve(snapshot.messages.size());
    signalNames.reserve(snapshot.signals.size());
    for (std::uint32_t index = 0; index < snapshot.messages.size(); ++index) {
        ++messagesById.try_emplace(snapshot.messages[index].id, SameId{index, 0})
              .first->second.count;
    }
}

void Owners::AddMessage(std::string_view name) {
    messageNames.push_back(name);
}

void Owners::AddSignal(std::string_view name) {
    const std::uint32_t signal = SignalsRead();
    signalNames.push_back(name);
    nextSignals.push_back(NoIndex);
    const std::uint32_t id = database.messages[messageNames.size() - 1].id;
    const auto [entry, isNew] = signalsByKey.try_emplace({id, name}, Chain{signal, signal});
    if (!isNew) {
        nextSignals[entry->second.last] = signal;
        entry->second.last = signal;
    }
}

std::uint32_t Owners::FirstMessage(std::uint32_t id) const {
    const auto entry = messagesById.find(id);
    return entry == messagesById.end() ? NoIndex : entry->second.first;
}

std::uint32_t Owners::MessageCount(std::uint32_t id) const {
    const auto entry = messagesById.find(id);
    return entry == messagesById.end() ? 0 : entry->second.count;
}

std::uint32_t Owners::FirstSignal(std::uint32_t id, std::string_view name) const {
    const auto entry = signalsByKey.find({id, name});
    return entry == signalsByKey.end() ? NoIndex : entry->second.first;
}

}  // namespace vexil::tool
