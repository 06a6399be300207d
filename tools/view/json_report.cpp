// Writes the document one statement at a time, so that it is never in memory as a whole.
// SPDX-License-Identifier: MIT
#include "view/json_report.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

namespace vexil::tool {
namespace {

using Json = nlohmann::ordered_json;

// Returns a value on one line. File names need not be valid UTF-8.
std::string Dump(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json Counts(const Account& account) {
    Json counts;
    counts["statements"] = account.statements.size();
    const auto byFate = account.CountsByFate();
    for (const Fate fate : AllFates) {
        counts[std::string(NameOf(fate))] = byFate[static_cast<std::size_t>(fate)];
    }
    return counts;
}

Json Causes(const Account& account) {
    Json causes = Json::object();
    for (const auto& [cause, count] : account.CountsByCause()) {
        causes[std::string(NameOf(cause))] = count;
    }
    return causes;
}

Json Describe(const AccountedStatement& statement) {
    return {{"line", statement.line},
            {"column", statement.column},
            {"keyword", statement.keyword},
            {"fate", NameOf(FateOf(statement.cause))},
            {"cause", NameOf(statement.cause)},
            {"detail", statement.detail},
            {"text", statement.text}};
}

Json Describe(const Finding& finding) {
    return {{"line", finding.line},
            {"column", finding.column},
            {"fate", NameOf(FateOf(finding.cause))},
            {"cause", NameOf(finding.cause)},
            {"detail", finding.detail}};
}

// Writes a list with one element in each line.
template <typename Element, typename Filter>
void PrintList(std::ostream& out, const std::vector<Element>& list, Filter isShown) {
    bool isFirst = true;
    out << '[';
    for (const Element& each : list) {
        if (isShown(each)) {
            out << (isFirst ? "\n" : ",\n") << Dump(Describe(each));
            isFirst = false;
        }
    }
    out << (isFirst ? "]" : "\n]");
}

}  // namespace

JsonReport::JsonReport(std::ostream& out, const CheckView& view) : stream(out), viewOptions(view) {
    stream << "{\"files\": [";
}

void JsonReport::BeginFile(std::string_view name) {
    stream << (isFirst ? "\n" : ",\n") << "{\"file\": " << Dump(Json(name));
    isFirst = false;
}

void JsonReport::Add(const CheckReport& report) {
    const auto all = [](const auto& /*element*/) { return true; };
    BeginFile(report.name);
    stream << ",\n\"counts\": " << Dump(Counts(report.account))
           << ",\n\"causes\": " << Dump(Causes(report.account)) << ",\n\"findings\": ";
    PrintList(stream, report.account.fileFindings, all);
    stream << ",\n\"layout\": ";
    PrintList(stream, report.layoutFindings, all);
    stream << ",\n\"statements\": ";
    PrintList(stream, report.account.statements, [this](const AccountedStatement& each) {
        const Fate fate = FateOf(each.cause);
        return viewOptions.all || (fate != Fate::Kept && fate != Fate::Ignored);
    });
    stream << '}';
}

void JsonReport::AddFailure(std::string_view name, std::string_view reason) {
    BeginFile(name);
    stream << ", \"error\": " << Dump(Json(reason)) << '}';
}

void JsonReport::Finish() {
    stream << "\n]}\n";
}

}  // namespace vexil::tool
