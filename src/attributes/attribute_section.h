// The attribute section of a written file: made from the model, never from the attributes of a file
// that was read.
// SPDX-License-Identifier: MIT
#pragma once

#include "frame/can_message.h"
#include "text/statement_file.h"

namespace vexil {

// Works out which attributes the database needs, in the order of messages, and writes them; writes
// nothing when it needs none. Five attributes travel back into a file: BusType, J1939PGN, IsNMEA,
// Marrowby_Msg_Name and Marrowby_Sig_Name. The others are read and never written.
void WriteAttributeSection(StatementFile& file, const MessageList& messages);

}  // namespace vexil
