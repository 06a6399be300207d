// BO_ statements: each one makes a message. The lines are written by write/message_section.cpp.
//
//   BO_ id name: size transmitter
//
// There is no terminator: the transmitter is all text after the size.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "frame/model_text.h"
#include "read/handlers.h"
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {

bool HandleMessageStatement(std::string_view text, std::uint32_t line) {
    CANMessage message;
    if (const auto failedStep = message.Parse(database.arena, text)) {
        RecordParseError(text, line, *failedStep);
        return false;
    }
    // Not checked: an id may occur twice. Later statements then apply to all its messages.
    database.owners.AddMessage(database.messages.Add(database.arena, message));
    return true;
}

std::optional<std::uint32_t> CANMessage::Parse(Arena& arena, std::string_view text) {
    Position pos = npos;
    MatchKeyword(text, keyword::BO_, pos, 0);
    if (!ParseUnsignedToken(text, id, pos, pos)) {
        return StepMessageId;
    }
    if (!ParseName(arena, text, pos, pos)) {
        return StepMessageName;
    }
    if (!ParseSize(text, pos, pos)) {
        return StepMessageSize;
    }
    transmitter = IdentifierForm(arena, arena.Keep(TrimmedRange(text, pos, text.size() - 1)));
    return std::nullopt;
}

bool CANMessage::ParseName(Arena& arena, std::string_view text, Position from, Position& next) {
    Position colon = npos;
    const std::string_view rawName = Trimmed(TextUpToChar(text, from, ':', colon));
    if (rawName.empty()) {
        return false;
    }
    MakeNames(arena, arena.Keep(rawName), longName, name);
    next = colon + 1;
    return true;
}

bool CANMessage::ParseSize(std::string_view text, Position from, Position& next) {
    const Position digit = FindNonSpace(text, from);
    if (digit == npos || !IsDigit(text[digit])) {
        return false;
    }
    next = digit;
    while (next < text.size() && IsDigit(text[next])) {
        ++next;
    }
    return TryParseU32(text.substr(digit), dlc);
}

}  // namespace vexil
