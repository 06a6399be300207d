// CM_: the comments of messages and signals. The lines are read by read/comment_statements.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
//
// A comment of the model has its quotes escaped already.
// SPDX-License-Identifier: MIT
#include <string>

#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

constexpr std::string_view CommentTail = "\";";

// The line up to and with the text; a message has no owner name.
std::string FormatCommentHead(std::string_view commentText, std::string_view kindKeyword,
                              std::string_view ownerName, std::uint32_t id) {
    std::string head;
    head.reserve(commentText.size() + ownerName.size() + 32);
    head.append(keyword::CM_)
        .append(" ")
        .append(kindKeyword)
        .append(" ")
        .append(std::to_string(id));
    if (!ownerName.empty()) {
        head.append(" ").append(ownerName);
    }
    return head.append(" \"").append(commentText);
}

}  // namespace

void WriteComments(StatementFile& file, const MessageList& messages) {
    for (const auto& message : messages) {
        if (!message->comment.empty() || message->name != message->longName) {
            file.WriteLine(message->FormatMessageComment());
        }
        for (const auto& signal : message->signals) {
            if (!signal->comment.empty()) {
                file.WriteLine(
                    FormatCommentHead(signal->comment, keyword::SG_, signal->name, message->id)
                        .append(CommentTail));
            }
        }
    }
}

std::string CANMessage::FormatMessageComment() const {
    return comment.empty() ? std::string()
                           : FormatCommentHead(comment, keyword::BO_, {}, id).append(CommentTail);
}

}  // namespace vexil
