// The report of a check as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

#include "view/check_report.h"

namespace vexil::tool {

// A summary, then the findings by cause with their lines, then the ignored statements by kind.
void PrintText(std::ostream& out, const CheckReport& report, const CheckView& view);

}  // namespace vexil::tool
