// Snapshots for tests, made without a file: one message with its signals.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "database/snapshot.h"

namespace vexil::test {

class NetworkMaker {
  public:
    explicit NetworkMaker(std::uint32_t dlc, std::uint32_t id = 1) {
        tool::MessageFacts message;
        message.id = id;
        message.dlc = dlc;
        message.name = Text("Message");
        message.longName = message.name;
        snapshot.messages.push_back(message);
    }

    // Adds a signal. Its facts may be changed until the next one is added.
    tool::SignalFacts& Add(std::string_view name, std::uint32_t startBit, std::uint32_t bitLength,
                           std::uint32_t byteOrder = ByteOrderLittleEndian) {
        tool::SignalFacts signal;
        signal.name = Text(name);
        signal.longName = signal.name;
        signal.startBit = startBit;
        signal.bitLength = bitLength;
        signal.byteOrder = byteOrder;
        signal.factor = 1;
        signal.firstDescription = static_cast<std::uint32_t>(snapshot.descriptions.size());
        snapshot.signals.push_back(signal);
        ++snapshot.messages.back().signalCount;
        return snapshot.signals.back();
    }

    // The same for a signal that a multiplexer value selects.
    tool::SignalFacts& AddSelected(std::uint32_t value, std::string_view name,
                                   std::uint32_t startBit, std::uint32_t bitLength) {
        tool::SignalFacts& signal = Add(name, startBit, bitLength);
        signal.multiplexType = MultiplexSelected;
        signal.multiplexValue = value;
        return signal;
    }

    // Describes a value of the last signal. Values must ascend.
    void Describe(std::int32_t value, std::string_view text) {
        snapshot.descriptions.push_back({value, Text(text)});
        ++snapshot.signals.back().descriptionCount;
    }

    tool::TextRef Text(std::string_view text) {
        const tool::TextRef kept{static_cast<std::uint32_t>(snapshot.texts.size()),
                                 static_cast<std::uint32_t>(text.size())};
        snapshot.texts += text;
        return kept;
    }

    const tool::MessageFacts& Message() const { return snapshot.messages.front(); }

    tool::Snapshot snapshot;
};

}  // namespace vexil::test
