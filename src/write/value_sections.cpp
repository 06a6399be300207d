// VAL_ and SIG_VALTYPE_: value descriptions and float signals. The lines are read by
// read/value_statements.cpp.
//
//   VAL_ id name number "text" number "text";
//   SIG_VALTYPE_ id name : number;
// SPDX-License-Identifier: MIT
#include <charconv>
#include <limits>

#include "frame/can_database.h"
#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

bool IsFloat(const CANSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
}

// Whether text is a number between two blanks, as it is written.
bool IsWrittenNumber(std::string_view text, std::int32_t& value) {
    if (text.size() < 3 || text.front() != ' ' || text.back() != ' ') {
        return false;
    }
    const char* const first = text.data() + 1;
    const char* const end = text.data() + text.size() - 1;
    const auto [after, error] = std::from_chars(first, end, value);
    const char leading = *first == '-' ? first[1] : *first;
    return error == std::errc() && after == end && (leading != '0' || end - first == 1);
}

// The value descriptions of a statement that has them just as they are written, which spares taking
// them apart: ascending values, and one blank where there may be more. Nothing of any other one.
std::string_view WrittenPairs(std::string_view statement) {
    std::int64_t last = std::numeric_limits<std::int64_t>::min();
    Position end = 0;
    for (Position quote = 0; (quote = statement.find('"', end)) != npos;) {
        const Position close = statement.find('"', quote + 1);
        std::int32_t value = 0;
        if (close == npos || !IsWrittenNumber(statement.substr(end, quote - end), value) ||
            value <= last) {
            return {};
        }
        last = value;
        end = close + 1;
    }
    return statement.substr(0, end);
}

// Appends the value descriptions of a signal in ascending order of the values.
void AppendPairs(LineBuffer& line, const CANSignal& signal) {
    const Note* const statement = signal.notes.statements;
    if (statement != nullptr && statement->next == nullptr && signal.notes.added == nullptr) {
        const std::string_view written = WrittenPairs(statement->text);
        if (!written.empty()) {
            line.Append(written);
            return;
        }
    }
    const Descriptions& descriptions = database.DescriptionsOf(signal);
    LineBuffer scratch;
    for (std::size_t at = 0; at < descriptions.Count(); ++at) {
        line.Append(" ", descriptions.ValueAt(at), " \"", descriptions.Text(at, scratch, npos),
                    "\"");
    }
}

// keyword id name
void AppendLineHead(LineBuffer& line, std::string_view keyword, std::uint32_t messageId,
                    std::string_view name) {
    line.Append(keyword, " ", messageId, " ", name);
}

// Writes the line that append makes of each signal, if it makes one.
void WriteSignalLines(StatementFile& file, const MessageList& messages,
                      void (CANSignal::*append)(LineBuffer& line, std::uint32_t messageId) const) {
    LineBuffer line;
    for (const CANMessage* message : messages) {
        for (const CANSignal* signal : message->signals) {
            (signal->*append)(line, message->id);
            if (line.Size() != 0) {
                file.WriteLine(line);
            }
        }
    }
}

}  // namespace

void WriteValueDescriptions(StatementFile& file, const MessageList& messages) {
    WriteSignalLines(file, messages, &CANSignal::AppendValueDescription);
}

void WriteSignalValueTypes(StatementFile& file, const MessageList& messages) {
    WriteSignalLines(file, messages, &CANSignal::AppendSignalValueType);
}

void CANSignal::AppendValueDescription(LineBuffer& line, std::uint32_t messageId) const {
    if (IsFloat(*this) || (notes.statements == nullptr && notes.added == nullptr)) {
        return;
    }
    const std::size_t start = line.Size();
    AppendLineHead(line, keyword::VAL_, messageId, name);
    const std::size_t afterName = line.Size();
    AppendPairs(line, *this);
    if (line.Size() == afterName) {
        line.Cut(start);
    } else {
        line.Append(";");
    }
}

void CANSignal::AppendSignalValueType(LineBuffer& line, std::uint32_t messageId) const {
    if (IsFloat(*this)) {
        AppendLineHead(line, keyword::SIG_VALTYPE_, messageId, name);
        line.Append(valueType == ValueFloat32 ? " : 1;" : " : 2;");
    }
}

}  // namespace vexil
