// Dumps of the model on one line each, so that an expectation fits beside its input. They are
// exact: different models have different dumps.
//
// A signal reads much like its statement; defaults are left out, except for names.
//
//   'Speed' m3 0|16@1+ (0.1,0) [0|6553.5] 'km/h' ABS,ECU comment='x' enums={0:'Off',1:'On'}
//
// Texts are in single quotes, with escapes as in C; numbers are the shortest that read back as
// the same double. Long, raw and UTF-8 forms show only where they differ from the form before them.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "frame/can_message.h"
#include "frame/can_signal.h"

namespace vexil::test {

// Returns the texts joined.
template <typename... Parts>
std::string Concat(const Parts&... parts) {
    std::string text;
    (text.append(std::string_view(parts)), ...);
    return text;
}

// Returns text in single quotes. Bytes of 128 and above stay as they are.
std::string Quoted(std::string_view text);

// 'name' [M|m<number>] start|length@order<sign> (factor,offset) [min|max] 'unit' receivers
//     [long=''] [raw=''] [utf8=''] [comment=''] [enums={}] [start=] [inactive=] [suffixed]
// The sign is + or - for integers, f or d for floats. Without receivers there is nothing after the
// unit.
std::string Dump(const CANSignal& signal);

// The message without its signals:
// id 'name' dlc 'transmitter' [long=''] [send=''] [cycle=] [comment='']
std::string Dump(const CANMessage& message);

// The whole comment of notes.
std::string CommentOf(const Notes& notes);

// The value descriptions in the form of the dump of a signal, without braces.
std::string EnumsOf(const CANSignal& signal);

// The content of the database, each entry on a line that ends in a line feed: the info if it is
// not 0/0, the messages, each followed by its signals with two blanks before them, the parse
// errors, and what is left in the tables that only a read may hold.
//
//   info protocol/bus
//   error code @line 'text'
//   left over: owners of 1 definitions 2 values 3
std::string DumpDatabase();

}  // namespace vexil::test
