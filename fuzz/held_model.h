// The complete content of the database as a model, with texts of any length, while those of a
// record are cut; and the comparison of such models.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "property/model.h"

namespace vexil::fuzz {

// Returns the model of the current database. Ends the process if the tables of a read are not
// empty, because every call must empty them.
test::Model HeldModel();

// Returns all members as text, one in a line. Numbers are exact to the bit, so -0 and 0 differ.
std::string ModelText(const test::Model& model);

// Checks that two models are the same.
void ExpectSameModel(const test::Model& model, const test::Model& expected, const char* what);

// Checks that the functions of the library give the records of the model.
void ExpectRecords(const test::Model& model, const char* what);

// Makes both checks for the current database.
void ExpectHeld(const test::Model& model, const char* what);

}  // namespace vexil::fuzz
