// Copies the complete database into a model, and compares models.
// SPDX-License-Identifier: MIT
#include "held_model.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>

#include "expect.h"
#include "frame/can_database.h"
#include "property/round_trip_rules.h"
#include "support/record_dump.h"

namespace vexil::fuzz {
namespace {

std::string WholeComment(const Notes& notes) {
    LineBuffer comment;
    notes.AppendComment(comment);
    return std::string(comment.Text());
}

test::ModelSignal ModelOf(const CANSignal& signal) {
    test::ModelSignal model;
    model.name = signal.name;
    model.hasNameSuffix = signal.hasNameSuffix;
    model.longName = signal.longName;
    model.unit = signal.unit;
    model.unitUtf8 = signal.unitUtf8;
    for (std::string_view rest = signal.receivers; !rest.empty();) {
        const std::size_t comma = std::min(rest.find(','), rest.size());
        model.receivers.emplace_back(rest.substr(0, comma));
        rest.remove_prefix(std::min(comma + 1, rest.size()));
    }
    model.comment = WholeComment(signal.notes);
    model.multiplexType = signal.multiplexType;
    model.multiplexValue = signal.multiplexValue;
    model.startBit = signal.startBit;
    model.bitLength = signal.bitLength;
    model.byteOrder = signal.byteOrder;
    model.valueType = signal.valueType;
    model.factor = signal.factor;
    model.offset = signal.offset;
    model.minimum = signal.minimum;
    model.maximum = signal.maximum;
    model.startValue = signal.startValue;
    model.inactiveValue = signal.inactiveValue;
    // A separate object, so that the looks of the database do not change.
    Descriptions descriptions;
    descriptions.LookAt(signal.notes);
    LineBuffer scratch;
    for (std::size_t at = 0; at < descriptions.Count(); ++at) {
        const std::string text(descriptions.Text(at, scratch, npos));
        Expect(model.enums.emplace(descriptions.ValueAt(at), text).second,
               "each value is described once");
    }
    return model;
}

test::ModelMessage ModelOf(const CANMessage& message) {
    Expect(database.owners.FindMessage(message.id) == nullptr,
           "a call leaves no messages under their ids");
    test::ModelMessage model;
    model.id = message.id;
    model.dlc = message.dlc;
    model.name = message.name;
    model.longName = message.longName;
    model.transmitter = message.transmitter;
    model.comment = WholeComment(message.notes);
    model.sendType = message.sendType;
    model.cycleTime = message.cycleTime;
    for (const CANSignal* const signal : message.signals) {
        model.signals.push_back(ModelOf(*signal));
    }
    return model;
}

bool SameInfo(const DatabaseInfo& info, const DatabaseInfo& other) {
    return info.protocolType == other.protocolType && info.busType == other.busType;
}

bool SameBytes(const CanEnumRecord& description, const CanEnumRecord& other) {
    return std::memcmp(&description, &other, sizeof description) == 0;
}

// Compares the members of two records from one member to a later one. Precondition: there is no gap
// between them.
template <typename Record, typename First, typename Last>
bool SameMembers(const Record& record, const Record& other, First Record::*first,
                 Last Record::*last) {
    const auto* const begin = reinterpret_cast<const char*>(&(record.*first));
    const auto* const end = reinterpret_cast<const char*>(&(record.*last) + 1);
    return std::memcmp(begin, &(other.*first), static_cast<std::size_t>(end - begin)) == 0;
}

// Compares all bytes but the gaps, whose content is not defined.
bool SameBytes(const CanMessageRecord& record, const CanMessageRecord& other) {
    using Record = CanMessageRecord;
    return SameMembers(record, other, &Record::id, &Record::name) &&
           SameMembers(record, other, &Record::dlc, &Record::transmitter) &&
           SameMembers(record, other, &Record::signalCount, &Record::sendType) &&
           record.cycleTime == other.cycleTime;
}

bool SameBytes(const CanSignalRecord& record, const CanSignalRecord& other) {
    using Record = CanSignalRecord;
    return SameMembers(record, other, &Record::name, &Record::comment) &&
           SameMembers(record, other, &Record::multiplexType, &Record::valueType) &&
           SameMembers(record, other, &Record::factor, &Record::unitUtf8);
}

bool SameBytes(const test::SignalRecords& signal, const test::SignalRecords& other) {
    const auto same = [](const auto& one, const auto& another) { return SameBytes(one, another); };
    return SameBytes(signal.record, other.record) &&
           std::equal(signal.enums.begin(), signal.enums.end(), other.enums.begin(),
                      other.enums.end(), same);
}

bool SameBytes(const test::MessageRecords& message, const test::MessageRecords& other) {
    const auto same = [](const auto& one, const auto& another) { return SameBytes(one, another); };
    return SameBytes(message.record, other.record) &&
           std::equal(message.signals.begin(), message.signals.end(), other.signals.begin(),
                      other.signals.end(), same);
}

// If bytes differ, the models as texts decide: bytes after a NUL and NaNs may differ.
bool SameBytes(const test::DatabaseRecords& records, const test::DatabaseRecords& other) {
    const auto same = [](const auto& one, const auto& another) { return SameBytes(one, another); };
    return SameInfo(records.info, other.info) &&
           std::equal(records.messages.begin(), records.messages.end(), other.messages.begin(),
                      other.messages.end(), same);
}

// Appends the lines of members.
class Lines {
  public:
    Lines& Start(std::string_view head) {
        text.append("\n").append(head);
        return *this;
    }

