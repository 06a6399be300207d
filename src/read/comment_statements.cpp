// CM_ statements: free text for messages and signals. The lines are written by
// write/comment_section.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
//
// The text extends from the first to the last quote of the statement and may contain quotes.
// Comments of other objects are dropped.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {

void HandleComment(std::string_view text) {
    Position pos = npos;
    MatchKeyword(text, keyword::CM_, pos, 0);
    const Position kind = pos;
    const bool isOfMessage = MatchKeyword(text, keyword::BO_, pos, kind);
    std::uint32_t id = 0;
    if ((!isOfMessage && !MatchKeyword(text, keyword::SG_, pos, kind)) ||
        !ParseUnsignedToken(text, id, pos, pos)) {
        return;
    }
    Position quote = npos;
    const std::string_view name = Trimmed(TextUpToChar(text, pos, '"', quote));
    const Position lastQuote = text.rfind('"');
    if (quote >= lastQuote || quote + 1 == lastQuote || (isOfMessage && !name.empty())) {
        return;
    }
    OwnerIndex& owners = database.owners;
    Owner* const owner = isOfMessage ? owners.FindMessage(id) : owners.FindSignal(id, name);
    if (owner != nullptr) {
        const std::string_view comment = text.substr(quote + 1, lastQuote - quote - 1);
        owners.AddComment(database.arena, *owner, database.arena.Keep(comment));
    }
}

}  // namespace vexil
