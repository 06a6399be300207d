// Which bits of a message belong to which signals.
//
// A bit of a frame is identified by its position: bit b % 8 of byte b / 8, where bit 0 of a byte is
// the least significant one.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "database/snapshot.h"

namespace vexil::tool {

inline constexpr std::uint64_t BitsInByte = 8;

// Only the first bits of a message have a layout. No frame is longer than 64 bytes, but a DBC file
// may describe signals and messages of any length.
inline constexpr std::uint64_t LayoutBits = 4096;

// The message of a DBC file that holds the signals without a message. They share no frame.
inline constexpr std::uint32_t IndependentSignalsId = 0xC0000000U;

// Means that there is no signal. Other values are indexes into Snapshot::signals.
inline constexpr std::uint32_t NoSignal = 0xFFFFFFFFU;

// Returns the position of a bit of the signal.
//   index  of the bit in the signal, from startBit on: from the least significant bit of a
//          little-endian signal upwards, from the most significant bit of a big-endian one
//          downwards
std::uint64_t BitPosition(const SignalFacts& signal, std::uint64_t index);

// Returns one more than the last byte in which the signal has a bit; 0 for a signal without bits.
std::uint64_t EndByte(const SignalFacts& signal);

// Two signals that share at least one bit and can be in one frame.
struct Overlap {
    std::uint32_t signal = NoSignal;
    std::uint32_t other = NoSignal;  // one that comes before it
};

// Finds the signals of the message that overlap another one, at most one overlap for each signal.
// First come the signals that every frame has, then the multiplexed ones.
std::vector<Overlap> FindOverlaps(const Snapshot& snapshot, const MessageFacts& message);

// Returns the multiplexer values for which the message has signals, ascending.
std::vector<std::uint32_t> MultiplexValues(const Snapshot& snapshot, const MessageFacts& message);

// A bit of a frame.
struct BitCell {
    std::uint32_t signal = NoSignal;  // the first signal that has the bit
    std::uint32_t signalCount = 0;    // more than one: an overlap
    std::uint32_t signalBit = 0;      // index of the bit in the signal; 0 is the least significant
    std::uint32_t other = NoSignal;   // the second signal that has the bit
};

// The frames of one message: a layout for each multiplexer value. Placing the signals that every
// frame has once makes the time proportional to the number of signals and of layouts.
class FrameLayouts {
  public:
    //   byteCount  the length of the frame; bits after its end and after LayoutBits are left out
    FrameLayouts(const Snapshot& snapshot, const MessageFacts& message, std::size_t byteCount);

    // Returns the bits of a frame, by position.
    //   multiplexValue  which multiplexed signals the frame has; without one, it has none of them
    std::vector<BitCell> At(std::optional<std::uint32_t> multiplexValue) const;

  private:
    const Snapshot& database;
    std::vector<BitCell> always;
    std::vector<std::uint32_t> multiplexed;  // signals, by multiplexer value
};

// Returns one of the layouts. For several layouts FrameLayouts is faster.
std::vector<BitCell> FrameLayout(const Snapshot& snapshot, const MessageFacts& message,
                                 std::optional<std::uint32_t> multiplexValue,
                                 std::size_t byteCount);

}  // namespace vexil::tool
