// Dumps of the model on one line each.
// SPDX-License-Identifier: MIT
#include "support/dump.h"

#include <array>
#include <charconv>
#include <concepts>
#include <cstdint>
#include <vector>

#include "frame/can_database.h"

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

std::vector<std::string> DatabaseLines() {
    std::vector<std::string> lines;
    const DatabaseInfo& info = database.info;
    if (info.protocolType != 0 || info.busType != 0) {
        lines.push_back(Concat("info ", Number(info.protocolType), "/", Number(info.busType)));
    }
    std::string leftOver;
    for (std::size_t at = 0; at < database.messages.Size(); ++at) {
        const CANMessage& message = database.messages[at];
        lines.push_back(Dump(message));
        for (const CANSignal* signal : message.signals) {
            lines.push_back(Concat("  ", Dump(*signal)));
        }
        if (database.owners.FindMessage(message.id) != nullptr) {
            leftOver += Concat(" owners of ", Number(message.id));
        }
    }
    for (std::size_t at = 0; at < database.parseErrors.Size(); ++at) {
        const RefusedStatement& error = database.parseErrors[at];
        lines.push_back(Concat("error ", Number(error.code), " @", Number(error.line), " ",
                               Quoted(error.text)));
    }
    const std::size_t definitions = database.attributes.definitions.size();
    const std::size_t values = database.attributes.values.Size();
    if (definitions + values != 0) {
        leftOver += Concat(" definitions ", Number(definitions), " values ", Number(values));
    }
    if (!leftOver.empty()) {
        lines.push_back(Concat("left over:", leftOver));
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

std::string CommentOf(const Notes& notes) {
    LineBuffer scratch;
    return std::string(notes.Comment(scratch, npos));
}

std::string EnumsOf(const CANSignal& signal) {
    const Descriptions& descriptions = database.DescriptionsOf(signal);
    std::string texts;
    for (std::size_t at = 0; at < descriptions.Count(); ++at) {
        LineBuffer scratch;
        texts += Concat(at == 0 ? "" : ",", Number(descriptions.ValueAt(at)), ":",
                        Quoted(descriptions.Text(at, scratch, npos)));
    }
    return texts;
}

std::string Dump(const CANSignal& signal) {
    const std::string enums = EnumsOf(signal);
    return Concat(
        Quoted(signal.name), Multiplex(signal), " ", Number(signal.startBit), "|",
        Number(signal.bitLength), "@", Number(signal.byteOrder), Sign(signal.valueType), " (",
        Number(signal.factor), ",", Number(signal.offset), ") [", Number(signal.minimum), "|",
        Number(signal.maximum), "] ", Quoted(signal.unit), signal.receivers.empty() ? "" : " ",
        signal.receivers, Field("long", signal.longName, signal.name),
        Field("raw", signal.rawName, signal.longName), Field("utf8", signal.unitUtf8, signal.unit),
        Field("comment", CommentOf(signal.notes)),
        enums.empty() ? "" : Concat(" enums={", enums, "}"), Field("start", signal.startValue),
        Field("inactive", signal.inactiveValue), signal.hasNameSuffix ? " suffixed" : "");
}

std::string Dump(const CANMessage& message) {
    return Concat(Number(message.id), " ", Quoted(message.name), " ", Number(message.dlc), " ",
                  Quoted(message.transmitter), Field("long", message.longName, message.name),
                  Field("send", message.sendType), Field("cycle", message.cycleTime),
                  Field("comment", CommentOf(message.notes)));
}

std::string DumpDatabase() {
    std::string text;
    for (const std::string& line : DatabaseLines()) {
        text += Concat(line, "\n");
    }
    return text;
}

}  // namespace vexil::test
