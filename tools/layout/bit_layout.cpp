// Computes the bits of signals and the layouts of frames.
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

// Puts a signal into its bits of a frame. The signals of a bit are in the order of the message,
// in whichever order they are placed.
void PlaceBits(const SignalFacts& facts, std::uint32_t signal, std::vector<BitCell>& cells) {
    const bool isBigEndian = facts.byteOrder == ByteOrderBigEndian;
    for (std::uint32_t index = 0; index < facts.bitLength; ++index) {
        const std::uint64_t position = BitPosition(facts, index);
        if (position >= cells.size()) {
            return;  // so are all later ones: they are in the same or in later bytes
        }
        BitCell& cell = cells[position];
        if (cell.signalCount++ == 0 || signal < cell.signal) {
            cell.other = cell.signal;
            cell.signal = signal;
            cell.signalBit = isBigEndian ? facts.bitLength - 1 - index : index;
        } else {
            cell.other = std::min(cell.other, signal);
        }
    }
}

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

FrameLayouts::FrameLayouts(const Snapshot& snapshot, const MessageFacts& message,
                           std::size_t byteCount)
    : database(snapshot),
      always(std::min<std::uint64_t>(byteCount, LayoutBits / BitsInByte) * BitsInByte) {
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        const std::uint32_t signal = message.firstSignal + index;
        if (database.signals[signal].multiplexType == MultiplexSelected) {
            multiplexed.push_back(signal);
        } else {
            PlaceBits(database.signals[signal], signal, always);
        }
    }
    std::stable_sort(
        multiplexed.begin(), multiplexed.end(), [&snapshot](std::uint32_t one, std::uint32_t two) {
            return snapshot.signals[one].multiplexValue < snapshot.signals[two].multiplexValue;
        });
}

std::vector<BitCell> FrameLayouts::At(std::optional<std::uint32_t> multiplexValue) const {
    std::vector<BitCell> cells = always;
    if (!multiplexValue) {
        return cells;
    }
    const auto isBefore = [this](std::uint32_t signal, std::uint32_t value) {
        return database.signals[signal].multiplexValue < value;
    };
    for (auto each =
             std::lower_bound(multiplexed.begin(), multiplexed.end(), *multiplexValue, isBefore);
         each != multiplexed.end() && database.signals[*each].multiplexValue == *multiplexValue;
         ++each) {
        PlaceBits(database.signals[*each], *each, cells);
    }
    return cells;
}

std::vector<BitCell> FrameLayout(const Snapshot& snapshot, const MessageFacts& message,
                                 std::optional<std::uint32_t> multiplexValue,
                                 std::size_t byteCount) {
    return FrameLayouts(snapshot, message, byteCount).At(multiplexValue);
}

}  // namespace vexil::tool
