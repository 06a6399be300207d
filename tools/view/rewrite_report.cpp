// Writes the report of a rewrite: columns with counts, causes and summaries.
// SPDX-License-Identifier: MIT
#include "view/rewrite_report.h"

#include <algorithm>

namespace vexil::tool {
namespace {

std::string Padded(std::string text, std::size_t width) {
    text.append(width - std::min(width, text.size()), ' ');
    return text;
}

std::size_t WidthOfNames(const RewriteSummary& summary) {
    std::size_t width = 0;
    for (const auto* counts : {&summary.losses, &summary.changes}) {
        for (const CauseCount& each : *counts) {
            width = std::max(width, NameOf(each.cause).size());
        }
    }
    return width;
}

void AppendCounts(std::string& out, std::string_view title, const std::vector<CauseCount>& counts,
                  std::size_t width) {
    if (counts.empty()) {
        return;
    }
    out += title;
    out += "\n";
    for (const CauseCount& each : counts) {
        constexpr std::size_t CountWidth = 7;
        const std::string count = std::to_string(each.count);
        out += std::string(CountWidth - std::min(CountWidth, count.size()), ' ') + count + "  " +
               Padded(std::string(NameOf(each.cause)), width) + "  ";
        if (each.line != 0) {
            out += (each.count == 1 ? "line " : "from line ") + std::to_string(each.line) + ": ";
        }
        out += RowOf(each.cause).summary;
        out += "\n";
    }
}

}  // namespace

std::string LossesInWords(const RewriteSummary& summary) {
    return "loses " + std::to_string(TotalOf(summary.losses)) + " and changes " +
           std::to_string(TotalOf(summary.changes));
}

std::string RewriteReport(std::string_view name, const RewriteSummary& summary) {
    std::string out(name);
    if (summary.IsEmpty()) {
        return out + ": the written file loses nothing and changes nothing\n";
    }
    const std::size_t width = WidthOfNames(summary);
    out += ": the written file " + LossesInWords(summary) + "\n";
    AppendCounts(out, "loses", summary.losses, width);
    AppendCounts(out, "changes", summary.changes, width);
    return out;
}

}  // namespace vexil::tool
