// VAL_ and SIG_VALTYPE_: value descriptions and float signals. The lines are read by
// read/value_statements.cpp.
//
//   VAL_ id name number "text" number "text";
//   SIG_VALTYPE_ id name : number;
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>
#include <vector>

#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

bool IsFloat(const CANSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
}

bool HasValueDescription(const CANSignal& signal) {
    return !IsFloat(signal) && !signal.enums.Sorted().empty();
}

// keyword id name
void AppendLineHead(std::string& line, std::string_view keyword, std::uint32_t messageId,
                    std::string_view name) {
    line.append(keyword).append(" ").append(std::to_string(messageId)).append(" ").append(name);
}

}  // namespace

void WriteValueSections(StatementFile& file, const MessageList& messages) {
    std::vector<std::pair<const CANMessage*, const CANSignal*>> floats;
    std::string line;
    for (const auto& message : messages) {
        for (const auto& signal : message->signals) {
            if (IsFloat(*signal)) {
                floats.emplace_back(message.get(), signal.get());
            } else if (HasValueDescription(*signal)) {
                line.clear();
                line = signal->FormatValueDescription(message->id, std::move(line));
                file.WriteLine(line);
            }
        }
    }
    for (const auto& [message, signal] : floats) {
        line.clear();
        line = signal->FormatSignalValueType(message->id, std::move(line));
        file.WriteLine(line);
    }
}

std::string CANSignal::FormatValueDescription(std::uint32_t messageId, std::string line) const {
    if (!HasValueDescription(*this)) {
        return line;
    }
    AppendLineHead(line, keyword::VAL_, messageId, name);
    for (const auto& [value, text] : enums.Sorted()) {
        line.append(" ").append(std::to_string(value)).append(" \"").append(text).append("\"");
    }
    line.append(";");
    return line;
}

std::string CANSignal::FormatSignalValueType(std::uint32_t messageId, std::string line) const {
    if (!IsFloat(*this)) {
        return line;
    }
    AppendLineHead(line, keyword::SIG_VALTYPE_, messageId, name);
    line.append(valueType == ValueFloat32 ? " : 1;" : " : 2;");
    return line;
}

}  // namespace vexil
