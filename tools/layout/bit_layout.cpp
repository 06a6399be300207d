// The bits of signals, and the frames that they make up.
// SPDX-License-Identifier: MIT
#include "layout/bit_layout.h"

#include <algorithm>
#include <unordered_map>

namespace vexil::tool {
namespace {

// The signals of one message, placed bit by bit.
class OverlapFinder {
  public:
    OverlapFinder(const Snapshot& snapshot, const MessageFacts& facts)
        : database(snapshot), message(facts), always(LayoutBits, NoSignal) {}

    // A multiplexed signal can overlap one that every frame has, so those come first.
    std::vector<Overlap> Run() {
        for (const bool isMultiplexed : {false, true}) {
            for (std::uint32_t index = 0; index < message.signalCount; ++index) {
                const std::uint32_t signal = message.firstSignal + index;
                const bool isSelected = database.signals[signal].multiplexType == MultiplexSelected;
                if (isSelected == isMultiplexed) {
                    Place(signal, isMultiplexed);
                }
            }
        }
        return std::move(overlaps);
    }

  private:
    void Place(std::uint32_t signal, bool isMultiplexed) {
        const SignalFacts& facts = database.signals[signal];
        std::uint32_t other = NoSignal;
        const std::uint64_t length = std::min<std::uint64_t>(facts.bitLength, LayoutBits);
        for (std::uint64_t index = 0; index < length; ++index) {
            const std::uint64_t position = BitPosition(facts, index);
            if (position >= LayoutBits) {
                continue;
            }
            std::uint32_t& owner = always[position];
            if (owner != NoSignal) {
                other = owner;
            } else if (isMultiplexed) {
                const std::uint64_t key = facts.multiplexValue * LayoutBits + position;
                const auto [entry, isNew] = multiplexed.try_emplace(key, signal);
                other = isNew ? other : entry->second;
            } else {
                owner = signal;
            }
        }
        if (other != NoSignal) {
            overlaps.push_back({signal, other});
        }
    }

    const Snapshot& database;
    const MessageFacts& message;
    std::vector<Overlap> overlaps;
    std::vector<std::uint32_t> always;                             // by position
    std::unordered_map<std::uint64_t, std::uint32_t> multiplexed;  // by value and position
};

}  // namespace

std::uint64_t BitPosition(const SignalFacts& signal, std::uint64_t index) {
    if (signal.byteOrder != ByteOrderBigEndian) {
        return signal.startBit + index;
    }
    // A big-endian signal goes on to the lower bits of its byte, then to the highest of the next
    // one. With the bits of each byte numbered from the highest one, it ascends without a gap.
    const auto mirror = [](std::uint64_t bit) {
        return bit - bit % BitsInByte + (BitsInByte - 1 - bit % BitsInByte);
    };
    return mirror(mirror(signal.startBit) + index);
}

std::uint64_t EndByte(const SignalFacts& signal) {
    return signal.bitLength == 0
               ? 0
               : BitPosition(signal, std::uint64_t{signal.bitLength} - 1) / BitsInByte + 1;
}

std::vector<Overlap> FindOverlaps(const Snapshot& snapshot, const MessageFacts& message) {
    return message.id == IndependentSignalsId ? std::vector<Overlap>()
                                              : OverlapFinder(snapshot, message).Run();
}

std::vector<std::uint32_t> MultiplexValues(const Snapshot& snapshot, const MessageFacts& message) {
    std::vector<std::uint32_t> values;
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        const SignalFacts& signal = snapshot.signals[message.firstSignal + index];
        if (signal.multiplexType == MultiplexSelected) {
            values.push_back(signal.multiplexValue);
        }
    }
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
}

std::vector<BitCell> FrameLayout(const Snapshot& snapshot, const MessageFacts& message,
                                 std::optional<std::uint32_t> multiplexValue,
                                 std::size_t byteCount) {
    std::vector<BitCell> cells(std::min<std::uint64_t>(byteCount, LayoutBits / BitsInByte) *
                               BitsInByte);
    for (std::uint32_t number = 0; number < message.signalCount; ++number) {
        const std::uint32_t signal = message.firstSignal + number;
        const SignalFacts& facts = snapshot.signals[signal];
        if (facts.multiplexType == MultiplexSelected && multiplexValue != facts.multiplexValue) {
            continue;
        }
        const bool isBigEndian = facts.byteOrder == ByteOrderBigEndian;
        const std::uint32_t length =
            static_cast<std::uint32_t>(std::min<std::uint64_t>(facts.bitLength, LayoutBits));
        for (std::uint32_t index = 0; index < length; ++index) {
            const std::uint64_t position = BitPosition(facts, index);
            if (position >= cells.size()) {
                continue;
            }
            BitCell& cell = cells[position];
            if (cell.signalCount++ == 0) {
                cell.signal = signal;
                cell.signalBit = isBigEndian ? facts.bitLength - 1 - index : index;
            }
        }
    }
    return cells;
}

}  // namespace vexil::tool
