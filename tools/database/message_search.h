// Finding messages by name, id or pattern.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "database/snapshot.h"

namespace vexil::tool {

// Returns whether the whole text has the form of the pattern, in which ? stands for one character
// and * for any number of them.
bool MatchesPattern(std::string_view text, std::string_view pattern);

// Returns the messages that a word stands for, as indexes into Snapshot::messages, ascending.
//   word  a name or a pattern for names, compared with both names of a message; or an id, decimal
//         or hexadecimal after 0x, as the file has it or without the bit of extended frames
std::vector<std::uint32_t> FindMessages(const Snapshot& snapshot, std::string_view word);

}  // namespace vexil::tool
