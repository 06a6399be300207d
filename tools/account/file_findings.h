// Findings about a file as a whole.
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "account/account.h"

namespace vexil::tool {

// Returns findings about the encoding, the line ends, and ids and names that are not unique.
std::vector<Finding> FindFileFindings(const SourceText& source, const Account& account,
                                      const Snapshot& snapshot);

}  // namespace vexil::tool
