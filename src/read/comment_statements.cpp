// CM_ statements: free text for messages and signals. The lines are written by
// write/comment_section.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
//
// The text is all between the first and the last quote of the statement, quotes inside it included.
// Comments of anything else are nobody's and are dropped.
// SPDX-License-Identifier: MIT
#include <string>

#include "frame/can_database.h"
#include "frame/model_text.h"
#include "read/handlers.h"
#include "read/message_lookup.h"
#include "text/keywords.h"
#include "text/lexical.h"

namespace vexil {
namespace {

// A comment statement of a known message id, taken apart.
struct CommentStatement {
    MessagesOfId* messages = nullptr;  // of the id; null when the statement is no such comment
    std::string_view text;             // the whole statement
    std::string_view owner;            // what stands between the id and the first quote
    Position next = npos;              // the position behind the first quote; npos without one
};

CommentStatement ParseCommentStatement(std::string_view text, std::string_view kindKeyword) {
    CommentStatement comment;
    comment.text = text;
    Position pos = 0;
    std::uint32_t id = 0;
    if (!MatchKeyword(text, keyword::CM_, pos, 0) || !MatchKeyword(text, kindKeyword, pos, pos) ||
        !ParseUnsignedToken(text, id, pos, pos)) {
        return comment;
    }
    comment.messages = FindMessages(id);
    Position quote = npos;
    comment.owner = Trimmed(TextUpToChar(text, pos, '"', quote));
    comment.next = quote == npos ? npos : quote + 1;
    return comment;
}

// Appends the comment to the field. Kept on purpose: a second comment lands behind the first, with
// nothing between them. With one quote only there is nothing to append.
void ApplyComment(std::string& commentField, const CommentStatement& comment) {
    const Position lastQuote = comment.text.rfind('"');
    if (lastQuote >= comment.next) {
        const std::size_t seam = commentField.size();
        commentField += comment.text.substr(comment.next, lastQuote - comment.next);
        EscapeQuotes(commentField, seam);
    }
}

}  // namespace

bool HandleMessageComment(std::string_view text) {
    const CommentStatement comment = ParseCommentStatement(text, keyword::BO_);
    if (comment.messages == nullptr) {
        return false;
    }
    if (comment.next != npos && comment.owner.empty()) {
        for (const auto& message : comment.messages->Messages()) {
            ApplyComment(message->comment, comment);
        }
    }
    return true;
}

bool HandleSignalComment(std::string_view text) {
    const CommentStatement comment = ParseCommentStatement(text, keyword::SG_);
    if (comment.messages == nullptr) {
        return false;
    }
    if (comment.next != npos) {
        comment.messages->ForEachSignalNamed(comment.owner, [&comment](CANSignal& signal) {
            ApplyComment(signal.comment, comment);
        });
    }
    return true;
}

}  // namespace vexil
