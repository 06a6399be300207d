// What there is to say of a file as a whole.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "account/account.h"

namespace vexil::tool {

// The encoding of the file, its line ends, ids and names that are not unique.
std::vector<Finding> FindFileFindings(const SourceText& source, const Account& account,
                                      const Snapshot& snapshot);

}  // namespace vexil::tool
