// The part of a model that a written file contains.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "property/model.h"

namespace vexil::fuzz {

// Returns the model in the order of an Order constant. Members that a file does not contain have
// their defaults, and the others the values that a read of the written file gives. So the library
// writes the same text for two models with the same written form.
// Precondition: the model was read from a file.
test::Model WrittenForm(test::Model model, std::uint32_t order);

// Returns whether the written file of the model has a statement of several lines that is so long
// that the reader can cut it.
bool HoldsLongStatement(const test::Model& model);

}  // namespace vexil::fuzz
