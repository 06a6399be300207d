// Whether the cost of comparing two networks grows with their size and no faster, also where ids
// and names are all the same, or all different, or in another order. Sorting adds a logarithm.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "comparison/comparison.h"
#include "limits.h"
#include "steps.h"

namespace vexil::growth {
namespace {

using tool::Comparison;
using tool::Snapshot;

constexpr std::uint32_t Smallest = 1024;
constexpr std::uint32_t Largest = 64 * Smallest;
constexpr std::uint64_t MaxStepsPerSignal = 20000;
constexpr double MaxRatio = 5.3;  // of four times the signals

tool::TextRef AddText(Snapshot& network, const std::string& text) {
    const tool::TextRef ref{static_cast<std::uint32_t>(network.texts.size()),
                            static_cast<std::uint32_t>(text.size())};
    network.texts += text;
    return ref;
}

// How two networks are made.
struct Row {
    const char* name;
    std::uint32_t signalsOfMessage;
    // The number in the name of the n-th message, or of the n-th signal where a message has
    // several, of the second network.
    std::uint32_t (*nameOf)(std::uint32_t index, std::uint32_t count);

    // Found by the test framework.
    friend void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
};

std::uint32_t Same(std::uint32_t, std::uint32_t) {
    return 0;
}

std::uint32_t Backwards(std::uint32_t index, std::uint32_t count) {
    return count - 1 - index;
}

std::uint32_t Others(std::uint32_t index, std::uint32_t count) {
    return count + index;
}

// All over the place. Precondition: count is a power of two.
std::uint32_t Scattered(std::uint32_t index, std::uint32_t count) {
    return index * 2654435761U % count;
}

std::uint32_t AsTheyAre(std::uint32_t index, std::uint32_t) {
    return index;
}

Snapshot MakeNetwork(const Row& row, std::uint32_t signals, bool isSecond) {
    Snapshot network;
    const auto number = [&](std::uint32_t index, std::uint32_t count) {
        return isSecond || row.nameOf == Same ? row.nameOf(index, count) : index;
    };
    const std::uint32_t messages = signals / row.signalsOfMessage;
    for (std::uint32_t message = 0; message < messages; ++message) {
        tool::MessageFacts facts;
        facts.id = row.signalsOfMessage == 1 ? number(message, messages) : message;
        facts.name = facts.longName = AddText(network, "Message" + std::to_string(facts.id));
        facts.comment = AddText(network, isSecond ? "new" : "old");
        facts.firstSignal = static_cast<std::uint32_t>(network.signals.size());
        facts.signalCount = row.signalsOfMessage;
        network.messages.push_back(facts);
        for (std::uint32_t signal = 0; signal < facts.signalCount; ++signal) {
            tool::SignalFacts each;
            each.startBit = number(signal, facts.signalCount);
            each.name = each.longName =
                AddText(network, "ASignalOfALongName" + std::to_string(each.startBit));
            each.receiverList = AddText(network, isSecond ? "One,Two,Three" : "Three,Two");
            each.firstDescription = static_cast<std::uint32_t>(network.descriptions.size());
            each.descriptionCount = 2;
            network.descriptions.push_back({0, each.name});
            network.descriptions.push_back({isSecond ? 2 : 1, each.name});
            network.signals.push_back(each);
        }
    }
    return network;
}

class ComparisonGrowth : public testing::TestWithParam<Row> {};

TEST_P(ComparisonGrowth, IsProportionalToTheNetworks) {
    Cost quarter;
    for (std::uint32_t count = Smallest; count <= Largest; count *= 4) {
        const Snapshot before = MakeNetwork(GetParam(), count, false);
        const Snapshot after = MakeNetwork(GetParam(), count, true);
        Comparison comparison;
        const Cost cost =
            Measure([&] { comparison = Compare(before, after); }, MaxStepsPerSignal * count);
        EXPECT_FALSE(comparison.IsEmpty());
        if (count != Smallest) {
            SCOPED_TRACE(testing::Message() << count << " signals");
            ExpectGrowth(cost, quarter, count / 4, MaxRatio);
        }
        quarter = cost;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Networks, ComparisonGrowth,
    testing::Values(Row{"MessagesAsTheyAre", 1, AsTheyAre}, Row{"MessagesOfOneName", 1, Same},
                    Row{"MessagesBackwards", 1, Backwards}, Row{"MessagesScattered", 1, Scattered},
                    Row{"OtherMessages", 1, Others}, Row{"SignalsAsTheyAre", 1024, AsTheyAre},
                    Row{"SignalsOfOneName", 1024, Same}, Row{"SignalsBackwards", 1024, Backwards},
                    Row{"SignalsScattered", 1024, Scattered}, Row{"OtherSignals", 1024, Others}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace vexil::growth
