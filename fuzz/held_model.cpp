// All that the database of the library holds.
// SPDX-License-Identifier: MIT
#include "held_model.h"

#include <charconv>

#include "expect.h"
#include "frame/can_database.h"
#include "property/round_trip_rules.h"
#include "support/record_dump.h"

namespace vexil::fuzz {
namespace {

test::ModelSignal ModelOf(const CANSignal& signal) {
    Expect(!signal.isEmpty, "no signal of the database is empty");
    test::ModelSignal model;
    model.name = signal.name;
    model.hasNameSuffix = signal.hasNameSuffix;
    model.longName = signal.longName;
    model.unit = signal.unit;
    model.unitUtf8 = signal.unitUtf8;
    model.receivers = signal.receivers;
    model.comment = signal.comment;
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
    for (const auto& [value, text] : signal.enums.Sorted()) {
        Expect(model.enums.emplace(value, text).second, "each value is described once");
    }
    return model;
}

test::ModelMessage ModelOf(const CANMessage& message) {
    Expect(!message.isEmpty, "no message of the database is empty");
    test::ModelMessage model;
    model.id = message.id;
    model.dlc = message.dlc;
    model.name = message.name;
    model.longName = message.longName;
    model.transmitter = message.transmitter;
    model.comment = message.comment;
    model.sendType = message.sendType;
    model.cycleTime = message.cycleTime;
    for (const auto& signal : message.signals) {
        model.signals.push_back(ModelOf(*signal));
    }
    return model;
}

// Lines of members behind each other.
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
    Expect(database.messagesById.empty(), "a call leaves no messages under their ids");
    Expect(database.attributes.definitions.empty() && database.attributes.values.empty(),
           "a call leaves no attributes");
    test::Model model;
    model.info = database.info;
    for (const auto& message : database.messages) {
        model.messages.push_back(ModelOf(*message));
    }
    for (const ParseError& error : database.parseErrors) {
        model.errorCodes.push_back(error.code);
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

void ExpectHeld(const test::Model& model, const char* when) {
    ExpectSame(ModelText(HeldModel()), ModelText(model), when);
    const test::DatabaseRecords records = test::FetchDatabase();
    ExpectSame(test::RecordText(records), test::RecordText(test::RecordsOf(model)), when);
    ExpectSame(records.errors.size(), model.errorCodes.size(), when);
}

}  // namespace vexil::fuzz
