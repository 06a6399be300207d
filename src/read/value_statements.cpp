// SIG_VALTYPE_ and VAL_ statements: which signals are floats, and what raw values mean. The lines
// are written by write/value_sections.cpp.
//
//   SIG_VALTYPE_ id name : number;
//   VAL_ id name number "text" number "text" ... ;
//
// Both reach every signal of the name in every message of the id.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "read/handlers.h"
#include "read/message_lookup.h"
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {
namespace {

using SignalOperation = bool (CANSignal::*)(std::string_view, std::uint32_t);

bool OfferToSignals(std::string_view text, std::string_view keyword, SignalOperation operation) {
    Position pos = 0;
    std::uint32_t id = 0;
    if (!MatchKeyword(text, keyword, pos, 0) || !ParseUnsignedToken(text, id, pos, pos)) {
        return false;
    }
    const MessageList* messages = FindMessages(id);
    if (messages == nullptr) {
        return false;
    }
    for (const auto& message : *messages) {
        for (const auto& signal : message->signals) {
            ((*signal).*operation)(text, id);
        }
    }
    return true;
}

// Whether the statement begins with the keyword and the id. next: the position behind the id.
bool MatchHead(std::string_view text, std::string_view keyword, std::uint32_t id, Position& next) {
    std::uint32_t token = 0;
    return MatchKeyword(text, keyword, next, 0) && ParseUnsignedToken(text, token, next, next) &&
           token == id;
}

}  // namespace

bool HandleValueType(std::string_view text) {
    return OfferToSignals(text, keyword::SIG_VALTYPE_, &CANSignal::ParseValueType);
}

bool HandleValueDescriptions(std::string_view text) {
    return OfferToSignals(text, keyword::VAL_, &CANSignal::ParseValueDescriptions);
}

bool CANSignal::MatchSignalName(std::string_view text, Position from, Position& end) const {
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos || text.compare(start, rawName.size(), rawName) != 0) {
        return false;
    }
    const Position behind = start + rawName.size();
    if (behind >= text.size() || !IsSpace(text[behind])) {
        return false;
    }
    end = behind;
    return true;
}

bool CANSignal::ParseValueType(std::string_view text, std::uint32_t id) {
    Position pos = 0;
    if ((bitLength != 32 && bitLength != 64) || !MatchHead(text, keyword::SIG_VALTYPE_, id, pos) ||
        !MatchSignalName(text, pos, pos)) {
        return false;
    }
    const Position colon = FindNonSpace(text, pos);
    if (colon == npos || text[colon] != ':') {
        return false;
    }
    Position semicolon = npos;
    std::uint32_t number = 0;
    if (!TryParseU32(TextUpToChar(text, colon + 1, ';', semicolon), number)) {
        return false;
    }
    // Kept on purpose: any other pair changes nothing, so 0 does not turn a float back.
    if (number == 1 && bitLength == 32) {
        valueType = ValueFloat32;
    } else if (number == 2 && bitLength == 64) {
        valueType = ValueFloat64;
    } else {
        return false;
    }
    return true;
}

// Kept on purpose: a head that is no number does not end the statement. Its opening quote is where
// the search goes on, so that the pairs shift by one quote for the rest.
bool CANSignal::ParseValueDescriptions(std::string_view text, std::uint32_t id) {
    Position pos = 0;
    if (!MatchHead(text, keyword::VAL_, id, pos) || !MatchSignalName(text, pos, pos)) {
        return false;
    }
    --pos;
    while (pos < text.size()) {
        std::int32_t value = 0;
        if (TryParseI32(TextUpToChar(text, pos + 1, '"', pos), value)) {
            DescribeValue(value, TextUpToChar(text, pos + 1, '"', pos));
        }
    }
    return true;
}

}  // namespace vexil
