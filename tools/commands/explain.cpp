// vexil-dbc explain: a row of the table of causes.
// SPDX-License-Identifier: MIT
#include "commands/explain.h"

#include <fmt/format.h>

#include <algorithm>
#include <iostream>
#include <vector>

#include "account/cause.h"
#include "commands/source_input.h"
#include "view/closest_word.h"

namespace vexil::tool {
namespace {

// What the cause is of, as a word before its name.
std::string_view KindOf(const CauseRow& row) {
    switch (row.scope) {
        case Scope::File:
            return "file";
        case Scope::Layout:
            return "layout";
        case Scope::Rewrite:
            return "rewrite";
        default:
            return NameOf(row.fate);
    }
}

void PrintAll() {
    std::size_t width = 0;
    for (const CauseRow& row : Causes()) {
        width = std::max(width, row.name.size());
    }
    std::string_view last;
    for (const CauseRow& row : Causes()) {
        if (KindOf(row) != last) {
            std::cout << (last.empty() ? "" : "\n") << KindOf(row) << '\n';
            last = KindOf(row);
        }
        std::cout << fmt::format("  {:{}}  {}\n", row.name, width, row.summary);
    }
}

void PrintIndented(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1);
        std::cout << "    " << text.substr(0, end + 1);
        text.remove_prefix(end + 1);
    }
}

}  // namespace

ExitCode Explain(const std::string& cause) {
    if (cause.empty()) {
        PrintAll();
        return ExitSuccess;
    }
    const CauseRow* const row = FindCause(cause);
    if (row == nullptr) {
        std::vector<std::string_view> names;
        for (const CauseRow& each : Causes()) {
            names.push_back(each.name);
        }
        const std::string_view closest = ClosestWord(cause, names);
        PrintError("there is no cause '" + cause + "'; " +
                   (closest.empty() ? "vexil-dbc explain lists them"
                                    : "did you mean " + std::string(closest) + "?"));
        return ExitUsage;
    }
    std::cout << KindOf(*row) << ", " << row->name << ": " << row->summary << "\n\n"
              << row->remedy << '\n';
    if (!row->example.empty()) {
        std::cout << "\nFor example:\n\n";
        PrintIndented(row->example);
    }
    return ExitSuccess;
}

}  // namespace vexil::tool
