// All that the database of the library holds, with texts of any length where a record has only what
// fits, and the text that tells two such models apart.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "property/model.h"

namespace vexil::fuzz {

// The model of what the library has now. Ends the process when the library holds what no call may
// leave: an empty message or signal, or the tables of a read.
test::Model HeldModel();

// Every member, line by line. Numbers are told to the bit, so -0 and 0 differ.
std::string ModelText(const test::Model& model);

// Checks that the library holds the model, and that its functions give the records of the model.
void ExpectHeld(const test::Model& model, const char* when);

}  // namespace vexil::fuzz
