// What holds for the comparison of any networks: one with itself differs in nothing, the other way
// round everything is mirrored, a single change is found as exactly that change, and a written file
// differs from its input only in what the summary of the rewrite names.
//
//   VEXIL64_EXPERIMENTS  how many random networks to try (default: 1000)
//   VEXIL64_CORPUS       a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "account/rewrite_summary.h"
#include "comparison/comparison.h"
#include "database/database_file.h"
#include "support/files.h"
#include "support/random_text.h"
#include "tool/comparison_text.h"
#include "tool/experiment.h"
#include "tool/random_network.h"

namespace vexil::test {
namespace {

using tool::Aspect;
using tool::Comparison;
using tool::MessageFacts;
using tool::Nowhere;
using tool::Pair;
using tool::SignalFacts;
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

// -- Single changes --

class Mutator {
  public:
    Mutator(const Snapshot& original, std::uint32_t seed)
        : before(original), after(original), engine(seed) {}

    const Snapshot before;
    Snapshot after;
    Comparison expected;

    // Changes one thing. Returns false where the network has nothing to change.
    bool Run() {
        constexpr std::size_t Kinds = 6;
        switch (engine() % Kinds) {
            case 0:
                return ChangeNetwork();
            case 1:
                return ChangeMessage();
            case 2:
            case 3:
                return ChangeSignal();
            case 4:
                return RemoveSignal();
            default:
                return RemoveOrMoveMessage();
        }
    }

  private:
    tool::TextRef NewText() {
        const std::string text = "ANewText" + std::to_string(engine() % 10);
        const tool::TextRef ref{static_cast<std::uint32_t>(after.texts.size()),
                                static_cast<std::uint32_t>(text.size())};
        after.texts += text;
        return ref;
    }

    std::uint32_t Below(std::size_t limit) { return static_cast<std::uint32_t>(engine() % limit); }

    // Several of one id and name are paired in their order, whichever of them was changed.
    bool IsAlone(const MessageFacts& message) const {
        return 1 == std::count_if(before.messages.begin(), before.messages.end(),
                                  [&](const MessageFacts& each) {
                                      return each.id == message.id ||
                                             before.Text(each.name) == before.Text(message.name);
                                  });
    }

    bool IsAlone(const MessageFacts& message, const SignalFacts& signal) const {
        const auto first = before.signals.begin() + message.firstSignal;
        return 1 == std::count_if(first, first + message.signalCount, [&](const SignalFacts& each) {
                   return before.Text(each.name) == before.Text(signal.name) ||
                          each.startBit == signal.startBit;
               });
    }

    // The index of a message that is alone, or Nowhere.
    std::uint32_t PickMessage() {
        if (before.messages.empty()) {
            return Nowhere;
        }
        const std::uint32_t index = Below(before.messages.size());
        return IsAlone(before.messages[index]) ? index : Nowhere;
    }

    bool ChangeNetwork() {
        if (Below(2) == 0) {
            after.info.busType += 1;
            expected.aspects = {Aspect::BusType};
        } else {
            after.info.protocolType += 1;
            expected.aspects = {Aspect::Protocol};
        }
        return true;
    }

    template <typename Facts>
    Aspect ChangeName(Facts& facts, const Facts& old) {
        const bool hasLongName = before.Text(old.longName) != before.Text(old.name);
        facts.name = NewText();
        facts.longName = hasLongName ? facts.longName : facts.name;
        return Aspect::Name;
    }

    bool ChangeMessage() {
        const std::uint32_t index = PickMessage();
        if (index == Nowhere) {
            return false;
        }
        expected.messages = {{{index, index}, {ChangeOneThing(after.messages[index])}, {}, {}}};
        return true;
    }

    Aspect ChangeOneThing(MessageFacts& message) {
        switch (Below(8)) {
            case 0:
                message.id += 1000;
                return Aspect::Id;
            case 1:
                message.dlc += 1;
                return Aspect::Size;
            case 2:
                message.transmitter = NewText();
                return Aspect::Sender;
            case 3:
                message.cycleTime ^= 4;
                return Aspect::CycleTime;
            case 4:
                message.sendType = NewText();
                return Aspect::SendType;
            case 5:
                message.longName = NewText();
                return Aspect::LongName;
            case 6:
                message.comment = NewText();
                return Aspect::Comment;
            default:
                return ChangeName(message, MessageFacts(message));
        }
    }

    // A message and one of its signals that is alone, which it leaves in the arguments.
    bool PickSignal(std::uint32_t& message, std::uint32_t& signal) {
        message = PickMessage();
        if (message == Nowhere || before.messages[message].signalCount == 0) {
            return false;
        }
        const MessageFacts& facts = before.messages[message];
        signal = facts.firstSignal + Below(facts.signalCount);
        return IsAlone(facts, before.signals[signal]);
    }

