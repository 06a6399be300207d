// Marks, names and keys.
// SPDX-License-Identifier: MIT
#include "tool/comparison_text.h"

#include <string_view>
#include <vector>

namespace vexil::test {
namespace {

using tool::Nowhere;
using tool::Snapshot;

std::string Keys(tool::AspectSet aspects) {
    std::string keys;
    for (const tool::AspectRow& row : tool::AspectRows()) {
        if (aspects.Has(row.aspect)) {
            keys += " ";
            keys += row.key;
        }
    }
    return keys;
}

template <typename Facts>
std::string Line(const tool::Pair& pair, tool::AspectSet aspects, const Snapshot& before,
                 const std::vector<Facts>& allBefore, const Snapshot& after,
                 const std::vector<Facts>& allAfter) {
    if (pair.after == Nowhere) {
        return "-" + std::string(before.Text(allBefore[pair.before].name)) + "\n";
    }
    const std::string name(after.Text(allAfter[pair.after].name));
    return pair.before == Nowhere ? "+" + name + "\n" : "~" + name + ":" + Keys(aspects) + "\n";
}

template <typename Facts>
std::string Order(const std::vector<std::uint32_t>& moved, const Snapshot& snapshot,
                  const std::vector<Facts>& all) {
    std::string line;
    for (const std::uint32_t index : moved) {
        line += (line.empty() ? "order: " : ",") + std::string(snapshot.Text(all[index].name));
    }
    return line.empty() ? line : line + "\n";
}

}  // namespace

std::string TextOf(const tool::Comparison& comparison, const Snapshot& before,
                   const Snapshot& after) {
    std::string text;
    if (!comparison.aspects.IsEmpty()) {
        text += "network:" + Keys(comparison.aspects) + "\n";
    }
    for (const tool::MessageDifference& message : comparison.messages) {
        text +=
            Line(message.message, message.aspects, before, before.messages, after, after.messages);
        for (const tool::SignalDifference& signal : message.signals) {
            text += "  " + Line(signal.signal, signal.aspects, before, before.signals, after,
                                after.signals);
        }
        const std::string order = Order(message.movedSignals, after, after.signals);
        text += order.empty() ? "" : "  " + order;
    }
    return text + Order(comparison.movedMessages, after, after.messages);
}

}  // namespace vexil::test
