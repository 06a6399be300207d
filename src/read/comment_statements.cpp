// CM_ statements: free text for messages and signals. The lines are written by
// write/comment_section.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
//
// The text is all between the first and the last quote of the statement, quotes inside it included.
// Comments of anything else are nobody's and are dropped.
// SPDX-License-Identifier: MIT
#include "frame/can_database.h"
#include "frame/comment.h"
#include "read/handlers.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// A comment statement of a known message id, taken apart.
struct CommentStatement {
    MessagesOfId* messages = nullptr;  // of the id; null when the statement is no such comment
    std::string_view owner;            // what stands between the id and the first quote
    std::string_view text;             // empty when there are not two quotes
};

CommentStatement ParseCommentStatement(std::string_view text, std::string_view kindKeyword) {
    CommentStatement comment;
    Position pos = npos;
    std::uint32_t id = 0;
    if (!MatchKeyword(text, keyword::CM_, pos, 0) || !MatchKeyword(text, kindKeyword, pos, pos) ||
        !ParseUnsignedToken(text, id, pos, pos)) {
        return comment;
    }
    comment.messages = database.messagesById.Find(id);
    Position quote = npos;
    comment.owner = Trimmed(TextUpToChar(text, pos, '"', quote));
    const Position lastQuote = text.rfind('"');
    if (quote < lastQuote) {
        comment.text = text.substr(quote + 1, lastQuote - quote - 1);
    }
    return comment;
}

}  // namespace

bool HandleMessageComment(std::string_view text) {
    const CommentStatement comment = ParseCommentStatement(text, keyword::BO_);
    if (comment.messages == nullptr) {
        return false;
    }
    // A message has no owner name: nothing but white space may stand in front of the quote.
    if (!comment.text.empty() && comment.owner.empty()) {
        AppendComment(comment.messages->Messages(), comment.text);
    }
    return true;
}

bool HandleSignalComment(std::string_view text) {
    const CommentStatement comment = ParseCommentStatement(text, keyword::SG_);
    if (comment.messages == nullptr) {
        return false;
    }
    if (!comment.text.empty()) {
        comment.messages->FindSignalsNamed(comment.owner, [&comment](SignalsOfName found) {
            AppendComment(found.signals, comment.text);
        });
    }
    return true;
}

}  // namespace vexil
