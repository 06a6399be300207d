// What a check has found, for the views: the account of one file, or why there is none.
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

// What of it is shown.
struct CheckView {
    bool all = false;     // every statement, not only those that were refused, dropped or changed
    bool colour = false;  // of a terminal; text alone
};

}  // namespace vexil::tool