    bool ChangeSignal() {
        std::uint32_t message = 0;
        std::uint32_t signal = 0;
        if (!PickSignal(message, signal)) {
            return false;
        }
        const Aspect changed = ChangeOneThing(after.signals[signal]);
        expected.messages = {{{message, message}, {}, {{{signal, signal}, {changed}}}, {}}};
        return true;
    }

    Aspect ChangeOneThing(SignalFacts& signal) {
        switch (Below(16)) {
            case 0:
                signal.startBit += 100;
                return Aspect::Bits;
            case 1:
                signal.bitLength ^= 2;
                return Aspect::Bits;
            case 2:
                signal.byteOrder ^= 1;
                return Aspect::Bits;
            case 3:
                signal.valueType ^= 1;
                return Aspect::Type;
            case 4:
                signal.factor += 1;
                return Aspect::Scaling;
            case 5:
                signal.offset -= 0.5;
                return Aspect::Scaling;
            case 6:
                signal.minimum -= 1;
                return Aspect::Range;
            case 7:
                signal.maximum += 1;
                return Aspect::Range;
            case 8:
                signal.unitUtf8 = NewText();
                return Aspect::Unit;
            case 9:
                signal.multiplexType =
                    signal.multiplexType == MultiplexSelector ? MultiplexNone : MultiplexSelector;
                return Aspect::Multiplexing;
            case 10:
                signal.receiverList = NewText();
                return Aspect::Receivers;
            case 11:
                signal.startValue ^= 8;
                return Aspect::StartValue;
            case 12:
                signal.inactiveValue ^= 8;
                return Aspect::InactiveValue;
            case 13:
                signal.comment = NewText();
                return Aspect::Comment;
            case 14:
                return ChangeDescriptions(signal);
            default:
                return ChangeName(signal, SignalFacts(signal));
        }
    }

    Aspect ChangeDescriptions(SignalFacts& signal) {
        if (signal.descriptionCount == 0) {
            signal.firstDescription = static_cast<std::uint32_t>(after.descriptions.size());
            signal.descriptionCount = 1;
            after.descriptions.push_back({5, NewText()});
        } else if (Below(2) == 0) {
            --signal.descriptionCount;
        } else {
            after.descriptions[signal.firstDescription].text = NewText();
        }
        return Aspect::Values;
    }

    // Removes the first or the last signal of a message, or adds it, the other way round.
    bool RemoveSignal() {
        std::uint32_t message = 0;
        std::uint32_t signal = 0;
        if (!PickSignal(message, signal)) {
            return false;
        }
        MessageFacts& facts = after.messages[message];
        if (signal == facts.firstSignal) {
            ++facts.firstSignal;
        } else if (signal != facts.firstSignal + facts.signalCount - 1) {
            return false;
        }
        --facts.signalCount;
        expected.messages = {{{message, message}, {}, {{{signal, Nowhere}, {}}}, {}}};
        return true;
    }

    bool RemoveOrMoveMessage() {
        const std::uint32_t index = PickMessage();
        if (index == Nowhere) {
            return false;
        }
        const auto place = after.messages.begin() + index;
        const MessageFacts message = *place;
        after.messages.erase(place);
        if (Below(2) == 0 || index < 2) {
            expected.messages = {{{index, Nowhere}, {}, {}, {}}};
        } else {
            after.messages.insert(after.messages.begin(), message);
            expected.movedMessages = {0};
        }
        return true;
    }

