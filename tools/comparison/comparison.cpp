// Finds pairs, then compares each of them.
// SPDX-License-Identifier: MIT
#include "comparison/comparison.h"

#include <cmath>
#include <tuple>
#include <utility>

#include "comparison/parts.h"

namespace vexil::tool {
namespace {

bool IsSameNumber(double one, double other) {
    return one == other || (std::isnan(one) && std::isnan(other));
}

// A network with its texts, so that the same code computes the keys of both.
class Side {
  public:
    explicit Side(const Snapshot& network) : snapshot(network) {}

    const MessageFacts& Message(std::uint32_t index) const { return snapshot.messages[index]; }
    const SignalFacts& Signal(std::uint32_t index) const { return snapshot.signals[index]; }
    std::string_view Text(TextRef text) const { return snapshot.Text(text); }
    const Snapshot& Network() const { return snapshot; }

    IndexRange AllMessages() const {
        return {0, static_cast<std::uint32_t>(snapshot.messages.size())};
    }

  private:
    const Snapshot& snapshot;
};

// Whether the long name differs from the name.
template <typename Facts>
bool HasLongName(const Side& side, const Facts& facts) {
    return side.Text(facts.longName) != side.Text(facts.name);
}

class Comparer {
  public:
    Comparer(const Snapshot& networkBefore, const Snapshot& networkAfter, AspectSet ignored)
        : before(networkBefore), after(networkAfter), ignoredAspects(ignored) {}

    Comparison Run() {
        Comparison comparison;
        const DatabaseInfo& infoBefore = before.Network().info;
        const DatabaseInfo& infoAfter = after.Network().info;
        comparison.aspects.AddIf(infoBefore.protocolType != infoAfter.protocolType,
                                 Aspect::Protocol);
        comparison.aspects.AddIf(infoBefore.busType != infoAfter.busType, Aspect::BusType);
        comparison.aspects = comparison.aspects.Without(ignoredAspects);

        const std::vector<Pair> pairs = PairMessages();
        for (const Pair& pair : pairs) {
            MessageDifference difference =
                pair.IsInBoth() ? CompareMessages(pair) : MessageDifference{pair, {}, {}, {}};
            if (!pair.IsInBoth() || !difference.aspects.IsEmpty() || !difference.signals.empty() ||
                !difference.movedSignals.empty()) {
                comparison.messages.push_back(std::move(difference));
            }
        }
        comparison.movedMessages = Moved(pairs);
        return comparison;
    }

  private:
    // Pairs the elements with equal keys.
    template <typename Key>
    void PairEqual(Pairing& pairing, Key key) const {
        pairing.PairEqual([&](std::uint32_t index) { return key(before, index); },
                          [&](std::uint32_t index) { return key(after, index); });
    }

    std::vector<Pair> PairMessages() const {
        Pairing pairing(before.AllMessages(), after.AllMessages());
        PairEqual(pairing, [](const Side& side, std::uint32_t index) {
            const MessageFacts& facts = side.Message(index);
            return std::tuple(facts.id, side.Text(facts.name), side.Text(facts.longName));
        });
        PairEqual(pairing, [](const Side& side, std::uint32_t index) {
            const MessageFacts& facts = side.Message(index);
            return std::tuple(facts.id, side.Text(facts.name));
        });
        PairEqual(pairing,
                  [](const Side& side, std::uint32_t index) { return side.Message(index).id; });
        PairEqual(pairing, [](const Side& side, std::uint32_t index) {
            return side.Text(side.Message(index).name);
        });
        return pairing.All();
    }

    std::vector<Pair> PairSignals(const MessageFacts& messageBefore,
                                  const MessageFacts& messageAfter) const {
        const auto bits = [](const SignalFacts& facts) {
            const bool isSelected = facts.multiplexType == MultiplexSelected;
            return std::tuple(facts.startBit, facts.bitLength, facts.byteOrder, facts.multiplexType,
                              isSelected ? facts.multiplexValue : 0);
        };
        Pairing pairing({messageBefore.firstSignal, messageBefore.signalCount},
                        {messageAfter.firstSignal, messageAfter.signalCount});
        PairEqual(pairing, [&bits](const Side& side, std::uint32_t index) {
            const SignalFacts& facts = side.Signal(index);
            return std::tuple(side.Text(facts.name), side.Text(facts.longName), bits(facts));
        });
        PairEqual(pairing, [](const Side& side, std::uint32_t index) {
            const SignalFacts& facts = side.Signal(index);
            return std::tuple(side.Text(facts.name), side.Text(facts.longName));
        });
        PairEqual(pairing, [](const Side& side, std::uint32_t index) {
            return side.Text(side.Signal(index).name);
        });
        PairEqual(pairing, [&bits](const Side& side, std::uint32_t index) {
            return bits(side.Signal(index));
        });
        return pairing.All();
    }

