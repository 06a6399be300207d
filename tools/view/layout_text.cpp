// Bits become runs.
// SPDX-License-Identifier: MIT
#include "view/layout_text.h"

#include <algorithm>
#include <vector>

#include "layout/bit_layout.h"

namespace vexil::tool {
namespace {

std::string Letters(std::uint32_t number) {
    constexpr std::uint32_t LetterCount = 26;
    std::string letters;
    for (std::uint32_t rest = number + 1; rest > 0; rest = (rest - 1) / LetterCount) {
        letters.insert(letters.begin(), static_cast<char>('a' + (rest - 1) % LetterCount));
    }
    return letters;
}

bool SameOwner(const BitCell& one, const BitCell& other) {
    return one.signal == other.signal && (one.signalCount > 1) == (other.signalCount > 1);
}

}  // namespace

std::size_t ShownBytes(const Snapshot& snapshot, const MessageFacts& message) {
    std::uint64_t bytes = message.dlc;
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        bytes = std::max(bytes, EndByte(snapshot.signals[message.firstSignal + index]));
    }
    return std::min<std::uint64_t>(bytes, LongestFrame);
}

std::string LayoutText(const Snapshot& snapshot, const MessageFacts& message,
                       std::optional<std::uint32_t> multiplexValue) {
    const std::vector<BitCell> cells =
        FrameLayout(snapshot, message, multiplexValue, ShownBytes(snapshot, message));
    std::string runs;
    for (auto begin = cells.begin(); begin != cells.end();) {
        const auto end = std::find_if(
            begin, cells.end(), [&](const BitCell& cell) { return !SameOwner(cell, *begin); });
        runs += std::to_string(end - begin);
        runs += begin->signalCount == 0 ? "." : Letters(begin->signal - message.firstSignal);
        runs += begin->signalCount > 1 ? "!" : "";
        begin = end;
    }
    return runs;
}

}  // namespace vexil::tool
