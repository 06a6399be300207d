// What a written file lost and changed of the file that it was made from, counted by cause.
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
    std::uint32_t line = 0;  // of the first place; 0: no place in particular

    bool operator==(const CauseCount&) const = default;
};

struct RewriteSummary {
    std::vector<CauseCount> losses;  // both in the order of the causes
    std::vector<CauseCount> changes;
    bool hasFindings = false;  // a statement was refused or dropped

    bool IsEmpty() const { return losses.empty() && changes.empty(); }
};

// A statement that the written file has, too, word for word, was neither lost nor changed, whatever
// became of it in the database.
//   findings  those of FindRewriteLosses
//   written   the text that the library wrote
RewriteSummary SummarizeRewrite(const Account& account, const std::vector<Finding>& findings,
                                std::string_view written);

// The sum of the counts.
std::size_t TotalOf(const std::vector<CauseCount>& counts);

}  // namespace vexil::tool
