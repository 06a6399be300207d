// VAL_ and SIG_VALTYPE_: value descriptions and float signals. The lines are read by
// read/value_statements.cpp.
//
//   VAL_ id name number "text" number "text";
//   SIG_VALTYPE_ id name : number;
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "text/constants.h"
#include "write/sections.h"
#include "write/written_pairs.h"

namespace vexil {
namespace {

bool IsFloat(const CANSignal& signal) {
    return signal.valueType == ValueFloat32 || signal.valueType == ValueFloat64;
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

// Writes the line that append composes for each signal, unless it is empty.
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
