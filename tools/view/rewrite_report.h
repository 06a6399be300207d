// The report of a rewrite as text.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "account/rewrite_summary.h"

namespace vexil::tool {

// A line that sums up, and one for each cause.
//   name  of the file that was read
std::string RewriteReport(std::string_view name, const RewriteSummary& summary);

// Such as "loses 12 and changes 1".
std::string LossesInWords(const RewriteSummary& summary);

}  // namespace vexil::tool
