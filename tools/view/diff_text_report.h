// The report of a comparison as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "view/diff_report.h"

namespace vexil::tool {

// A line that sums up, then the messages that differ: "-" is before what was removed, "+" before
// what was added and "~" before what was changed. Prints nothing where there is no difference.
//   inColour  with the colours of a terminal
void PrintDiff(std::ostream& out, const DiffReport& report, bool inColour);

// Prints that two files have the same meaning.
void PrintSameMeaning(std::ostream& out, const DiffReport& report);

}  // namespace vexil::tool
