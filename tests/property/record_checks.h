// Rules for the records of every database, for any file.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "support/record_dump.h"

namespace vexil::test {

// The first of these that does not hold for a database that was read, with its message and signal;
// empty when all hold:
//   - texts are valid UTF-8; names and nodes are identifiers or empty, units are ASCII
//   - only a signal may have no name; a long name has no line ends or tabs
//   - every quote of a comment follows a backslash
//   - constants are those of the header; floats have their length, plain signals no multiplex value
//   - no minimum is above its maximum, and value descriptions ascend
//   - errors have a code of the header and at most 254 bytes of text
std::string BrokenRule(const DatabaseRecords& database);

}  // namespace vexil::test
