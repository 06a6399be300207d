// The sections of a written file, in their order there; the attribute section, which stands between
// comments and value descriptions, is attributes/attribute_section.h.
//
// Every line goes through StatementFile::WriteLine, so a section does nothing behind a failure.
// Model texts are put out byte for byte; nothing is escaped, checked or changed here.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "frame/can_message.h"
#include "text/statement_file.h"

namespace vexil {

// VERSION and the NS_ block, the same in every file.
void WriteVersionAndSymbols(StatementFile& file);

// BS_, without a bit timing.
void WriteBitTiming(StatementFile& file);

// BU_, the node list.
void WriteNodes(StatementFile& file);

// Returns the text of BU_ without its last line end: every transmitter and receiver of the database
// once, in descending byte order, whatever the order of the messages. Kept on purpose: a line is
// broken where the text passes a multiple of 256 bytes, not by its own length.
std::string BuildNodeList();

// BO_ with the SG_ lines of the message and an empty line behind each.
void WriteMessages(StatementFile& file, const MessageList& messages);

// CM_ of each message and then of its signals. Kept on purpose: a message without a comment whose
// name is not its long name leaves an empty line.
void WriteComments(StatementFile& file, const MessageList& messages);

// VAL_ of each signal with value descriptions, then SIG_VALTYPE_ of each float signal. Kept on
// purpose: the descriptions of a float stay out of the file.
void WriteValueSections(StatementFile& file, const MessageList& messages);

}  // namespace vexil
