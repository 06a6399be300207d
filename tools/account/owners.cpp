// The indexes of messages and signals.
// SPDX-License-Identifier: MIT
#include "account/owners.h"

#include <functional>

namespace vexil::tool {

std::size_t Owners::KeyHash::operator()(const Key& key) const {
    constexpr std::size_t Spread = 0x9E3779B97F4A7C15U;
    return std::hash<std::string_view>()(key.name) ^ (key.id * Spread);
}

Owners::Owners(const Snapshot& snapshot) : snapshot_(snapshot) {
    messagesById_.reserve(snapshot.messages.size());
    signalsByKey_.reserve(snapshot.signals.size());
    nextSignals_.reserve(snapshot.signals.size());
    messageNames_.reserve(snapshot.messages.size());
    signalNames_.reserve(snapshot.signals.size());
    for (std::uint32_t index = 0; index < snapshot.messages.size(); ++index) {
        ++messagesById_.try_emplace(snapshot.messages[index].id, SameId{index, 0})
              .first->second.count;
    }
}

void Owners::AddMessage(std::string_view name) {
    messageNames_.push_back(name);
}

void Owners::AddSignal(std::string_view name) {
    const std::uint32_t signal = SignalsRead();
    signalNames_.push_back(name);
    nextSignals_.push_back(NoIndex);
    const std::uint32_t id = snapshot_.messages[messageNames_.size() - 1].id;
    const auto [entry, isNew] = signalsByKey_.try_emplace({id, name}, Chain{signal, signal});
    if (!isNew) {
        nextSignals_[entry->second.last] = signal;
        entry->second.last = signal;
    }
}

std::uint32_t Owners::FirstMessage(std::uint32_t id) const {
    const auto entry = messagesById_.find(id);
    return entry == messagesById_.end() ? NoIndex : entry->second.first;
}

std::uint32_t Owners::MessageCount(std::uint32_t id) const {
    const auto entry = messagesById_.find(id);
    return entry == messagesById_.end() ? 0 : entry->second.count;
}

std::uint32_t Owners::FirstSignal(std::uint32_t id, std::string_view name) const {
    const auto entry = signalsByKey_.find({id, name});
    return entry == signalsByKey_.end() ? NoIndex : entry->second.first;
}

}  // namespace vexil::tool
