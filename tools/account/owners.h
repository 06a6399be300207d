// The messages and signals that were read so far, by the ids and names with which later statements
// refer to them.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "database/snapshot.h"

namespace vexil::tool {

inline constexpr std::uint32_t NoIndex = std::numeric_limits<std::uint32_t>::max();

class Owners {
  public:
    explicit Owners(const Snapshot& snapshot);

    // Adds the next message, or the next signal of the last message. The name is the raw name, from
    // the statement.
    void AddMessage(std::string_view name);
    void AddSignal(std::string_view name);

    std::uint32_t MessagesRead() const { return static_cast<std::uint32_t>(messageNames.size()); }
    std::uint32_t SignalsRead() const { return static_cast<std::uint32_t>(signalNames.size()); }

    // The first message of the whole file with an id, or NoIndex, and the number of such messages.
    std::uint32_t FirstMessage(std::uint32_t id) const;
    std::uint32_t MessageCount(std::uint32_t id) const;

    // The first signal that was read with a name, in the messages with an id; and the next one.
    std::uint32_t FirstSignal(std::uint32_t id, std::string_view name) const;
    std::uint32_t NextSignal(std::uint32_t signal) const { return nextSignals[signal]; }

    std::string_view MessageName(std::uint32_t message) const { return messageNames[message]; }
    std::string_view SignalName(std::uint32_t signal) const { return signalNames[signal]; }

  private:
    struct Key {
        std::uint32_t id;
        std::string_view name;

        bool operator==(const Key&) const = default;
    };
    struct KeyHash {
        std::size_t operator()(const Key& key) const;
    };
    struct SameId {
        std::uint32_t first;
        std::uint32_t count;
    };
    struct Chain {
        std::uint32_t first;
        std::uint32_t last;
    };

    const Snapshot& database;
    std::unordered_map<std::uint32_t, SameId> messagesById;
    std::unordered_map<Key, Chain, KeyHash> signalsByKey;
    std::vector<std::uint32_t> nextSignals;
    std::vector<std::string_view> messageNames;
    std::vector<std::string_view> signalNames;
};

}  // namespace vexil::tool
