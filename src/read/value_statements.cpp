// SIG_VALTYPE_ and VAL_ statements: float signals and value descriptions. The lines are written by
// write/value_sections.cpp.
//
//   SIG_VALTYPE_ id name : number;
//   VAL_ id name number "text" number "text" ... ;
//
// Both apply to every signal of the name in every message of the id.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "read/handlers.h"
#include "text/char_class.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// Calls take(owner, rest) for each signal name to which a statement of the keyword can refer; rest
// is the text after the name.
template <typename Take>
void OfferToSignals(std::string_view text, std::string_view keyword, Take take) {
    Position pos = npos;
    std::uint32_t id = 0;
    MatchKeyword(text, keyword, pos, 0);
    if (!ParseUnsignedToken(text, id, pos, pos)) {
        return;
    }
    const Position start = FindNonSpace(text, pos);
    if (start != npos) {
        const std::string_view named = text.substr(start);
        database.owners.ForEachSignalAt(
            id, named, [&](Owner& owner, Position end) { take(owner, named.substr(end)); });
    }
}

}  // namespace

// Intentional: other pairs of number and length change nothing, so 0 does not make a float an
// integer.
void HandleValueType(std::string_view text) {
    OfferToSignals(text, keyword::SIG_VALTYPE_, [](Owner& owner, std::string_view rest) {
        const Position colon = FindNonSpace(rest, 0);
        Position semicolon = npos;
        std::uint32_t number = 0;
        if (colon != npos && rest[colon] == ':' &&
            TryParseU32(TextUpToChar(rest, colon + 1, ';', semicolon), number) &&
            (number == 1 || number == 2)) {
            database.owners.MakeFloat(owner, number == 1 ? 32 : 64);
        }
    });
}

// A fetch parses the pairs, since most hosts fetch those of few signals.
void HandleValueDescriptions(std::string_view text) {
    std::string_view kept;  // the text after the shortest name; longer names share it
    OfferToSignals(text, keyword::VAL_, [&](Owner& owner, std::string_view rest) {
        if (kept.empty()) {
            kept = database.arena.Keep(rest);
        }
        database.owners.AddStatement(database.arena, owner, kept.substr(kept.size() - rest.size()));
    });
}

}  // namespace vexil
