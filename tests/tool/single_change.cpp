// A message, a signal or an aspect of one, changed, removed or moved.
// SPDX-License-Identifier: MIT
#include "tool/single_change.h"

#include <algorithm>
#include <random>
#include <string>

namespace vexil::test {
namespace {

using tool::Aspect;
using tool::Comparison;
using tool::MessageFacts;
using tool::Nowhere;
using tool::SignalFacts;
using tool::Snapshot;

class Mutator {
  public:
    Mutator(SingleChange& change, std::uint32_t seed)
        : before(change.before), after(change.after), expected(change.expected), engine(seed) {}

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
        switch (Below(17)) {
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
            case 15:
                signal.longName = NewText();
                return Aspect::LongName;
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

    const Snapshot& before;
    Snapshot& after;
    Comparison& expected;
    std::mt19937 engine;  // the one engine whose numbers the standard fixes
};

}  // namespace

bool MakeSingleChange(const Snapshot& network, std::uint32_t seed, SingleChange& change) {
    change = {network, network, {}};
    return Mutator(change, seed).Run();
}

}  // namespace vexil::test
