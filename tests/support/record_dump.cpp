// The whole database through the public header alone.
// SPDX-License-Identifier: MIT
#include "support/record_dump.h"

#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace vexil::test {
namespace {

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

SignalRecords FetchSignal(std::uint32_t messageIndex, std::uint32_t signalIndex) {
    SignalRecords signal;
    Require(VexilGetCanSignalData(messageIndex, signalIndex, &signal.record) == 1,
            "a signal was not given");
    std::uint32_t count = 0;
    Require(VexilGetNumEnumsInCanSignal(messageIndex, signalIndex, &count) == 1,
            "the number of value descriptions was not given");
    Require(count == signal.record.enumCount, "enumCount is not the number of value descriptions");
    signal.enums.resize(count);
    for (std::uint32_t at = 0; at < count; ++at) {
        Require(VexilGetCanSignalEnumData(messageIndex, signalIndex, at, &signal.enums[at]) == 1,
                "a value description was not given");
    }
    return signal;
}

MessageRecords FetchMessage(std::uint32_t messageIndex) {
    MessageRecords message;
    Require(VexilGetCanMessageData(messageIndex, &message.record) == 1, "a message was not given");
    std::uint32_t count = 0;
    Require(VexilGetNumCanSignalsInCanMessage(messageIndex, &count) == 1,
            "the number of signals was not given");
    Require(count == message.record.signalCount, "signalCount is not the number of signals");
    for (std::uint32_t at = 0; at < count; ++at) {
        message.signals.push_back(FetchSignal(messageIndex, at));
    }
    return message;
}

// Lines of fields, each a name and a value.
class FieldLines {
  public:
    // Starts a line at a depth of indentation, with a head if it has one.
    FieldLines& Start(std::size_t depth, std::string_view head = {}) {
        text.append(text.empty() ? "" : "\n").append(depth * 2, ' ').append(head);
        separator = head.empty() ? "" : " ";
        return *this;
    }

    FieldLines& Text(std::string_view name, std::string_view value) {
        return Put(name, QuotedText(value));
    }

    template <typename Value>
    FieldLines& Number(std::string_view name, Value value) {
        char digits[64];
        const auto result = std::to_chars(digits, digits + sizeof digits, value);
        return Put(name, std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
    }

    std::string Take() { return text.empty() ? text : text + '\n'; }

  private:
    FieldLines& Put(std::string_view name, std::string_view value) {
        text.append(separator).append(name).append(" ").append(value);
        separator = " ";
        return *this;
    }

    std::string text;
    std::string_view separator;
};

void TellSignal(FieldLines& lines, std::size_t index, const SignalRecords& signal) {
    const CanSignalRecord& record = signal.record;
    lines.Start(1, "signal " + std::to_string(index) + ':');
    lines.Number("multiplexType", record.multiplexType);
    lines.Number("multiplexValue", record.multiplexValue);
    lines.Number("startBit", record.startBit);
    lines.Number("bitLength", record.bitLength);
    lines.Number("byteOrder", record.byteOrder);
    lines.Number("valueType", record.valueType);
    lines.Start(2).Number("factor", record.factor).Number("offset", record.offset);
    lines.Number("minimum", record.minimum).Number("maximum", record.maximum);
    lines.Start(2).Number("startValue", record.startValue);
    lines.Number("inactiveValue", record.inactiveValue).Number("enumCount", record.enumCount);
    lines.Start(2).Text("name", record.name);
    lines.Start(2).Text("longName", record.longName);
    lines.Start(2).Text("unit", record.unit);
    lines.Start(2).Text("unitUtf8", record.unitUtf8);
    lines.Start(2).Text("receiverList", record.receiverList);
    lines.Start(2).Text("comment", record.comment);
    for (const CanEnumRecord& description : signal.enums) {
        lines.Start(2, "enum:").Number("value", description.value).Text("text", description.text);
    }
}

void TellMessage(FieldLines& lines, std::size_t index, const MessageRecords& message) {
    const CanMessageRecord& record = message.record;
    lines.Start(0, "message " + std::to_string(index) + ':');
    lines.Number("id", record.id).Number("dlc", record.dlc);
    lines.Number("signalCount", record.signalCount).Number("cycleTime", record.cycleTime);
    lines.Start(1).Text("name", record.name);
    lines.Start(1).Text("longName", record.longName);
    lines.Start(1).Text("transmitter", record.transmitter);
    lines.Start(1).Text("sendType", record.sendType);
    lines.Start(1).Text("comment", record.comment);
    for (std::size_t at = 0; at < message.signals.size(); ++at) {
        TellSignal(lines, at, message.signals[at]);
    }
}

}  // namespace

DatabaseRecords FetchDatabase() {
    DatabaseRecords database;
    VexilGetDatabaseInfo(&database.info, sizeof database.info);
    for (std::uint32_t at = 0; at < VexilGetNumCanMessages(); ++at) {
        database.messages.push_back(FetchMessage(at));
    }
    database.errors.resize(VexilGetNumCanErrors());
    for (std::uint32_t at = 0; at < database.errors.size(); ++at) {
        Require(VexilGetErrorData(at, &database.errors[at]) == 1, "an error was not given");
    }
    return database;
}

std::string RecordText(const DatabaseRecords& database) {
    FieldLines lines;
    lines.Start(0, "info:").Number("protocolType", database.info.protocolType);
    lines.Number("busType", database.info.busType);
    for (std::size_t at = 0; at < database.messages.size(); ++at) {
        TellMessage(lines, at, database.messages[at]);
    }
    return lines.Take();
}

std::string ErrorText(const DatabaseRecords& database) {
    FieldLines lines;
    for (std::size_t at = 0; at < database.errors.size(); ++at) {
        const ParseError& error = database.errors[at];
        lines.Start(0, "error " + std::to_string(at) + ':').Number("code", error.code);
        lines.Number("line", error.line).Text("text", error.text);
    }
    return lines.Take();
}

std::string QuotedText(std::string_view text) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        if (ch == '"' || ch == '\\') {
            quoted.append(1, '\\').append(1, ch);
        } else if (ch == '\n') {
            quoted += "\\n";
        } else if (ch == '\r') {
            quoted += "\\r";
        } else if (ch == '\t') {
            quoted += "\\t";
        } else if (byte < 32 || byte == 127) {
            quoted.append("\\x").append(1, Digits[byte / 16]).append(1, Digits[byte % 16]);
        } else {
            quoted += ch;
        }
    }
    return quoted + '"';
}

}  // namespace vexil::test