    Lines& Text(std::string_view value) {
        text.append(" ").append(test::QuotedText(value));
        return *this;
    }

    template <typename Value>
    Lines& Number(Value value) {
        char digits[32];
        const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        text.append(" ").append(digits, end);
        return *this;
    }

    std::string text;
};

void TellSignal(Lines& lines, const test::ModelSignal& signal) {
    lines.Start("  signal").Text(signal.name).Number(signal.hasNameSuffix ? 1 : 0);
    lines.Text(signal.longName).Text(signal.unit).Text(signal.unitUtf8).Text(signal.comment);
    lines.Start("    numbers").Number(signal.multiplexType).Number(signal.multiplexValue);
    lines.Number(signal.startBit).Number(signal.bitLength);
    lines.Number(signal.byteOrder).Number(signal.valueType);
    lines.Number(signal.factor).Number(signal.offset);
    lines.Number(signal.minimum).Number(signal.maximum);
    lines.Number(signal.startValue).Number(signal.inactiveValue);
    lines.Start("    receivers");
    for (const std::string& receiver : signal.receivers) {
        lines.Text(receiver);
    }
    for (const auto& [value, text] : signal.enums) {
        lines.Start("    value").Number(value).Text(text);
    }
}

}  // namespace

test::Model HeldModel() {
    Expect(database.attributes.definitions.empty() && database.attributes.values.Size() == 0,
           "a call leaves no attributes");
    test::Model model;
    model.info = database.info;
    for (std::size_t at = 0; at < database.messages.Size(); ++at) {
        model.messages.push_back(ModelOf(database.messages[at]));
    }
    for (std::size_t at = 0; at < database.parseErrors.Size(); ++at) {
        model.errorCodes.push_back(database.parseErrors[at].code);
    }
    return model;
}

std::string ModelText(const test::Model& model) {
    Lines lines;
    lines.Start("info").Number(model.info.protocolType).Number(model.info.busType);
    for (const test::ModelMessage& message : model.messages) {
        lines.Start("message").Number(message.id).Number(message.dlc).Text(message.name);
        lines.Text(message.longName).Text(message.transmitter).Text(message.comment);
        lines.Text(message.sendType).Number(message.cycleTime);
        for (const test::ModelSignal& signal : message.signals) {
            TellSignal(lines, signal);
        }
    }
    lines.Start("errors");
    for (const std::uint32_t code : model.errorCodes) {
        lines.Number(code);
    }
    return lines.text;
}

// Most models are equal, and making their texts costs far more than comparing them.
void ExpectSameModel(const test::Model& model, const test::Model& expected, const char* what) {
    if (!SameInfo(model.info, expected.info) || model.messages != expected.messages ||
        model.errorCodes != expected.errorCodes) {
        ExpectSame(ModelText(model), ModelText(expected), what);  // the same with a NaN in it
    }
}

void ExpectRecords(const test::Model& model, const char* what) {
    const test::DatabaseRecords records = test::FetchDatabase();
    const test::DatabaseRecords expected = test::RecordsOf(model);
    ExpectSame(records.errors.size(), model.errorCodes.size(), what);
    if (!SameBytes(records, expected)) {
        ExpectSame(test::RecordText(records), test::RecordText(expected), what);
    }
}

void ExpectHeld(const test::Model& model, const char* what) {
    ExpectSameModel(HeldModel(), model, what);
    ExpectRecords(model, what);
}

}  // namespace vexil::fuzz
