// Facts about messages in words.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "database/snapshot.h"

namespace vexil::tool {

// The id on the bus, decimal and in hexadecimal, and the kind of its frame, such as
// "256 (0x100), standard frame". An extended frame also has the number that the file has.
std::string IdInWords(std::uint32_t id);

// The J1939 parts of an id, such as "priority 6, PGN 65266 (0xFEF2), source 0 (0x00)". Empty for an
// id that has none.
std::string J1939InWords(std::uint32_t id);

// The send type and the cycle time, such as "Cyclic, every 100 ms". Empty without both.
std::string SendingInWords(const Snapshot& snapshot, const MessageFacts& message);

}  // namespace vexil::tool
