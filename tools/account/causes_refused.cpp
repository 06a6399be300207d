// Rows of the causes that a statement is refused.
// SPDX-License-Identifier: MIT
#include "account/cause_rows.h"

namespace vexil::tool {

const std::array<CauseRow, RefusedCount> RefusedRows = {{
    {Cause::MessageId, Scope::Statement, Fate::Refused, "message-id",
     "the id of a message is not a plain number of 32 bits",
     "Write the id in decimal, white space on both sides. The signals of the message are lost with "
     "it.",
     "BO_ 0x1 Engine: 8 ECU\n"},
    {Cause::MessageName, Scope::Statement, Fate::Refused, "message-name",
     "a message has no name before a colon", "Write BO_ ID NAME: SIZE SENDER.",
     "BO_ 1 Engine 8 ECU\n"},
    {Cause::MessageSize, Scope::Statement, Fate::Refused, "message-size",
     "a message has no number directly after its colon",
     "Write the size in bytes after the colon, as in BO_ 291 Engine: 8 ECU1.",
     "BO_ 1 Engine: big ECU\n"},
    {Cause::SignalName, Scope::Statement, Fate::Refused, "signal-name",
     "a signal has no colon after its name",
     "Write SG_ NAME : and what follows. The later signals of the message are lost with it.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed 0|8@1+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalLayout, Scope::Statement, Fate::Refused, "signal-layout",
     "start bit, length, byte order or sign of a signal cannot be read",
     "Write START|LENGTH@ORDER and a sign, as in 0|16@1+; the order is 0 or 1.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@2+ (1,0) [0|255] \"\" Dash\n"},
    {Cause::SignalScaling, Scope::Statement, Fate::Refused, "signal-scaling",
     "factor and offset of a signal cannot be read",
     "Write (FACTOR,OFFSET) with a full stop as the decimal point.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1) [0|255] \"\" Dash\n"},
    {Cause::SignalRange, Scope::Statement, Fate::Refused, "signal-range",
     "minimum and maximum of a signal cannot be read",
     "Write [MINIMUM|MAXIMUM]; [0|0] means that there is no range.",
     "BO_ 1 Engine: 8 ECU\n"
     " SG_ Speed : 0|8@1+ (1,0) [0] \"\" Dash\n"},
}};

}  // namespace vexil::tool
