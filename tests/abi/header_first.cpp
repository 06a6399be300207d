// The public header as the only include of a C++ host: it brings all that it needs. Compiling this
// is the test.
// SPDX-License-Identifier: MIT
#include "vexil64.h"

static_assert(StateClosed == 2, "the constants of the header are there");
static_assert(sizeof(CanSignalRecord) == 944, "so are its records");
