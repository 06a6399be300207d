// The document, one message at a time so that it is never in memory as a whole.
// SPDX-License-Identifier: MIT
#include "view/diff_json_report.h"

#include <cmath>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "comparison/parts.h"

namespace vexil::tool {
namespace {

using Json = nlohmann::ordered_json;

// One value on one line. Names of files need not be UTF-8.
std::string Dump(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

// JSON has no infinity and no NaN. A whole number needs no fraction.
Json Number(double number) {
    constexpr double LargestExact = 9007199254740992.0;  // 2^53
    if (std::isnan(number)) {
        return "nan";
    }
    if (std::isinf(number)) {
        return number < 0 ? "-inf" : "inf";
    }
    if (number == std::trunc(number) && std::abs(number) <= LargestExact) {
        return static_cast<std::int64_t>(number);
    }
    return number;
}

Json Value(const DatabaseInfo& info, Aspect aspect) {
    return aspect == Aspect::Protocol ? ProtocolWord(info) : BusTypeWord(info);
}

Json Value(const Snapshot& snapshot, const MessageFacts& message, Aspect aspect) {
    switch (aspect) {
        case Aspect::Id:
            return message.id;
        case Aspect::Size:
            return message.dlc;
        case Aspect::Sender:
            return snapshot.Text(message.transmitter);
        case Aspect::CycleTime:
            return message.cycleTime;
        case Aspect::SendType:
            return snapshot.Text(message.sendType);
        case Aspect::Name:
            return snapshot.Text(message.name);
        case Aspect::LongName:
            return snapshot.Text(message.longName);
        case Aspect::Comment:
            return snapshot.Text(message.comment);
        default:
            return {};
    }
}

Json Multiplexing(const SignalFacts& signal) {
    switch (signal.multiplexType) {
        case MultiplexNone:
            return {{"type", "none"}};
        case MultiplexSelector:
            return {{"type", "selector"}};
        default:
            return {{"type", "selected"}, {"value", signal.multiplexValue}};
    }
}

Json Descriptions(const Snapshot& snapshot, const SignalFacts& signal) {
    Json list = Json::array();
    for (std::uint32_t index = 0; index < signal.descriptionCount; ++index) {
        const DescriptionFacts& each = snapshot.descriptions[signal.firstDescription + index];
        list.push_back({{"value", each.value}, {"text", snapshot.Text(each.text)}});
    }
    return list;
}

Json Value(const Snapshot& snapshot, const SignalFacts& signal, Aspect aspect) {
    switch (aspect) {
        case Aspect::Name:
            return snapshot.Text(signal.name);
        case Aspect::LongName:
            return snapshot.Text(signal.longName);
        case Aspect::Comment:
            return snapshot.Text(signal.comment);
        case Aspect::Bits:
            return {{"start", signal.startBit},
                    {"length", signal.bitLength},
                    {"byteOrder", ByteOrderWord(signal)}};
        case Aspect::Type:
            return ValueTypeWord(signal);
        case Aspect::Scaling:
            return {{"factor", Number(signal.factor)}, {"offset", Number(signal.offset)}};
        case Aspect::Range:
            return {{"minimum", Number(signal.minimum)}, {"maximum", Number(signal.maximum)}};
        case Aspect::Unit:
            return snapshot.Text(signal.unitUtf8);
        case Aspect::Multiplexing:
            return Multiplexing(signal);
        case Aspect::Receivers:
            return ReceiversOf(snapshot, signal);
        case Aspect::Values:
            return Descriptions(snapshot, signal);
        case Aspect::StartValue:
            return signal.startValue;
        case Aspect::InactiveValue:
            return signal.inactiveValue;
        default:
            return {};
    }
}

// All aspects of a message or signal.
template <typename Facts>
Json Describe(const Snapshot& snapshot, const Facts& facts) {
    Json described = Json::object();
    for (const AspectRow& row : AspectRows()) {
        Json value = Value(snapshot, facts, row.aspect);
        if (!value.is_null()) {
            described[std::string(row.key)] = std::move(value);
        }
    }
    return described;
}

Json Identity(const Snapshot& snapshot, const MessageFacts& message) {
    return {{"id", message.id}, {"name", snapshot.Text(message.name)}};
}

Json Identity(const Snapshot& snapshot, const SignalFacts& signal) {
    return {{"name", snapshot.Text(signal.name)}};
}

class Reporter {
  public:
    explicit Reporter(const DiffReport& diffReport) : report(diffReport) {}

    Json NetworkChanges() const {
        Json changes = Json::array();
        for (const AspectRow& row : AspectRows()) {
            if (report.comparison.aspects.Has(row.aspect)) {
                changes.push_back({{"aspect", row.key},
                                   {"before", Value(report.before.info, row.aspect)},
                                   {"after", Value(report.after.info, row.aspect)}});
            }
        }
        return changes;
    }

    Json Message(const MessageDifference& difference) const {
        const Pair pair = difference.message;
        if (!pair.IsInBoth()) {
            return OneSided(pair, report.before.messages, report.after.messages,
                            [](const Snapshot& snapshot, const MessageFacts& message) {
                                return DescribeWithSignals(snapshot, message);
                            });
        }
        const MessageFacts& before = report.before.messages[pair.before];
        const MessageFacts& after = report.after.messages[pair.after];
        Json signals = Json::array();
        for (const SignalDifference& each : difference.signals) {
            signals.push_back(Signal(each));
        }
        return {{"change", "changed"},
                {"before", Identity(report.before, before)},
                {"after", Identity(report.after, after)},
                {"changes", Changes(difference.aspects, before, after)},
                {"signals", std::move(signals)},
                {"moved", Moved(difference.movedSignals, report.after.signals)}};
    }

    template <typename Facts>
    Json Moved(const std::vector<std::uint32_t>& moved, const std::vector<Facts>& all) const {
        Json list = Json::array();
        for (const std::uint32_t index : moved) {
            list.push_back(Identity(report.after, all[index]));
        }
        return list;
    }

  private:
    static Json DescribeWithSignals(const Snapshot& snapshot, const MessageFacts& message) {
        Json described = Describe(snapshot, message);
        Json signals = Json::array();
        for (std::uint32_t index = 0; index < message.signalCount; ++index) {
            signals.push_back(Describe(snapshot, snapshot.signals[message.firstSignal + index]));
        }
        described["signals"] = std::move(signals);
        return described;
    }

    // Describes an object that is in one network only.
    template <typename Facts, typename Describer>
    Json OneSided(Pair pair, const std::vector<Facts>& before, const std::vector<Facts>& after,
                  Describer describe) const {
        if (pair.after == Nowhere) {
            return {{"change", "removed"},
                    {"before", describe(report.before, before[pair.before])}};
        }
        return {{"change", "added"}, {"after", describe(report.after, after[pair.after])}};
    }

    Json Signal(const SignalDifference& difference) const {
        const Pair pair = difference.signal;
        if (!pair.IsInBoth()) {
            return OneSided(pair, report.before.signals, report.after.signals,
                            Describe<SignalFacts>);
        }
        const SignalFacts& before = report.before.signals[pair.before];
        const SignalFacts& after = report.after.signals[pair.after];
        return {{"change", "changed"},
                {"before", Identity(report.before, before)},
                {"after", Identity(report.after, after)},
                {"changes", Changes(difference.aspects, before, after)}};
    }

    template <typename Facts>
    Json Changes(AspectSet aspects, const Facts& before, const Facts& after) const {
        Json changes = Json::array();
        for (const AspectRow& row : AspectRows()) {
            if (aspects.Has(row.aspect)) {
                changes.push_back({{"aspect", row.key},
                                   {"before", Value(report.before, before, row.aspect)},
                                   {"after", Value(report.after, after, row.aspect)}});
            }
        }
        return changes;
    }

    const DiffReport& report;
};

}  // namespace

void PrintDiffAsJson(std::ostream& out, const DiffReport& report) {
    const Reporter reporter(report);
    const DiffCounts counts = CountMessages(report.comparison);
    const Json countsInJson = {{"removed", counts.removed},
                               {"added", counts.added},
                               {"changed", counts.changed},
                               {"moved", counts.moved}};
    out << "{\"before\": " << Dump(Json(report.nameBefore))
        << ",\n\"after\": " << Dump(Json(report.nameAfter))
        << ",\n\"counts\": " << Dump(countsInJson)
        << ",\n\"changes\": " << Dump(reporter.NetworkChanges()) << ",\n\"messages\": [";
    std::string_view separator = "\n";
    for (const MessageDifference& each : report.comparison.messages) {
        out << separator << Dump(reporter.Message(each));
        separator = ",\n";
    }
    out << (report.comparison.messages.empty() ? "]" : "\n]") << ",\n\"moved\": "
        << Dump(reporter.Moved(report.comparison.movedMessages, report.after.messages)) << "}\n";
}

}  // namespace vexil::tool
