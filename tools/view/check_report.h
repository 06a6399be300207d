// The result of a check for the views: the account of one file, or the reason why there is none.
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "account/account.h"

namespace vexil::tool {

struct CheckReport {
    std::string_view name;  // of the file
    const Account& account;
    const std::vector<Finding>& layoutFindings;
};

// Options of a report.
struct CheckView {
    bool all = false;     // lists every statement, not only refused, dropped and changed ones
    bool colour = false;  // uses terminal colours; only in text reports
};

}  // namespace vexil::tool
