// Rules for the records of every database.
// SPDX-License-Identifier: MIT
#include "property/record_checks.h"

#include <algorithm>
#include <string_view>

#include "support/reference_text.h"

namespace vexil::test {
namespace {

bool IsIdentifierOrEmpty(const std::string& text) {
    return text.empty() || reference::IsValidCIdentifier(text);
}

bool HasEscapedQuotes(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '"' && (at == 0 || text[at - 1] != '\\')) {
            return false;
        }
    }
    return true;
}

bool IsOneLine(std::string_view text) {
    return text.find_first_of("\t\n\v\f\r") == std::string_view::npos;
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char ch) { return static_cast<unsigned char>(ch) < 128; });
}

bool AreIdentifiers(const std::string& list) {
    // The list may be cut inside a name, which leaves an identifier or nothing.
    std::size_t start = 0;
    while (start < list.size()) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        if (!reference::IsValidCIdentifier(list.substr(start, end - start))) {
            return false;
        }
        start = end + 1;
    }
    return true;
}

bool Ascend(const std::vector<CanEnumRecord>& enums) {
    return std::adjacent_find(enums.begin(), enums.end(), [](const auto& a, const auto& b) {
               return a.value >= b.value;
           }) == enums.end();
}

std::string BrokenRule(const SignalRecords& signal) {
    const CanSignalRecord& record = signal.record;
    for (const char* text : {record.name, record.longName, record.unit, record.unitUtf8,
                             record.receiverList, record.comment}) {
        if (!reference::IsValidUtf8(text)) {
            return "a text is not valid UTF-8";
        }
    }
    for (const CanEnumRecord& description : signal.enums) {
        if (!reference::IsValidUtf8(description.text)) {
            return "a value description is not valid UTF-8";
        }
    }
    if (!IsIdentifierOrEmpty(record.name)) {
        return "the name is no identifier";
    }
    if (!IsOneLine(record.longName)) {
        return "the long name has a line end";
    }
    if (!IsAscii(record.unit)) {
        return "the unit is not ASCII";
    }
    if (!AreIdentifiers(record.receiverList)) {
        return "a receiver is no identifier";
    }
    if (!HasEscapedQuotes(record.comment)) {
        return "the comment has a quote without a backslash";
    }
    if (record.multiplexType > 2 || record.byteOrder > 1 || record.valueType > 3) {
        return "a constant is unknown";
    }
    if (record.multiplexType != 2 && record.multiplexValue != 0) {
        return "there is a multiplex value without an indicator";
    }
    if ((record.valueType == ValueFloat32 && record.bitLength != 32) ||
        (record.valueType == ValueFloat64 && record.bitLength != 64)) {
        return "a float has another length";
    }
    if (record.minimum > record.maximum) {
        return "the range is reversed";
    }
    return Ascend(signal.enums) ? "" : "the value descriptions do not ascend";
}

std::string BrokenRule(const CanMessageRecord& record) {
    for (const char* text :
         {record.name, record.longName, record.transmitter, record.comment, record.sendType}) {
        if (!reference::IsValidUtf8(text)) {
            return "a text is not valid UTF-8";
        }
    }
    if (!reference::IsValidCIdentifier(record.name)) {
        return "the name is no identifier";
    }
    if (!IsOneLine(record.longName)) {
        return "the long name has a line end";
    }
    if (!IsIdentifierOrEmpty(record.transmitter) || !IsIdentifierOrEmpty(record.sendType)) {
        return "the transmitter or send type is no identifier";
    }
    return HasEscapedQuotes(record.comment) ? "" : "the comment has a quote without a backslash";
}

std::string BrokenRule(const ParseError& error) {
    if (error.code > 6) {
        return "the code is unknown";
    }
    if (std::string_view(error.text).size() > 254) {
        return "the text is too long";
    }
    return reference::IsValidUtf8(error.text) ? "" : "the text is not valid UTF-8";
}

}  // namespace

std::string BrokenRule(const DatabaseRecords& database) {
    if (database.info.protocolType > 2 || database.info.busType > 1) {
        return "info: a constant is unknown";
    }
    for (std::size_t at = 0; at < database.messages.size(); ++at) {
        const MessageRecords& message = database.messages[at];
        const std::string where = "message " + std::to_string(at);
        const std::string rule = BrokenRule(message.record);
        if (!rule.empty()) {
            return where + ": " + rule;
        }
        for (std::size_t place = 0; place < message.signals.size(); ++place) {
            const std::string ruleOfSignal = BrokenRule(message.signals[place]);
            if (!ruleOfSignal.empty()) {
                return where + ", signal " + std::to_string(place) + ": " + ruleOfSignal;
            }
        }
    }
    for (std::size_t at = 0; at < database.errors.size(); ++at) {
        const std::string rule = BrokenRule(database.errors[at]);
        if (!rule.empty()) {
            return "error " + std::to_string(at) + ": " + rule;
        }
    }
    return "";
}

}  // namespace vexil::test
