// The whole database through the public header alone.
// SPDX-License-Identifier: MIT
#include "support/record_dump.h"

#include <array>
#include <charconv>
#include <stdexcept>

namespace vexil::test {
namespace {

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(what);
    }
}

SignalRecords FetchSignal(std::uint32_t messageIndex, std::uint32_t signalIndex) {
    SignalRecords signal;
    Require(VexilGetCanSignalData(messageIndex, signalIndex, &signal.record) == 1,
            "fetching a signal failed");
    std::uint32_t count = 0;
    Require(VexilGetNumEnumsInCanSignal(messageIndex, signalIndex, &count) == 1,
            "fetching the number of value descriptions failed");
    Require(count == signal.record.enumCount, "enumCount is not the number of value descriptions");
    signal.enums.resize(count);
    for (std::uint32_t at = 0; at < count; ++at) {
        Require(VexilGetCanSignalEnumData(messageIndex, signalIndex, at, &signal.enums[at]) == 1,
                "fetching a value description failed");
    }
    return signal;
}

MessageRecords FetchMessage(std::uint32_t messageIndex) {
    MessageRecords message;
    Require(VexilGetCanMessageData(messageIndex, &message.record) == 1,
            "fetching a message failed");
    std::uint32_t count = 0;
    Require(VexilGetNumCanSignalsInCanMessage(messageIndex, &count) == 1,
            "fetching the number of signals failed");
    Require(count == message.record.signalCount, "signalCount is not the number of signals");
    for (std::uint32_t at = 0; at < count; ++at) {
        message.signals.push_back(FetchSignal(messageIndex, at));
    }
    return message;
}

// The text in double quotes, with a backslash before control characters and those to be escaped.
std::string Quoted(std::string_view text, std::string_view escaped = {}) {
    constexpr std::string_view Names = "abtnvfr";  // from 7 on
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string quoted = "\"";
    for (const char ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        if (byte >= 7 && byte <= 13) {
            quoted.append(1, '\\').append(1, Names[byte - 7U]);
        } else if (byte < 32 || byte == 127) {
            quoted.append("\\x").append(1, Digits[byte / 16]).append(1, Digits[byte % 16]);
        } else {
            quoted.append(escaped.find(ch) == std::string_view::npos ? "" : "\\").append(1, ch);
        }
    }
    return quoted + '"';
}

template <typename Value>
std::string Number(Value value) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

// ", key "text"", or nothing for the text that is understood.
std::string Field(std::string_view key, std::string_view text, std::string_view understood = {}) {
    return text == understood ? "" : std::string(", ").append(key).append(" ") + Quoted(text);
}

template <typename Value>
std::string NumberField(std::string_view key, Value number, Value understood) {
    return number == understood ? "" : std::string(", ").append(key).append(" ") + Number(number);
}

std::string Multiplex(const CanSignalRecord& signal) {
    const std::string value = Number(signal.multiplexValue);
    if (signal.multiplexType == MultiplexSelector && signal.multiplexValue == 0) {
        return " M";
    }
    if (signal.multiplexType == MultiplexSelected) {
        return " m" + value;
    }
    return signal.multiplexType == MultiplexNone && signal.multiplexValue == 0
               ? ""
               : " multiplex " + Number(signal.multiplexType) + "/" + value;
}

std::string Sign(std::uint32_t valueType) {
    constexpr std::string_view Signs = "+-fd";
    return valueType < Signs.size() ? std::string(1, Signs[valueType])
                                    : std::string("?").append(Number(valueType));
}

std::string MessageLine(const MessageRecords& message) {
    const CanMessageRecord& record = message.record;
    return "message " + Number(record.id) + " " + Quoted(record.name) + ", " + Number(record.dlc) +
           " bytes from " + Quoted(record.transmitter) +
           Field("long name", record.longName, record.name) + Field("send type", record.sendType) +
           NumberField("cycle", record.cycleTime, 0) + Field("comment", record.comment) +
           NumberField("signalCount", record.signalCount, std::uint64_t{message.signals.size()}) +
           "\n";
}

std::string SignalLine(const SignalRecords& signal) {
    const CanSignalRecord& record = signal.record;
    return "  signal " + Quoted(record.name) + Multiplex(record) + ": " + Number(record.startBit) +
           "|" + Number(record.bitLength) + "@" + Number(record.byteOrder) +
           Sign(record.valueType) + " (" + Number(record.factor) + "," + Number(record.offset) +
           ") [" + Number(record.minimum) + "|" + Number(record.maximum) + "] " +
           Quoted(record.unit) + " to " + Quoted(record.receiverList) +
           Field("long name", record.longName, record.name) +
           Field("unit in UTF-8", record.unitUtf8, record.unit) + Field("comment", record.comment) +
           NumberField("start", record.startValue, 0) +
           NumberField("inactive", record.inactiveValue, 0) +
           NumberField("enumCount", record.enumCount,
                       static_cast<std::uint32_t>(signal.enums.size())) +
           "\n";
}

}  // namespace

CallResult ReadFile(const std::string& path) {
    CallResult result;
    result.success = VexilReadDbcFile(path.c_str(), BufferSize(path), &result.code) != 0;
    return result;
}

CallResult WriteFile(const std::string& path, std::uint32_t order) {
    CallResult result;
    result.success = VexilWriteDbcFile(path.c_str(), BufferSize(path), order, &result.code) != 0;
    return result;
}

DatabaseRecords FetchDatabase() {
    DatabaseRecords database;
    VexilGetDatabaseInfo(&database.info, sizeof database.info);
    for (std::uint32_t at = 0; at < VexilGetNumCanMessages(); ++at) {
        database.messages.push_back(FetchMessage(at));
    }
    database.errors.resize(VexilGetNumCanErrors());
    for (std::uint32_t at = 0; at < database.errors.size(); ++at) {
        Require(VexilGetErrorData(at, &database.errors[at]) == 1, "fetching an error failed");
    }
    return database;
}

std::string RecordText(const DatabaseRecords& database) {
    const DatabaseInfo& info = database.info;
    std::string text;
    if (info.protocolType != 0 || info.busType != 0) {
        text += "protocol " + Number(info.protocolType) + ", bus " + Number(info.busType) + "\n";
    }
    for (const MessageRecords& message : database.messages) {
        text += MessageLine(message);
        for (const SignalRecords& signal : message.signals) {
            text += SignalLine(signal);
            for (const CanEnumRecord& description : signal.enums) {
                text += "    " + Number(description.value) + " " + Quoted(description.text) + "\n";
            }
        }
    }
    return text;
}

std::string ErrorText(const DatabaseRecords& database) {
    std::string text;
    for (const ParseError& error : database.errors) {
        text += "error " + Number(error.code) + " at line " + Number(error.line) + ": " +
                Quoted(error.text) + "\n";
    }
    return text;
}

std::string QuotedText(std::string_view text) {
    return Quoted(text, "\"\\");
}

}  // namespace vexil::test
