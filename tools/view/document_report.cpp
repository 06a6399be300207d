// The lines of the report.
// SPDX-License-Identifier: MIT
#include "view/document_report.h"

#include "format/format.h"

namespace vexil::tool {
namespace {

std::string Counted(std::size_t count, std::string_view noun) {
    return Format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

void AppendRemarks(std::string& out, std::string_view title, const Remarks& remarks) {
    out += Format("\n{}: {}\n", title, remarks.Count());
    for (const Remark& each : remarks.Held()) {
        out += "  " + RemarkLine(each) + "\n";
    }
    const std::size_t others = remarks.Count() - remarks.Held().size();
    if (others != 0) {
        out += Format("  and {} more; --all lists them\n", others);
    }
}

}  // namespace

std::string RemarkLine(const Remark& remark) {
    return (remark.path.empty() ? "the document" : remark.path) + ": " + remark.text;
}

std::string DocumentReport(std::string_view name, const DocumentResult& result) {
    std::string out = Format("{}: {}, {}, {}\n", name, Counted(result.messages, "message"),
                             Counted(result.signals, "signal"),
                             Counted(result.descriptions, "value description"));
    for (const auto& [field, remarks] : result.changed) {
        AppendRemarks(out, "changed, " + field, remarks);
    }
    if (result.cut.Count() != 0) {
        AppendRemarks(out, "may be cut", result.cut);
    }
    return out;
}

}  // namespace vexil::tool
