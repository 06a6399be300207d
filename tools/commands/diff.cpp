// vexil-dbc diff: two files are read one after the other, and their snapshots compared.
// SPDX-License-Identifier: MIT
#include "commands/diff.h"

#include <iostream>
#include <optional>
#include <utility>

#include "account/account.h"
#include "commands/source_input.h"
#include "comparison/comparison.h"
#include "database/snapshot.h"
#include "file/terminal.h"
#include "view/diff_json_report.h"
#include "view/diff_text_report.h"
#include "view/visible_text.h"

namespace vexil::tool {
namespace {

// On every system, git passes this path for the missing version of an added or deleted file.
constexpr std::string_view NullDevice = "/dev/null";

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(" \f\n\r\t\v") == std::string_view::npos;
}

// Refused statements are in neither network, so they are not compared.
void ReportRefused(const DiffSource& source, std::size_t count) {
    if (count != 0) {
        PrintError("'" + source.name + "': " + std::to_string(count) + " statement" +
                   (count == 1 ? " was" : "s were") +
                   " refused and not compared; vexil-dbc check lists " +
                   (count == 1 ? "it" : "them"));
    }
}

// Reads a file. Reports a failure and returns nothing.
std::optional<Snapshot> ReadNetwork(const DiffSource& source, const std::string& encoding) {
    if (source.path == NullDevice) {
        return Snapshot();
    }
    SourceInput input{source.path, encoding, {}};
    if (LoadSource(input)) {
        return std::nullopt;
    }
    const SourceText text(std::move(input.file.bytes));
    if (LoadDatabase(input, text.Bytes())) {
        return std::nullopt;
    }
    Snapshot snapshot = TakeSnapshot();
    if (snapshot.messages.empty() && snapshot.errors.empty() && !IsBlank(text.Bytes()) &&
        HasNoStatement(MakeAccount(text, snapshot))) {
        PrintFileError("read", source.name, NoDbcFile);
        return std::nullopt;
    }
    ReportRefused(source, snapshot.errors.size());
    return snapshot;
}

}  // namespace

ExitCode Diff(const DiffOptions& options) {
    const std::optional<Snapshot> before = ReadNetwork(options.before, options.from);
    if (!before) {
        return ExitTrouble;
    }
    const std::optional<Snapshot> after = ReadNetwork(options.after, options.from);
    if (!after) {
        return ExitTrouble;
    }
    const Comparison comparison = Compare(*before, *after, options.ignored);
    const DiffReport report{options.before.name, options.after.name, *before, *after, comparison};
    if (options.json) {
        PrintDiffAsJson(std::cout, report);
    } else {
        PrintDiff(std::cout, report, WantsColour());
    }
    if (options.isForGit && comparison.IsEmpty()) {
        PrintSameMeaning(std::cout, report);
    }
    if (!std::cout.flush()) {
        PrintError("cannot write standard output");
        return ExitTrouble;
    }
    return comparison.IsEmpty() || options.isForGit ? ExitSuccess : ExitFindings;
}

ExitCode ReportUnmerged(const std::string& path) {
    std::cout << Visible(path) << ": not merged\n";
    return ExitSuccess;
}

}  // namespace vexil::tool
