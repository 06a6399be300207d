// What holds for the comparison of any networks: one with itself differs in nothing, the other way
// round everything is mirrored, and a single change is found as exactly that change.
//
//   VEXIL64_EXPERIMENTS  how many random networks to try (default: 1000)
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "comparison/comparison.h"
#include "support/random_text.h"
#include "tool/comparison_text.h"
#include "tool/experiment.h"
#include "tool/random_network.h"
#include "tool/single_change.h"

namespace vexil::test {
namespace {

using tool::Comparison;
using tool::Pair;
using tool::Snapshot;

unsigned Experiments() {
    constexpr unsigned Usual = 1000;
    const char* const asked = std::getenv("VEXIL64_EXPERIMENTS");
    return asked == nullptr ? Usual : static_cast<unsigned>(std::strtoul(asked, nullptr, 10));
}

// The comparison the other way round, in an order of its own. Of what has moved only the number is
// kept: of two messages that changed places either one has moved.
struct Outline {
    tool::AspectSet aspects;
    std::vector<std::vector<std::size_t>> lines;
    std::size_t moved = 0;

    bool operator==(const Outline&) const = default;
};

Outline OutlineOf(const Comparison& comparison, bool isMirrored) {
    const auto numbers = [isMirrored](const Pair& pair) {
        return isMirrored ? std::vector<std::size_t>{pair.after, pair.before}
                          : std::vector<std::size_t>{pair.before, pair.after};
    };
    const auto aspectsOf = [](std::vector<std::size_t> line, tool::AspectSet aspects) {
        for (const tool::AspectRow& row : tool::AspectRows()) {
            line.push_back(aspects.Has(row.aspect) ? 1 : 0);
        }
        return line;
    };
    Outline outline{comparison.aspects, {}, comparison.movedMessages.size()};
    for (const tool::MessageDifference& message : comparison.messages) {
        std::vector<std::size_t> line = aspectsOf(numbers(message.message), message.aspects);
        line.push_back(message.movedSignals.size());
        outline.lines.push_back(line);
        for (const tool::SignalDifference& signal : message.signals) {
            outline.lines.push_back(aspectsOf(numbers(signal.signal), signal.aspects));
        }
    }
    std::sort(outline.lines.begin(), outline.lines.end());
    return outline;
}

class CompareAny : public testing::Test {
  protected:
    void ExpectNothingInItself(const Snapshot& network) {
        EXPECT_TRUE(Compare(network, network).IsEmpty())
            << TextOf(Compare(network, network), network, network);
    }

    Experiment experiment;
};

TEST_F(CompareAny, FindsNothingBetweenANetworkAndItself) {
    constexpr std::size_t MostPieces = 60;
    for (unsigned seed = 0; seed < Experiments() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        ExpectNothingInItself(experiment.Read(RandomNetwork(seed)));
        ExpectNothingInItself(experiment.Read(RandomText(seed).File(MostPieces)));
    }
}

TEST_F(CompareAny, FindsTheSameTheOtherWayRound) {
    std::size_t lines = 0;
    for (unsigned seed = 0; seed < Experiments() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        const Snapshot one = experiment.Read(RandomNetwork(seed));
        const Snapshot other = experiment.Read(RandomNetwork(seed + 1));
        const Outline outline = OutlineOf(Compare(one, other), false);
        EXPECT_EQ(outline, OutlineOf(Compare(other, one), true));
        lines += outline.lines.size();
    }
    EXPECT_GT(lines, Experiments());
}

// The change in words, for counting.
std::string Kind(const Comparison& comparison) {
    if (!comparison.movedMessages.empty()) {
        return "order";
    }
    const auto keyOf = [](tool::AspectSet aspects, const std::string& owner) {
        for (const tool::AspectRow& row : tool::AspectRows()) {
            if (aspects.Has(row.aspect)) {
                return owner + std::string(row.key);
            }
        }
        return owner + "removed";
    };
    if (comparison.messages.empty()) {
        return keyOf(comparison.aspects, "");
    }
    const tool::MessageDifference& message = comparison.messages.front();
    return message.signals.empty() ? keyOf(message.aspects, "message ")
                                   : keyOf(message.signals.front().aspects, "signal ");
}

// The aspects that the change may be hidden by, all of them if it is none of an aspect.
void ExpectIgnored(const SingleChange& change, const std::string& kind) {
    tool::AspectSet own;
    tool::AspectSet others;
    for (const tool::AspectRow& row : tool::AspectRows()) {
        const bool isOwn = kind == row.key || kind.ends_with(" " + std::string(row.key));
        (isOwn ? own : others).Add(row.aspect);
    }
    EXPECT_EQ(Compare(change.before, change.after, own).IsEmpty(), !own.IsEmpty()) << kind;
    EXPECT_FALSE(Compare(change.before, change.after, others).IsEmpty()) << kind;
}

TEST_F(CompareAny, FindsASingleChangeAsExactlyThatChange) {
    constexpr unsigned ChangesOfEach = 5;
    std::map<std::string, unsigned> found;
    for (unsigned seed = 0; seed < Experiments() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        const Snapshot network = experiment.Read(RandomNetwork(seed));
        for (unsigned each = 0; each < ChangesOfEach; ++each) {
            SingleChange change;
            if (!MakeSingleChange(network, seed * ChangesOfEach + each, change)) {
                continue;
            }
            const Comparison comparison = Compare(change.before, change.after);
            EXPECT_EQ(comparison, change.expected)
                << TextOf(comparison, change.before, change.after) << "and not\n"
                << TextOf(change.expected, change.before, change.after);
            EXPECT_EQ(OutlineOf(Compare(change.after, change.before), true),
                      OutlineOf(comparison, false));
            const std::string kind = Kind(comparison);
            ExpectIgnored(change, kind);
            ++found[kind];
        }
    }
    constexpr unsigned Usual = 1000;
    EXPECT_TRUE(Experiments() < Usual || found.size() == 26) << found.size() << " kinds of changes";
}

}  // namespace
}  // namespace vexil::test