    // Adds the aspects that messages and signals have in common.
    template <typename Facts>
    void AddNames(AspectSet& aspects, const Facts& one, const Facts& other) const {
        aspects.AddIf(before.Text(one.name) != after.Text(other.name), Aspect::Name);
        aspects.AddIf(before.Text(one.longName) != after.Text(other.longName) &&
                          (HasLongName(before, one) || HasLongName(after, other)),
                      Aspect::LongName);
        aspects.AddIf(before.Text(one.comment) != after.Text(other.comment), Aspect::Comment);
    }

    MessageDifference CompareMessages(Pair pair) const {
        const MessageFacts& one = before.Message(pair.before);
        const MessageFacts& other = after.Message(pair.after);
        MessageDifference difference{pair, {}, {}, {}};
        AspectSet& aspects = difference.aspects;
        aspects.AddIf(one.id != other.id, Aspect::Id);
        aspects.AddIf(one.dlc != other.dlc, Aspect::Size);
        aspects.AddIf(before.Text(one.transmitter) != after.Text(other.transmitter),
                      Aspect::Sender);
        aspects.AddIf(one.cycleTime != other.cycleTime, Aspect::CycleTime);
        aspects.AddIf(before.Text(one.sendType) != after.Text(other.sendType), Aspect::SendType);
        AddNames(aspects, one, other);
        aspects = aspects.Without(ignoredAspects);

        const std::vector<Pair> pairs = PairSignals(one, other);
        for (const Pair& each : pairs) {
            const AspectSet changed = each.IsInBoth() ? CompareSignals(each) : AspectSet();
            if (!each.IsInBoth() || !changed.IsEmpty()) {
                difference.signals.push_back({each, changed});
            }
        }
        difference.movedSignals = Moved(pairs);
        return difference;
    }

    AspectSet CompareSignals(Pair pair) const {
        const SignalFacts& one = before.Signal(pair.before);
        const SignalFacts& other = after.Signal(pair.after);
        AspectSet aspects;
        AddNames(aspects, one, other);
        aspects.AddIf(one.startBit != other.startBit || one.bitLength != other.bitLength ||
                          one.byteOrder != other.byteOrder,
                      Aspect::Bits);
        aspects.AddIf(one.valueType != other.valueType, Aspect::Type);
        aspects.AddIf(
            !IsSameNumber(one.factor, other.factor) || !IsSameNumber(one.offset, other.offset),
            Aspect::Scaling);
        aspects.AddIf(
            !IsSameNumber(one.minimum, other.minimum) || !IsSameNumber(one.maximum, other.maximum),
            Aspect::Range);
        aspects.AddIf(before.Text(one.unitUtf8) != after.Text(other.unitUtf8), Aspect::Unit);
        aspects.AddIf(one.multiplexType != other.multiplexType ||
                          (one.multiplexType == MultiplexSelected &&
                           one.multiplexValue != other.multiplexValue),
                      Aspect::Multiplexing);
        aspects.AddIf(one.startValue != other.startValue, Aspect::StartValue);
        aspects.AddIf(one.inactiveValue != other.inactiveValue, Aspect::InactiveValue);
        aspects.AddIf(!HasSameReceivers(one, other), Aspect::Receivers);
        aspects.AddIf(!CompareDescriptions(before.Network(), one, after.Network(), other).empty(),
                      Aspect::Values);
        return aspects.Without(ignoredAspects);
    }

    bool HasSameReceivers(const SignalFacts& one, const SignalFacts& other) const {
        return before.Text(one.receiverList) == after.Text(other.receiverList) ||
               ReceiversOf(before.Network(), one) == ReceiversOf(after.Network(), other);
    }

    std::vector<std::uint32_t> Moved(const std::vector<Pair>& pairs) const {
        return ignoredAspects.Has(Aspect::Order) ? std::vector<std::uint32_t>() : FindMoved(pairs);
    }

    Side before;
    Side after;
    AspectSet ignoredAspects;
};

}  // namespace

Comparison Compare(const Snapshot& before, const Snapshot& after, AspectSet ignored) {
    return Comparer(before, after, ignored).Run();
}

}  // namespace vexil::tool
