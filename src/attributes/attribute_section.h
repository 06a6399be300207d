// The attribute section of a written file: made from the model, never from the attributes of a file
// that was read.
// SPDX-License-Identifier: MIT
#pragma once

#include "frame/can_message.h"
#include "text/statement_file.h"

namespace vexil {

// Determines which attributes the database needs and writes them in the order of messages, or
// nothing when it needs none. Only BusType, J1939PGN, IsNMEA, Marrowby_Msg_Name and
// Marrowby_Sig_Name are written. The other four attributes are read and never written.
void WriteAttributeSection(StatementFile& file, const MessageList& messages);

}  // namespace vexil
