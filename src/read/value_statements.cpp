// SIG_VALTYPE_ and VAL_ statements: which signals are floats, and what raw values mean. The lines
// are written by write/value_sections.cpp.
//
//   SIG_VALTYPE_ id name : number;
//   VAL_ id name number "text" number "text" ... ;
//
// Both reach every signal of the name in every message of the id.
// SPDX-License-Identifier: MIT
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "frame/can_database.h"
#include "read/handlers.h"
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// The messages of a statement that begins with the keyword and a known id; null for any other.
// next: the position behind the id.
MessagesOfId* FindOwners(std::string_view text, std::string_view keyword, Position& next) {
    std::uint32_t id = 0;
    if (!MatchKeyword(text, keyword, next, 0) || !ParseUnsignedToken(text, id, next, next)) {
        return nullptr;
    }
    return database.messagesById.Find(id);
}

// What stands behind the name of a SIG_VALTYPE_ statement: a colon, a number and a semicolon.
std::optional<std::uint32_t> ParseValueType(std::string_view text, Position from) {
    const Position colon = FindNonSpace(text, from);
    if (colon == npos || text[colon] != ':') {
        return std::nullopt;
    }
    Position semicolon = npos;
    std::uint32_t number = 0;
    if (!TryParseU32(TextUpToChar(text, colon + 1, ';', semicolon), number)) {
        return std::nullopt;
    }
    return number;
}

// Kept on purpose: any other pair changes nothing, so 0 does not turn a float back.
void ApplyValueType(CANSignal& signal, std::uint32_t number) {
    if (number == 1 && signal.bitLength == 32) {
        signal.valueType = ValueFloat32;
    } else if (number == 2 && signal.bitLength == 64) {
        signal.valueType = ValueFloat64;
    }
}

constexpr std::size_t OrdinaryPairCount = 16;

using DescriptionPairs = std::vector<std::pair<std::int32_t, std::string_view>>;

// What stands behind the name of a VAL_ statement: pairs of a number and a quoted text. Kept on
// purpose: a head that is no number does not end the statement. Its opening quote is where the
// search goes on, so that the pairs shift by one quote for the rest.
DescriptionPairs ParseValueDescriptions(std::string_view text, Position from) {
    DescriptionPairs descriptions;
    descriptions.reserve(OrdinaryPairCount);
    Position pos = from - 1;
    while (pos < text.size()) {
        std::int32_t value = 0;
        if (TryParseI32(TextUpToChar(text, pos + 1, '"', pos), value)) {
            descriptions.emplace_back(value, TextUpToChar(text, pos + 1, '"', pos));
        }
    }
    return descriptions;
}

using SignalSpan = std::span<CANSignal* const>;

// Calls take(signals, from) with the signals of each name that the statement means; from is the
// position behind the name. Returns false when the statement is none of the keyword and a known id.
template <typename Take>
bool OfferToSignals(std::string_view text, std::string_view keyword, Take take) {
    Position pos = 0;
    MessagesOfId* owners = FindOwners(text, keyword, pos);
    if (owners == nullptr) {
        return false;
    }
    owners->ForEachSignalAt(text, pos, take);
    return true;
}

}  // namespace

bool HandleValueType(std::string_view text) {
    return OfferToSignals(text, keyword::SIG_VALTYPE_, [text](SignalSpan signals, Position from) {
        const std::optional<std::uint32_t> number = ParseValueType(text, from);
        if (number) {
            for (CANSignal* signal : signals) {
                ApplyValueType(*signal, *number);
            }
        }
    });
}

bool HandleValueDescriptions(std::string_view text) {
    return OfferToSignals(text, keyword::VAL_, [text](SignalSpan signals, Position from) {
        const DescriptionPairs descriptions = ParseValueDescriptions(text, from);
        for (CANSignal* signal : signals) {
            signal->enums.Reserve(descriptions.size());
            for (const auto& [value, description] : descriptions) {
                signal->enums.Add(value, description);
            }
        }
    });
}

bool CANSignal::MatchSignalName(std::string_view text, Position from, Position& end) const {
    end = npos;
    const Position start = FindNonSpace(text, from);
    if (start == npos) {
        return false;
    }
    // The white space first: it tells most names apart without a look at them.
    const Position behind = start + rawName.Size();
    if (behind >= text.size() || !IsSpace(text[behind]) ||
        text.compare(start, rawName.Size(), rawName) != 0) {
        return false;
    }
    end = behind;
    return true;
}

}  // namespace vexil
