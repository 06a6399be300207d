// BO_ statements: each one makes a message. The lines are written by write/message_section.cpp.
//
//   BO_ id name: size transmitter
//
// There is no terminator: the transmitter is all that stands behind the size.
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "frame/can_database.h"
#include "frame/model_text.h"
#include "frame/parse_errors.h"
#include "read/handlers.h"
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {

bool HandleMessageStatement(std::string_view text, std::uint32_t line) {
    auto message = std::make_shared<CANMessage>();
    if (!message->Parse(text)) {
        RecordParseErrors(text, line, message->stepErrors);
        return false;
    }
    // Not checked: an id may come twice. Later statements then reach all messages of that id.
    database.messages.push_back(message);
    database.messagesById.Add(std::move(message));
    return true;
}

bool CANMessage::Parse(std::string_view text) {
    Reset();
    stepErrors.clear();
    Position pos = npos;
    if (!MatchKeyword(text, keyword::BO_, pos, 0)) {
        return false;
    }
    if (!ParseUnsignedToken(text, id, pos, pos)) {
        stepErrors.push_back(StepMessageId);
    } else if (!ParseName(text, pos, pos)) {
        stepErrors.push_back(StepMessageName);
    } else if (!ParseSize(text, pos, pos)) {
        stepErrors.push_back(StepMessageSize);
    }
    if (!stepErrors.empty()) {
        Reset();
        return false;
    }
    transmitter = IdentifierForm(TrimmedRange(text, pos, text.size() - 1));
    isEmpty = false;
    return true;
}

bool CANMessage::ParseName(std::string_view text, Position from, Position& next) {
    Position colon = npos;
    rawName = Trimmed(TextUpToChar(text, from, ':', colon));
    if (rawName.IsEmpty()) {
        return false;
    }
    longName = DisplayForm(rawName);
    UpdateName();
    next = colon + 1;
    return true;
}

bool CANMessage::ParseSize(std::string_view text, Position from, Position& next) {
    constexpr std::string_view Digits = "0123456789";
    const Position digit = text.find_first_of(Digits, from);
    if (digit == npos || digit != FindNonSpace(text, from)) {
        return false;
    }
    next = text.find_first_not_of(Digits, digit);
    return TryParseU32(text.substr(digit), dlc);
}

}  // namespace vexil