    std::mt19937 engine;
};

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

TEST_F(CompareAny, FindsASingleChangeAsExactlyThatChange) {
    std::map<std::string, unsigned> found;
    for (unsigned seed = 0; seed < 10 * Experiments() && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Mutator mutator(experiment.Read(RandomNetwork(seed % Experiments())), seed);
        if (mutator.Run()) {
            const Comparison comparison = Compare(mutator.before, mutator.after);
            EXPECT_EQ(comparison, mutator.expected)
                << TextOf(comparison, mutator.before, mutator.after) << "and not\n"
                << TextOf(mutator.expected, mutator.before, mutator.after);
            const Comparison back = Compare(mutator.after, mutator.before);
            EXPECT_EQ(OutlineOf(back, true), OutlineOf(comparison, false));
            const std::string kind = Kind(comparison);
            for (const tool::AspectRow& row : tool::AspectRows()) {
                const bool isTheChange =
                    kind.ends_with(" " + std::string(row.key)) || kind == row.key;
                EXPECT_EQ(Compare(mutator.before, mutator.after, {row.aspect}).IsEmpty(),
                          isTheChange)
                    << row.key;
            }
            ++found[kind];
        }
    }
    EXPECT_GE(found.size(), 24U) << "kinds of changes that were tried";
}

// -- Rewrites --

// What a written file may differ in for each cause.
const std::map<tool::Cause, std::set<std::string_view>>& EffectsOfCauses() {
    static const std::map<tool::Cause, std::set<std::string_view>> Effects = {
        {tool::Cause::AttributeNotWritten,
         {"cycleTime", "sendType", "startValue", "inactiveValue"}},
        {tool::Cause::AttributeTextFolded, {"longName"}},
        {tool::Cause::UnitFolded, {"unit"}},
        {tool::Cause::UnitWrittenInAscii, {"unit"}},
        {tool::Cause::InvalidUtf8, {"unit"}},
        {tool::Cause::MoreThanTenDigits, {"scaling", "range"}},
        {tool::Cause::PlaceholderNode, {"sender", "receivers"}},
        {tool::Cause::DescriptionsOfFloat, {"values"}},
        {tool::Cause::SameMessageId, {"comment", "values"}},
        {tool::Cause::CommentsDouble, {"comment", "values"}},
        {tool::Cause::NamesNumbered, {"name", "longName"}}};
    return Effects;
}

class CompareRewritten : public CompareAny {
  protected:
    // Compares a file with what the library writes of it.
    void Try(const std::string& file) {
        SCOPED_TRACE(file);
        const std::string text = ReadBytes(file);
        const tool::SourceText source(text);
        const Snapshot before = experiment.Read(text);
        const std::string written = folder.File("written.dbc");
        std::string_view reason;
        if (tool::WriteDatabase(written, OrderAsStored, reason) != tool::WriteResult::Done) {
            EXPECT_TRUE(before.messages.empty()) << reason;
            return;
        }
        const tool::Account account = MakeAccount(source, before);
        const tool::RewriteSummary summary =
            SummarizeRewrite(account, FindRewriteLosses(account, before), ReadBytes(written));
        const Snapshot after = experiment.Read(ReadBytes(written));
        ExpectCauses(summary, before, Compare(before, after),
                     TextOf(Compare(before, after), before, after));
        ++files;
    }

    void TryFolder(const std::filesystem::path& dbcFolder) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(dbcFolder)) {
            if (entry.path().extension() == ".dbc") {
                Try(entry.path().string());
            }
        }
        EXPECT_GT(files, 0U);
    }

    // Whether signals of the message share a name. A written file numbers them, and such a name can
    // be that of another signal.
    static bool HasEqualNames(const Snapshot& network, const MessageFacts& message) {
        std::set<std::string_view> names;
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            names.insert(network.Text(network.signals[message.firstSignal + index].name));
        }
        return names.size() != message.signalCount;
    }

    static void ExpectCauses(const tool::RewriteSummary& summary, const Snapshot& before,
                             const Comparison& comparison, const std::string& text) {
        std::set<std::string_view> allowed;
        for (const auto* counts : {&summary.losses, &summary.changes}) {
            for (const tool::CauseCount& each : *counts) {
                const auto effects = EffectsOfCauses().find(each.cause);
                if (effects != EffectsOfCauses().end()) {
                    allowed.insert(effects->second.begin(), effects->second.end());
                }
            }
        }
        EXPECT_TRUE(comparison.aspects.IsEmpty()) << text;
        EXPECT_TRUE(comparison.movedMessages.empty()) << text;
        const auto expectAllowed = [&](tool::AspectSet aspects) {
            for (const tool::AspectRow& row : tool::AspectRows()) {
                EXPECT_TRUE(!aspects.Has(row.aspect) || allowed.count(row.key) != 0)
                    << "no cause for another " << row.key << ":\n"
                    << text;
            }
        };
        for (const tool::MessageDifference& message : comparison.messages) {
            ASSERT_TRUE(message.message.IsInBoth()) << text;
            if (HasEqualNames(before, before.messages[message.message.before])) {
                continue;
            }
            EXPECT_TRUE(message.movedSignals.empty()) << text;
            expectAllowed(message.aspects);
            for (const tool::SignalDifference& signal : message.signals) {
                EXPECT_TRUE(signal.signal.IsInBoth()) << text;
                expectAllowed(signal.aspects);
            }
        }
    }

    TempFolder folder;
    std::size_t files = 0;
};

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForTheSamples) {
    TryFolder(VEXIL64_SAMPLES);
}

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForTheFilesOfTheGoldenTests) {
    TryFolder(VEXIL64_GOLDEN);
}

TEST_F(CompareRewritten, DiffersInWhatTheSummaryNamesForRealFiles) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    TryFolder(corpus);
}

}  // namespace
}  // namespace vexil::test
