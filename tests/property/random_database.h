// Random databases, put into the library through its public header.
// SPDX-License-Identifier: MIT
#pragma once

#include "property/model.h"
#include "property/seed.h"

namespace vexil::test {

// Fills the empty database of the library with random records. Names, ids and texts come from few
// words, so that they meet; texts hold quotes, line breaks, control characters, UTF-8 and what
// looks like a part of a statement. Returns what the database should hold then.
Model AppendRandomDatabase(Random& random);

}  // namespace vexil::test
