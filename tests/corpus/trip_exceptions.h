// What one trip through a written file changes: the one list of all that may differ between a
// database and the same database written and read again.
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "support/record_dump.h"

namespace vexil::test {

// Turns the model into what it is after a trip. Adds to counts how many records each exception,
// under its name, has changed.
void ApplyTripExceptions(DatabaseRecords& model, std::map<std::string, std::size_t>& counts);

}  // namespace vexil::test
