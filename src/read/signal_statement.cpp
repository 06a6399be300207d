// SG_ statements: each one makes a signal of the message before it. The steps are in
// signal_steps.cpp; the lines are written by write/message_section.cpp.
// SPDX-License-Identifier: MIT
#include <string>

#include "frame/can_database.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/utf8_text.h"

namespace vexil {
namespace {

// Without a quoted unit, the receivers may begin inside a character. The rest of it is replaced
// like invalid bytes of a file, with one "_" for each byte.
void ParseReceiversAt(Arena& arena, CANSignal& signal, std::string_view list) {
    std::string repaired;
    const bool beginsInsideCharacter = (static_cast<unsigned char>(list.front()) & 0xC0) == 0x80;
    if (beginsInsideCharacter) {
        repaired = list;
        ReplaceInvalidUtf8(repaired);
        list = repaired;
    }
    signal.ParseReceivers(arena, list);
}

}  // namespace

bool HandleSignalStatement(std::string_view text, std::uint32_t line) {
    CANSignal signal;
    if (const auto failedStep = signal.Parse(database.arena, text)) {
        RecordParseError(text, line, *failedStep);
        return false;
    }
    CANMessage& message = database.messages[database.messages.Size() - 1];
    if (CANSignal* const added = message.AddSignal(database.arena, signal)) {
        database.owners.AddSignal(message.id, *added);
    }
    return true;
}

std::optional<std::uint32_t> CANSignal::Parse(Arena& arena, std::string_view text) {
    Position pos = npos;
    MatchKeyword(text, keyword::SG_, pos, 0);
    if (!ParseNameAndMultiplex(arena, text, pos, pos)) {
        return StepSignalName;
    }
    if (!ParseBitLayout(text, pos, pos)) {
        return StepSignalLayout;
    }
    if (!ParseScaling(text, pos, pos)) {
        return StepSignalScaling;
    }
    if (!ParseRange(text, pos, pos)) {
        return StepSignalRange;
    }
    ParseUnit(arena, text, pos, pos);
    if (pos < text.size()) {
        ParseReceiversAt(arena, *this, text.substr(pos));
    }
    return std::nullopt;
}

}  // namespace vexil
