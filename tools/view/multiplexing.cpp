// The tree of a multiplexer.
// SPDX-License-Identifier: MIT
#include "view/multiplexing.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "format/format.h"
#include "layout/bit_layout.h"
#include "view/display_text.h"

namespace vexil::tool {
namespace {

std::string NameOf(const Snapshot& snapshot, std::uint32_t signal) {
    return Printable(snapshot.Text(snapshot.signals[signal].name));
}

std::string Title(const Snapshot& snapshot, const MessageFacts& message) {
    std::string title;
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        const std::uint32_t signal = message.firstSignal + index;
        if (snapshot.signals[signal].multiplexType == MultiplexSelector) {
            title += title.empty() ? "multiplexing by " : "; another selector is ";
            title += NameOf(snapshot, signal);
        }
    }
    return title.empty() ? "multiplexing, without a selector" : title;
}

}  // namespace

std::string MultiplexValueInWords(const Snapshot& snapshot, std::uint32_t selector,
                                  std::uint32_t value) {
    std::string words = Format("{}", value);
    if (selector == NoSignal) {
        return words;
    }
    const SignalFacts& facts = snapshot.signals[selector];
    const auto* const begin = snapshot.descriptions.data() + facts.firstDescription;
    const auto* const end = begin + facts.descriptionCount;
    const auto wanted = static_cast<std::int32_t>(value);
    const auto* const found = std::lower_bound(
        begin, end, wanted,
        [](const DescriptionFacts& each, std::int32_t number) { return each.value < number; });
    if (found != end && found->value == wanted) {
        words += " \"" + Printable(snapshot.Text(found->text)) + "\"";
    }
    return words;
}

std::uint32_t FindSelector(const Snapshot& snapshot, const MessageFacts& message) {
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        if (snapshot.signals[message.firstSignal + index].multiplexType == MultiplexSelector) {
            return message.firstSignal + index;
        }
    }
    return NoSignal;
}

std::vector<std::string> DrawMultiplexing(const Snapshot& snapshot, const MessageFacts& message,
                                          const DrawStyle& style) {
    std::map<std::uint32_t, std::string> namesByValue;
    for (std::uint32_t index = 0; index < message.signalCount; ++index) {
        const std::uint32_t signal = message.firstSignal + index;
        const SignalFacts& facts = snapshot.signals[signal];
        if (facts.multiplexType == MultiplexSelected) {
            std::string& names = namesByValue[facts.multiplexValue];
            names += (names.empty() ? "" : ", ") + NameOf(snapshot, signal);
        }
    }
    if (namesByValue.empty()) {
        return {};
    }
    const std::uint32_t selector = FindSelector(snapshot, message);
    std::vector<std::string> lines = WrapText(Title(snapshot, message), style.width);
    for (const auto& [value, names] : namesByValue) {
        const bool isLast = value == namesByValue.rbegin()->first;
        std::string_view branch = style.ascii ? (isLast ? "`- " : "|- ") : (isLast ? "└─ " : "├─ ");
        const std::string text = MultiplexValueInWords(snapshot, selector, value) + ": " + names;
        for (const std::string& line : WrapText(text, style.width - DisplayWidth(branch))) {
            lines.push_back(std::string(branch) + line);
            branch = isLast ? "   " : style.ascii ? "|  " : "│  ";
        }
    }
    return lines;
}

std::string MultiplexMark(const SignalFacts& signal) {
    switch (signal.multiplexType) {
        case MultiplexSelector:
            return "M";
        case MultiplexSelected:
            return Format("m{}", signal.multiplexValue);
        default:
            return "";
    }
}

}  // namespace vexil::tool
