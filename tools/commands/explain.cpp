// vexil-dbc explain: a row of the table of causes.
// SPDX-License-Identifier: MIT
#include "commands/explain.h"

#include <algorithm>
#include <iostream>
#include <vector>

#include "account/cause.h"
#include "commands/source_input.h"
#include "format/format.h"
#include "source/utf8.h"
#include "view/closest_word.h"

namespace vexil::tool {
namespace {

// Returns the word before the name of a cause: its fate or its scope.
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
        std::cout << Format("  {:{}}  {}\n", row.name, width, row.summary);
    }
}

// Returns the number of bytes of a printable character; 0 if the byte must be escaped.
std::size_t PrintableSize(std::string_view text, std::size_t at) {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool isControl = (byte < ' ' && byte != '\n') || byte == 0x7F;
    return isControl || text.substr(at).starts_with(ByteOrderMark) ? 0 : Utf8Length(text, at);
}

void PrintExample(std::string_view text) {
    std::string shown = "    ";
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = PrintableSize(text, at);
        if (size == 0) {
            shown += Format("\\x{:02X}", static_cast<unsigned char>(text[at]));
        }
        shown += text.substr(at, size);
        if (text[at] == '\n' && at + 1 < text.size()) {
            shown += "    ";
        }
        at += std::max<std::size_t>(1, size);
    }
    std::cout << shown << (shown.ends_with('\n') ? "" : "\n");
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
        PrintExample(row->example);
    }
    return ExitSuccess;
}

}  // namespace vexil::tool
