// All that the database of the library holds, with texts of any length where a record has only what
// fits, and the text that tells two such models apart.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "property/model.h"

namespace vexil::fuzz {

// The model of what the library has now. Ends the process when the library holds what no call may
// leave: the tables of a read.
test::Model HeldModel();

// Every member, line by line. Numbers are told to the bit, so -0 and 0 differ.
std::string ModelText(const test::Model& model);

// Checks that two models are the same.
void ExpectSameModel(const test::Model& model, const test::Model& expected, const char* what);

// Checks that the functions of the library give the records of the model.
void ExpectRecords(const test::Model& model, const char* what);

// Checks both for what the library holds.
void ExpectHeld(const test::Model& model, const char* what);

}  // namespace vexil::fuzz
