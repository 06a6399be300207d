// Counts and words for both views of a comparison.
// SPDX-License-Identifier: MIT
#include "view/diff_report.h"

#include <array>

namespace vexil::tool {
namespace {

template <std::size_t Size>
std::string_view WordOf(const std::array<std::string_view, Size>& words, std::size_t index) {
    return index < Size ? words[index] : "unknown";
}

}  // namespace

DiffCounts CountMessages(const Comparison& comparison) {
    DiffCounts counts;
    for (const MessageDifference& each : comparison.messages) {
        std::size_t& count = each.message.IsInBoth()         ? counts.changed
                             : each.message.after == Nowhere ? counts.removed
                                                             : counts.added;
        ++count;
    }
    counts.moved = comparison.movedMessages.size();
    return counts;
}

std::string_view ValueTypeWord(const SignalFacts& signal) {
    static constexpr std::array<std::string_view, 4> Words = {"unsigned", "signed", "float32",
                                                              "float64"};
    return WordOf(Words, signal.valueType);
}

std::string_view ByteOrderWord(const SignalFacts& signal) {
    static constexpr std::array<std::string_view, 2> Words = {"big-endian", "little-endian"};
    return WordOf(Words, signal.byteOrder);
}

std::string_view ProtocolWord(const DatabaseInfo& info) {
    static constexpr std::array<std::string_view, 3> Words = {"plain CAN", "J1939", "NMEA 2000"};
    return WordOf(Words, info.protocolType);
}

std::string_view BusTypeWord(const DatabaseInfo& info) {
    static constexpr std::array<std::string_view, 2> Words = {"classic CAN", "CAN FD"};
    return WordOf(Words, info.busType);
}

}  // namespace vexil::tool
