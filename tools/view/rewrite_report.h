// The report of a rewrite as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "account/rewrite_summary.h"

namespace vexil::tool {

// Returns a line with the totals, and a line for each cause.
//   name  of the input file
std::string RewriteReport(std::string_view name, const RewriteSummary& summary);

// Returns the totals, such as "loses 12 and changes 1".
std::string LossesInWords(const RewriteSummary& summary);

}  // namespace vexil::tool
