// Dumps of the model on one line each.
// SPDX-License-Identifier: MIT
#include "support/dump.h"

#include <array>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <vector>

#include "frame/can_database.h"
#include "text/lexical.h"

namespace vexil::test {
namespace {

std::string Number(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

std::string Number(std::integral auto value) {
    return std::to_string(value);
}

// One byte inside single quotes.
std::string Escaped(char ch) {
    constexpr std::string_view Hex = "0123456789abcdef";
    constexpr std::string_view Names = "abtnvfr";  // from 7 on
    const auto byte = static_cast<unsigned char>(ch);
    if (ch == '\'' || ch == '\\') {
        return {'\\', ch};
    }
    if (byte >= 7 && byte <= 13) {
        return {'\\', Names[byte - 7U]};
    }
    if (byte < 32 || byte == 127) {
        return {'\\', 'x', Hex[byte / 16U], Hex[byte % 16U]};
    }
    return {ch};
}

// A receiver as it stands when it is an identifier, else in quotes.
std::string Receiver(std::string_view name) {
    return IsValidCIdentifier(name) ? std::string(name) : Quoted(name);
}

std::string Joined(const std::vector<std::string>& items, std::string_view separator = ",") {
    std::string text;
    for (const std::string& item : items) {
        text += Concat(text.empty() ? "" : separator, item);
    }
    return text;
}

std::string Multiplex(const CANSignal& signal) {
    const std::string value = Number(signal.multiplexValue);
    switch (signal.multiplexType) {
        case MultiplexNone:
            return signal.multiplexValue == 0 ? "" : Concat(" plain", value);
        case MultiplexSelector:
            return signal.multiplexValue == 0 ? " M" : Concat(" M", value);
        case MultiplexSelected:
            return Concat(" m", value);
        default:
            return Concat(" multiplex", Number(signal.multiplexType), "/", value);
    }
}

std::string Sign(std::uint32_t valueType) {
    constexpr std::string_view Signs = "+-fd";
    return valueType < Signs.size() ? std::string(1, Signs[valueType])
                                    : Concat("?", Number(valueType));
}

// " key='text'", or nothing for the text that goes without saying.
std::string Field(std::string_view key, std::string_view text, std::string_view understood = {}) {
    return text == understood ? "" : Concat(" ", key, "=", Quoted(text));
}

std::string Field(std::string_view key, std::int32_t number) {
    return number == 0 ? "" : Concat(" ", key, "=", Number(number));
}

std::string Errors(const std::vector<std::uint32_t>& codes) {
    std::vector<std::string> texts;
    for (const std::uint32_t code : codes) {
        texts.push_back(Number(code));
    }
    return texts.empty() ? "" : Concat(" errors=", Joined(texts));
}

std::string Receivers(const CANSignal& signal) {
    std::vector<std::string> texts;
    signal.receivers.ForEach(
        [&texts](std::string_view receiver) { texts.push_back(Receiver(receiver)); });
    return texts.empty() ? "" : Concat(" ", Joined(texts));
}

std::string Enums(const CANSignal& signal) {
    std::vector<std::string> texts;
    for (const auto& [value, text] : signal.enums.Sorted()) {
        texts.push_back(Concat(Number(value), ":", Quoted(text)));
    }
    return texts.empty() ? "" : Concat(" enums={", Joined(texts), "}");
}

std::vector<std::string> DatabaseLines() {
    std::vector<std::string> lines;
    const DatabaseInfo& info = database.info;
    if (info.protocolType != 0 || info.busType != 0) {
        lines.push_back(Concat("info ", Number(info.protocolType), "/", Number(info.busType)));
    }
    for (const auto& message : database.messages) {
        lines.push_back(Dump(*message));
        for (const auto& signal : message->signals) {
            lines.push_back(Concat("  ", Dump(*signal)));
        }
    }
    for (const ParseError& error : database.parseErrors) {
        lines.push_back(Concat("error ", Number(error.code), " @", Number(error.line), " ",
                               Quoted(error.text)));
    }
    const std::size_t ids = database.messagesById.Size();
    const std::size_t definitions = database.attributes.definitions.size();
    const std::size_t values = database.attributes.values.size();
    if (ids + definitions + values != 0) {
        lines.push_back(Concat("left over: messagesById ", Number(ids), " definitions ",
                               Number(definitions), " values ", Number(values)));
    }
    return lines;
}

}  // namespace

std::string Quoted(std::string_view text) {
    std::string quoted = "'";
    for (const char ch : text) {
        quoted += Escaped(ch);
    }
    quoted += "'";
    return quoted;
}

std::string Dump(const CANSignal& signal) {
    if (signal.isEmpty) {
        return Concat("empty", Errors(signal.stepErrors));
    }
    return Concat(
        Quoted(signal.name), Multiplex(signal), " ", Number(signal.startBit), "|",
        Number(signal.bitLength), "@", Number(signal.byteOrder), Sign(signal.valueType), " (",
        Number(signal.factor), ",", Number(signal.offset), ") [", Number(signal.minimum), "|",
        Number(signal.maximum), "] ", Quoted(signal.unit), Receivers(signal),
        Field("long", signal.longName, signal.name), Field("raw", signal.rawName, signal.longName),
        Field("utf8", signal.unitUtf8, signal.unit), Field("comment", signal.comment),
        Enums(signal), Field("start", signal.startValue), Field("inactive", signal.inactiveValue),
        signal.hasNameSuffix ? " suffixed" : "", Errors(signal.stepErrors));
}

std::string Dump(const CANMessage& message) {
    if (message.isEmpty) {
        return Concat("empty", Errors(message.stepErrors));
    }
    return Concat(Number(message.id), " ", Quoted(message.name), " ", Number(message.dlc), " ",
                  Quoted(message.transmitter), Field("long", message.longName, message.name),
                  Field("raw", message.rawName, message.longName), Field("send", message.sendType),
                  Field("cycle", message.cycleTime), Field("comment", message.comment),
                  Errors(message.stepErrors));
}

std::string DumpDatabase() {
    std::string text;
    for (const std::string& line : DatabaseLines()) {
        text += Concat(line, "\n");
    }
    return text;
}

std::string DumpDatabaseOnOneLine() {
    return Joined(DatabaseLines(), " / ");
}

}  // namespace vexil::test
