// The database as a host sees it.
// SPDX-License-Identifier: MIT
#include "support/public_model.h"

#include <array>
#include <charconv>
#include <concepts>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace vexil::test {
namespace {

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

void Require(std::uint8_t success) {
    if (success == 0) {
        throw std::runtime_error("a fetch inside the counts was refused");
    }
}

PublicSignal FetchSignal(std::uint32_t message, std::uint32_t index) {
    PublicSignal signal;
    Require(VexilGetCanSignalData(message, index, &signal.record));
    std::uint32_t count = 0;
    Require(VexilGetNumEnumsInCanSignal(message, index, &count));
    signal.enums.resize(count);
    for (std::uint32_t at = 0; at < count; ++at) {
        Require(VexilGetCanSignalEnumData(message, index, at, &signal.enums[at]));
    }
    return signal;
}

PublicMessage FetchMessage(std::uint32_t index) {
    PublicMessage message;
    Require(VexilGetCanMessageData(index, &message.record));
    std::uint32_t count = 0;
    Require(VexilGetNumCanSignalsInCanMessage(index, &count));
    for (std::uint32_t at = 0; at < count; ++at) {
        message.signals.push_back(FetchSignal(index, at));
    }
    return message;
}

// -- Text
// ------------------------------------------------------------------------------------------

struct Text {
    std::string_view text;
};

std::ostream& operator<<(std::ostream& out, const Text& quoted) {
    constexpr std::string_view Names = "abtnvfr";  // from 7 on
    out << '"';
    for (const char ch : quoted.text) {
        if (ch >= 7 && ch <= 13) {
            out << '\\' << Names[static_cast<std::size_t>(ch - 7)];
        } else {
            out << ch;
        }
    }
    return out << '"';
}

struct Number {
    double value;
};

std::ostream& operator<<(std::ostream& out, Number number) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number.value).ptr;
    return out << std::string_view(digits.data(), end);
}

void AddText(std::ostream& out, std::string_view key, std::string_view text,
             std::string_view understood = {}) {
    if (text != understood) {
        out << ", " << key << " " << Text{text};
    }
}

void AddNumber(std::ostream& out, std::string_view key, std::int32_t number) {
    if (number != 0) {
        out << ", " << key << " " << number;
    }
}

std::string MessageLine(const CanMessageRecord& message) {
    std::ostringstream out;
    out << "message " << message.id << " " << Text{message.name} << ", " << message.dlc
        << " bytes from " << Text{message.transmitter};
    AddText(out, "long name", message.longName, message.name);
    AddText(out, "send type", message.sendType);
    AddNumber(out, "cycle", message.cycleTime);
    AddText(out, "comment", message.comment);
    return out.str();
}

std::string SignalLine(const CanSignalRecord& signal) {
    constexpr std::string_view Signs = "+-fd";
    std::ostringstream out;
    out << "  signal " << Text{signal.name};
    if (signal.multiplexType == MultiplexSelector) {
        out << " M";
    } else if (signal.multiplexType == MultiplexSelected) {
        out << " m" << signal.multiplexValue;
    } else if (signal.multiplexType != MultiplexNone || signal.multiplexValue != 0) {
        out << " multiplex " << signal.multiplexType << "/" << signal.multiplexValue;
    }
    out << ": " << signal.startBit << "|" << signal.bitLength << "@" << signal.byteOrder;
    if (signal.valueType < Signs.size()) {
        out << Signs[signal.valueType];
    } else {
        out << "?" << signal.valueType;
    }
    out << " (" << Number{signal.factor} << "," << Number{signal.offset} << ") ["
        << Number{signal.minimum} << "|" << Number{signal.maximum} << "] " << Text{signal.unit}
        << " to " << Text{signal.receiverList};
    AddText(out, "long name", signal.longName, signal.name);
    AddText(out, "unit in UTF-8", signal.unitUtf8, signal.unit);
    AddText(out, "comment", signal.comment);
    AddNumber(out, "start", signal.startValue);
    AddNumber(out, "inactive", signal.inactiveValue);
    return out.str();
}

template <typename... Parts>
std::string Line(const Parts&... parts) {
    std::ostringstream out;
    (out << ... << parts);
    return out.str();
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

PublicModel FetchModel() {
    PublicModel model;
    VexilGetDatabaseInfo(&model.info, sizeof model.info);
    const auto messages = static_cast<std::uint32_t>(VexilGetNumCanMessages());
    for (std::uint32_t index = 0; index < messages; ++index) {
        model.messages.push_back(FetchMessage(index));
    }
    model.errors.resize(static_cast<std::size_t>(VexilGetNumCanErrors()));
    for (std::uint32_t index = 0; index < model.errors.size(); ++index) {
        Require(VexilGetErrorData(index, &model.errors[index]));
    }
    return model;
}

std::vector<std::string> Describe(const PublicModel& model) {
    std::vector<std::string> lines;
    if (model.info.protocolType != 0 || model.info.busType != 0) {
        lines.push_back(Line("protocol ", model.info.protocolType, ", bus ", model.info.busType));
    }
    for (const PublicMessage& message : model.messages) {
        lines.push_back(MessageLine(message.record));
        for (const PublicSignal& signal : message.signals) {
            lines.push_back(SignalLine(signal.record));
            for (const CanEnumRecord& entry : signal.enums) {
                lines.push_back(Line("    ", entry.value, " ", Text{entry.text}));
            }
        }
    }
    for (const ParseError& error : model.errors) {
        lines.push_back(
            Line("error ", error.code, " at line ", error.line, ": ", Text{error.text}));
    }
    return lines;
}

}  // namespace vexil::test
