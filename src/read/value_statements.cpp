// SIG_VALTYPE_ and VAL_ statements: which signals are floats, and what raw values mean. The lines
// are written by write/value_sections.cpp.
//
//   SIG_VALTYPE_ id name : number;
//   VAL_ id name number "text" number "text" ... ;
//
// Both reach every signal of the name in every message of the id.
// SPDX-License-Identifier: MIT
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "frame/can_database.h"
#include "frame/value_descriptions.h"
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

// Sets the type of those signals that have not seen it yet. Kept on purpose: any other pair of
// number and length changes nothing, so 0 does not turn a float back.
void ApplyValueType(const SignalsOfName& found, std::uint32_t number) {
    const bool isFloat32 = number == 1;
    if (!isFloat32 && number != 2) {
        return;
    }
    std::size_t& seen = isFloat32 ? found.progress.float32 : found.progress.float64;
    for (; seen < found.signals.size(); ++seen) {
        CANSignal& signal = *found.signals[seen];
        if (signal.bitLength == (isFloat32 ? 32 : 64)) {
            signal.valueType = isFloat32 ? ValueFloat32 : ValueFloat64;
        }
    }
}

// Calls take(SignalsOfName, from) for each name that the statement means; from is the
// position behind the name. Returns false when the statement is none of the keyword and a known id.
template <typename Take>
bool OfferToSignals(std::string_view text, std::string_view keyword, Take take) {
    Position pos = npos;
    MessagesOfId* owners = FindOwners(text, keyword, pos);
    if (owners == nullptr) {
        return false;
    }
    owners->FindSignalsAt(text, pos, take);
    return true;
}

}  // namespace

bool HandleValueType(std::string_view text) {
    return OfferToSignals(text, keyword::SIG_VALTYPE_, [text](SignalsOfName found, Position from) {
        const std::optional<std::uint32_t> number = ParseValueType(text, from);
        if (number) {
            ApplyValueType(found, *number);
        }
    });
}

// The pairs behind one name are taken apart at once. Where a statement reaches names that begin
// each other they wait until somebody looks, since what they give together may be far longer than
// it.
bool HandleValueDescriptions(std::string_view text) {
    std::shared_ptr<const std::string> kept;
    bool isFirst = true;
    return OfferToSignals(text, keyword::VAL_, [&](SignalsOfName found, Position from) {
        if (!std::exchange(isFirst, false)) {
            if (kept == nullptr) {
                kept = std::make_shared<const std::string>(text);
            }
            ListsOf(found.signals).AppendPairs(kept, from);
            return;
        }
        DescriptionList* own =
            found.signals.size() == 1 ? found.signals[0]->enums.OwnList() : nullptr;
        if (own != nullptr) {
            own->AddPairs(text, from);
            return;
        }
        DescriptionList list;
        list.AddPairs(text, from);
        if (!list.IsEmpty()) {
            ListsOf(found.signals).Append(std::move(list));
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
