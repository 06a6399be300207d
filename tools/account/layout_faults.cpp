// Signals that share bits, leave their message, lack a selector, or promise values out of reach.
// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <utility>

#include "account/account.h"
#include "account/owners.h"

namespace vexil::tool {
namespace {

constexpr std::uint64_t BitsInByte = 8;

// Overlaps are looked for in the first bits of a message.
constexpr std::uint64_t MostBits = 4096;

// The message that holds signals of no message.
constexpr std::uint32_t IndependentSignals = 0xC0000000U;

// A bit by its byte and its place in the byte, for the n-th bit of the signal. Big-endian signals
// begin at their highest bit and go on to the lower ones of the byte, then to the highest of the
// next byte.
std::uint64_t BitOf(const SignalFacts& signal, std::uint64_t index) {
    if (signal.byteOrder != ByteOrderBigEndian) {
        return signal.startBit + index;
    }
    const auto mirror = [](std::uint64_t bit) {
        return bit - bit % BitsInByte + (BitsInByte - 1 - bit % BitsInByte);
    };
    return mirror(mirror(signal.startBit) + index);
}

// One more than the last byte in which the signal has a bit.
std::uint64_t EndByte(const SignalFacts& signal) {
    return signal.bitLength == 0
               ? 0
               : BitOf(signal, std::uint64_t{signal.bitLength} - 1) / BitsInByte + 1;
}

class Finder {
  public:
    Finder(const Account& account, const Snapshot& snapshot)
        : accounted(account), database(snapshot) {}

    std::vector<Finding> Run() {
        for (const MessageFacts& message : database.messages) {
            LookAt(message);
        }
        return std::move(findings);
    }

  private:
    void Add(Cause cause, std::uint32_t signal, std::string detail) {
        const AccountedStatement& statement =
            accounted.statements[accounted.signalStatements[signal]];
        findings.push_back({cause, statement.line, statement.column, std::move(detail)});
    }

    std::string NameOfSignal(std::uint32_t signal) const {
        return std::string(database.Text(database.signals[signal].name));
    }

    void LookAt(const MessageFacts& message) {
        const std::uint32_t end = message.firstSignal + message.signalCount;
        bool hasSelector = false;
        std::uint32_t firstSelected = NoIndex;
        for (std::uint32_t signal = message.firstSignal; signal < end; ++signal) {
            const SignalFacts& facts = database.signals[signal];
            hasSelector = hasSelector || facts.multiplexType == MultiplexSelector;
            if (facts.multiplexType == MultiplexSelected && firstSelected == NoIndex) {
                firstSelected = signal;
            }
            if (EndByte(facts) > message.dlc && message.id != IndependentSignals) {
                Add(Cause::SignalOutsideMessage, signal,
                    fmt::format("{} reaches byte {} of {}", NameOfSignal(signal), EndByte(facts),
                                message.dlc));
            }
            LookAtRange(signal);
        }
        if (firstSelected != NoIndex && !hasSelector) {
            Add(Cause::MultiplexedWithoutSelector, firstSelected,
                fmt::format("message {}", message.id));
        }
        if (message.id != IndependentSignals) {
            FindOverlaps(message.firstSignal, end);
        }
    }

    // Signals that are always there first, then those of each value of the selector.
    void FindOverlaps(std::uint32_t begin, std::uint32_t end) {
        always.assign(MostBits, NoIndex);
        selected.clear();
        for (const bool isSelected : {false, true}) {
            for (std::uint32_t signal = begin; signal < end; ++signal) {
                const SignalFacts& facts = database.signals[signal];
                if ((facts.multiplexType == MultiplexSelected) == isSelected) {
                    Place(signal, facts, isSelected);
                }
            }
        }
    }

    void Place(std::uint32_t signal, const SignalFacts& facts, bool isSelected) {
        std::uint32_t other = NoIndex;
        const std::uint64_t length = std::min<std::uint64_t>(facts.bitLength, MostBits);
        for (std::uint64_t index = 0; index < length; ++index) {
            const std::uint64_t bit = BitOf(facts, index);
            if (bit >= MostBits) {
                continue;
            }
            std::uint32_t& owner = always[bit];
            if (owner != NoIndex) {
                other = owner;
            } else if (isSelected) {
                const std::uint64_t key = facts.multiplexValue * MostBits + bit;
                const auto [entry, isNew] = selected.try_emplace(key, signal);
                other = isNew ? other : entry->second;
            } else {
                owner = signal;
            }
        }
        if (other != NoIndex) {
            Add(Cause::SignalsOverlap, signal,
                fmt::format("{} with {} in line {}", NameOfSignal(signal), NameOfSignal(other),
                            accounted.statements[accounted.signalStatements[other]].line));
        }
    }

    void LookAtRange(std::uint32_t signal) {
        constexpr std::uint32_t LongestRaw = 64;
        const SignalFacts& facts = database.signals[signal];
        const bool isInteger = facts.valueType == ValueUnsigned || facts.valueType == ValueSigned;
        const bool hasRange = facts.minimum != 0 || facts.maximum != 0;
        if (!isInteger || !hasRange || facts.bitLength == 0 || facts.bitLength > LongestRaw) {
            return;
        }
        const auto length = static_cast<int>(facts.bitLength);
        const bool isSigned = facts.valueType == ValueSigned;
        const double lowest = isSigned ? -std::ldexp(1.0, length - 1) : 0.0;
        const double highest = std::ldexp(1.0, isSigned ? length - 1 : length) - 1;
        const double one = lowest * facts.factor + facts.offset;
        const double two = highest * facts.factor + facts.offset;
        const double step = std::abs(facts.factor);  // a range may be rounded
        if (facts.minimum < std::min(one, two) - step ||
            facts.maximum > std::max(one, two) + step) {
            Add(Cause::RangeBeyondRawValues, signal,
                fmt::format("[{:.10g}|{:.10g}] of {}, whose raw values reach [{:.10g}|{:.10g}]",
                            facts.minimum, facts.maximum, NameOfSignal(signal), std::min(one, two),
                            std::max(one, two)));
        }
    }

    const Account& accounted;
    const Snapshot& database;
    std::vector<Finding> findings;
    std::vector<std::uint32_t> always;
    std::unordered_map<std::uint64_t, std::uint32_t> selected;
};

}  // namespace

std::vector<Finding> FindLayoutFaults(const Account& account, const Snapshot& snapshot) {
    return Finder(account, snapshot).Run();
}

}  // namespace vexil::tool
