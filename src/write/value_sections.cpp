// VAL_ and SIG_VALTYPE_: value descriptions and float signals. The lines are read by
// read/value_statements.cpp.
//
//   VAL_ id name number "text" number "text";
//   SIG_VALTYPE_ id name : number;
// SPDX-License-Identifier: MIT
#include <string>

#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::size_t OrdinaryLineLength = 160;  // room for most lines without growing

bool IsFloat(const CANSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
}

bool HasValueDescription(const CANSignal& signal) {
    return !signal.enums.IsEmpty() && !IsFloat(signal);
}

// keyword id name
std::string LineHead(std::string_view keyword, std::uint32_t messageId, const std::string& name) {
    std::string head;
    head.reserve(OrdinaryLineLength);
    return head.append(keyword)
        .append(" ")
        .append(std::to_string(messageId))
        .append(" ")
        .append(name);
}

}  // namespace

void WriteValueDescriptions(StatementFile& file, const MessageList& messages) {
    for (const auto& message : messages) {
        for (const auto& signal : message->signals) {
            if (HasValueDescription(*signal)) {
                file.WriteLine(signal->FormatValueDescription(message->id));
            }
        }
    }
}

void WriteSignalValueTypes(StatementFile& file, const MessageList& messages) {
    for (const auto& message : messages) {
        for (const auto& signal : message->signals) {
            if (IsFloat(*signal)) {
                file.WriteLine(signal->FormatSignalValueType(message->id));
            }
        }
    }
}

std::string CANSignal::FormatValueDescription(std::uint32_t messageId) const {
    if (!HasValueDescription(*this)) {
        return {};
    }
    std::string line = LineHead(keyword::VAL_, messageId, name);
    for (const auto& [value, text] : enums.Sorted()) {
        line.append(" ").append(std::to_string(value)).append(" \"").append(text).append("\"");
    }
    return line.append(";");
}

std::string CANSignal::FormatSignalValueType(std::uint32_t messageId) const {
    if (!IsFloat(*this)) {
        return {};
    }
    return LineHead(keyword::SIG_VALTYPE_, messageId, name)
        .append(" : ")
        .append(valueType == ValueFloat32 ? "1" : "2")
        .append(";");
}

}  // namespace vexil
