// The sections of a written file, in order. The attribute section, between comments and value
// descriptions, is attributes/attribute_section.h.
//
// Every line goes through StatementFile::WriteLine, so a section writes nothing after a failure.
// Texts of the model are written byte for byte, without escapes, checks or changes.
// SPDX-License-Identifier: MIT
#pragma once

#include "frame/can_message.h"
#include "text/line_buffer.h"
#include "text/statement_file.h"

namespace vexil {

// VERSION and the NS_ block, the same in every file.
void WriteVersionAndSymbols(StatementFile& file, const MessageList& messages);

// BS_, without a bit timing.
void WriteBitTiming(StatementFile& file, const MessageList& messages);

// BU_, the node list.
void WriteNodes(StatementFile& file, const MessageList& messages);

// Appends the text of BU_ without its last line feed: every transmitter and receiver once, in
// descending byte order, whatever the order of the messages. Intentional: a line ends where the
// text passes a multiple of 256 bytes, not at a length of its own. Precondition: text is empty.
void AppendNodeList(LineBuffer& text, const MessageList& messages);

// BO_ with the SG_ lines of the message and an empty line after each.
void WriteMessages(StatementFile& file, const MessageList& messages);

// CM_ of each message and then of its signals. Intentional: a message without a comment whose long
// name differs from its name leaves an empty line.
void WriteComments(StatementFile& file, const MessageList& messages);

// VAL_ of each signal with value descriptions. Intentional: the descriptions of a float are not
// written.
void WriteValueDescriptions(StatementFile& file, const MessageList& messages);

// SIG_VALTYPE_ of each float signal.
void WriteSignalValueTypes(StatementFile& file, const MessageList& messages);

}  // namespace vexil
