// CM_: the comments of messages and signals. The lines are read by read/comment_statements.cpp.
//
//   CM_ BO_ id "text";
//   CM_ SG_ id name "text";
// SPDX-License-Identifier: MIT
#include "text/constants.h"
#include "write/sections.h"

namespace vexil {
namespace {

// Appends the comment line of an owner. ownerName is empty for a message.
void AppendCommentLine(LineBuffer& line, const Notes& notes, std::string_view kindKeyword,
                       std::string_view ownerName, std::uint32_t id) {
    line.Append(keyword::CM_, " ", kindKeyword, " ", id);
    if (!ownerName.empty()) {
        line.Append(" ", ownerName);
    }
    line.Append(" \"");
    notes.AppendComment(line);
    line.Append("\";");
}

}  // namespace

void WriteComments(StatementFile& file, const MessageList& messages) {
    LineBuffer line;
    for (const CANMessage* message : messages) {
        if (message->notes.HasComment() || message->name != message->longName) {
            message->AppendMessageComment(line);
            file.WriteLine(line);
        }
        for (const CANSignal* signal : message->signals) {
            if (signal->notes.HasComment()) {
                signal->AppendSignalComment(line, message->id);
                file.WriteLine(line);
            }
        }
    }
}

void CANMessage::AppendMessageComment(LineBuffer& line) const {
    if (notes.HasComment()) {
        AppendCommentLine(line, notes, keyword::BO_, {}, id);
    }
}

void CANSignal::AppendSignalComment(LineBuffer& line, std::uint32_t messageId) const {
    AppendCommentLine(line, notes, keyword::SG_, name, messageId);
}

}  // namespace vexil
