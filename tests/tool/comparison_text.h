// A comparison in a few lines, for the expectations of tests.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "comparison/comparison.h"

namespace vexil::test {

// A line for each message, and under it one for each signal: "-" and the name for what was removed,
// "+" for what was added, "~" and the keys of the aspects for what was changed.
std::string TextOf(const tool::Comparison& comparison, const tool::Snapshot& before,
                   const tool::Snapshot& after);

}  // namespace vexil::test
