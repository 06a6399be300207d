// The summary of a rewrite: the statements that a written file lost and changed, counted by cause.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "account/account.h"

namespace vexil::tool {

struct CauseCount {
    Cause cause = Cause::Kept;
    std::size_t count = 0;
    std::uint32_t line = 0;  // of the first place; 0: the cause has no line

    bool operator==(const CauseCount&) const = default;
};

struct RewriteSummary {
    std::vector<CauseCount> losses;  // both in the order of the causes
    std::vector<CauseCount> changes;
    bool hasFindings = false;  // a statement was refused or dropped

    bool IsEmpty() const { return losses.empty() && changes.empty(); }
};

// Compares the statements of both files. A statement that the written file also has, word for word,
// is neither lost nor changed, regardless of its fate.
//   findings  the result of FindRewriteLosses
//   written   the text that the library wrote
RewriteSummary SummarizeRewrite(const Account& account, const std::vector<Finding>& findings,
                                std::string_view written);

// Returns the sum of the counts.
std::size_t TotalOf(const std::vector<CauseCount>& counts);

}  // namespace vexil::tool
