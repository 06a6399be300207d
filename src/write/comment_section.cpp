// CM_: the comments of messages and signals. The lines are read by read/comment_statements.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
//
// A comment of the model has its quotes escaped already.
// SPDX-License-Identifier: MIT
#include <string>
#include <utility>

#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

// Appends the comment line of an owner; a message has no owner name.
void AppendCommentLine(std::string& line, std::string_view commentText,
                       std::string_view kindKeyword, std::string_view ownerName, std::uint32_t id) {
    line.append(keyword::CM_).append(" ").append(kindKeyword).append(" ");
    line.append(std::to_string(id));
    if (!ownerName.empty()) {
        line.append(" ").append(ownerName);
    }
    line.append(" \"").append(commentText).append("\";");
}

}  // namespace

void WriteComments(StatementFile& file, const MessageList& messages) {
    std::string line;
    for (const auto& message : messages) {
        if (!message->comment.IsEmpty() || message->name != message->longName) {
            line.clear();
            line = message->FormatMessageComment(std::move(line));
            file.WriteLine(line);
        }
        for (const auto& signal : message->signals) {
            if (!signal->comment.IsEmpty()) {
                line.clear();
                AppendCommentLine(line, signal->comment, keyword::SG_, signal->name, message->id);
                file.WriteLine(line);
            }
        }
    }
}

std::string CANMessage::FormatMessageComment(std::string line) const {
    if (!comment.IsEmpty()) {
        AppendCommentLine(line, comment, keyword::BO_, {}, id);
    }
    return line;
}

}  // namespace vexil
