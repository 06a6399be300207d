// The table of causes, made from its parts.
// SPDX-License-Identifier: MIT
#include "account/cause.h"

#include <algorithm>
#include <vector>

#include "account/cause_rows.h"

namespace vexil::tool {
namespace {

std::vector<CauseRow> AllRows() {
    std::vector<CauseRow> rows;
    rows.reserve(RefusedCount + DroppedCount + ChangedCount + IgnoredCount + OtherCount);
    const auto add = [&rows](const auto& part) {
        rows.insert(rows.end(), part.begin(), part.end());
    };
    add(RefusedRows);
    add(DroppedRows);
    add(ChangedRows);
    add(IgnoredRows);
    add(OtherRows);
    return rows;
}

}  // namespace

std::span<const CauseRow> Causes() {
    static const std::vector<CauseRow> rows = AllRows();
    return rows;
}

const CauseRow& RowOf(Cause cause) {
    return Causes()[static_cast<std::size_t>(cause)];
}

const CauseRow* FindCause(std::string_view name) {
    const std::span<const CauseRow> rows = Causes();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [name](const CauseRow& each) { return each.name == name; });
    return row == rows.end() ? nullptr : &*row;
}

}  // namespace vexil::tool
