// Finds signals that overlap, exceed their message, lack a multiplexer, or have a range that no raw
// value can reach.
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>
#include <utility>

#include "account/account.h"
#include "account/owners.h"
#include "format/format.h"
#include "layout/bit_layout.h"

namespace vexil::tool {
namespace {

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

    std::uint32_t LineOfSignal(std::uint32_t signal) const {
        return accounted.statements[accounted.signalStatements[signal]].line;
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
            if (EndByte(facts) > message.dlc && message.id != IndependentSignalsId) {
                Add(Cause::SignalOutsideMessage, signal,
                    Format("{} reaches byte {} of {}", NameOfSignal(signal), EndByte(facts),
                           message.dlc));
            }
            LookAtRange(signal);
        }
        if (firstSelected != NoIndex && !hasSelector) {
            Add(Cause::MultiplexedWithoutSelector, firstSelected, Format("message {}", message.id));
        }
        for (const Overlap& overlap : FindOverlaps(database, message)) {
            Add(Cause::SignalsOverlap, overlap.signal,
                Format("{} with {} in line {}", NameOfSignal(overlap.signal),
                       NameOfSignal(overlap.other), LineOfSignal(overlap.other)));
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
        const double step = std::abs(facts.factor);  // tolerance for rounded limits
        if (facts.minimum < std::min(one, two) - step ||
            facts.maximum > std::max(one, two) + step) {
            Add(Cause::RangeBeyondRawValues, signal,
                Format("[{:.10g}|{:.10g}] of {}, whose raw values reach [{:.10g}|{:.10g}]",
                       facts.minimum, facts.maximum, NameOfSignal(signal), std::min(one, two),
                       std::max(one, two)));
        }
    }

    const Account& accounted;
    const Snapshot& database;
    std::vector<Finding> findings;
};

}  // namespace

std::vector<Finding> FindLayoutFaults(const Account& account, const Snapshot& snapshot) {
    return Finder(account, snapshot).Run();
}

}  // namespace vexil::tool
