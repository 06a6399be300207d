// Counting messages and bits.
// SPDX-License-Identifier: MIT
#include "view/network_facts.h"

#include <algorithm>
#include <unordered_map>

#include "layout/bit_layout.h"

namespace vexil::tool {
namespace {

std::uint64_t CountUsed(const Snapshot& snapshot, const MessageFacts& message, std::uint64_t bits) {
    std::vector<bool> used(bits);
    for (std::uint32_t number = 0; number < message.signalCount; ++number) {
        const SignalFacts& signal = snapshot.signals[message.firstSignal + number];
        const std::uint64_t length = std::min<std::uint64_t>(signal.bitLength, LayoutBits);
        for (std::uint64_t index = 0; index < length; ++index) {
            const std::uint64_t position = BitPosition(signal, index);
            if (position < bits) {
                used[position] = true;
            }
        }
    }
    return static_cast<std::uint64_t>(std::count(used.begin(), used.end(), true));
}

}  // namespace

std::vector<SenderFacts> FindSenders(const Snapshot& snapshot) {
    std::vector<SenderFacts> senders;
    std::unordered_map<std::string_view, std::size_t> places;
    for (const MessageFacts& message : snapshot.messages) {
        const std::string_view name = snapshot.Text(message.transmitter);
        const auto [entry, isNew] = places.try_emplace(name, senders.size());
        if (isNew) {
            senders.push_back({name});
        }
        SenderFacts& sender = senders[entry->second];
        ++sender.messages;
        sender.signals += message.signalCount;
        if (message.cycleTime > 0) {
            constexpr double MillisecondsPerSecond = 1000;
            const double frames = MillisecondsPerSecond / message.cycleTime;
            sender.framesPerSecond += frames;
            sender.bytesPerSecond += frames * message.dlc;
        }
    }
    return senders;
}

BitUse CountBits(const Snapshot& snapshot) {
    BitUse use;
    for (const MessageFacts& message : snapshot.messages) {
        if (message.id != IndependentSignalsId) {
            const std::uint64_t bits = std::min(message.dlc * BitsInByte, LayoutBits);
            use.bits += bits;
            use.used += CountUsed(snapshot, message, bits);
        }
    }
    return use;
}

}  // namespace vexil::tool
