// What of a model can be seen in the file that the library writes of it.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "property/model.h"

namespace vexil::fuzz {

// The model in the order of an Order constant, with what a file does not tell at its default and
// the rest as a file tells it: of two models with one written form the library writes one text.
// Precondition: the model was read from a file.
test::Model WrittenForm(test::Model model, std::uint32_t order);

// Whether the file of the model has a statement of several lines that is so long that a reader may
// cut it.
bool HoldsLongStatement(const test::Model& model);

}  // namespace vexil::fuzz
