// The report of a comparison as JSON; docs/diff.schema.json describes it.
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "view/diff_report.h"

namespace vexil::tool {

// Prints one document, with a line for each message that differs.
void PrintDiffAsJson(std::ostream& out, const DiffReport& report);

}  // namespace vexil::tool
