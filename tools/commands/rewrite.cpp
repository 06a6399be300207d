// vexil-dbc rewrite: reads a file, writes it to a private file, compares both, and only then saves.
// SPDX-License-Identifier: MIT
#include "commands/rewrite.h"

#include <iostream>
#include <optional>

#include "account/rewrite_summary.h"
#include "commands/database_output.h"
#include "commands/saved_output.h"
#include "commands/source_input.h"
#include "file/saved_file.h"
#include "view/rewrite_report.h"
#include "view/unified_diff.h"

namespace vexil::tool {
namespace {

// Prints the report on standard output, or on standard error if standard output gets the file or
// the differences.
void Report(const RewriteOptions& options, const std::string& report) {
    const bool isFree = !options.diff && (options.dryRun || options.output != StandardStream);
    (isFree ? std::cout : std::cerr) << report;
}

// Whether saving would replace the only copy of data that the new text loses.
bool NeedsAcceptance(const RewriteOptions& options, const RewriteSummary& summary,
                     const InputFile& input) {
    return !options.acceptLoss && !summary.IsEmpty() && options.output != StandardStream &&
           IsSameFile(options.output, input.file.Value());
}

}  // namespace

ExitCode Rewrite(const RewriteOptions& options) {
    SourceInput input{options.input, options.from, {}};
    if (const auto failure = LoadSource(input)) {
        return *failure;
    }
    const SourceText source(std::move(input.file.bytes));
    if (const auto failure = LoadDatabase(input, source.Bytes())) {
        return *failure;
    }
    const Snapshot snapshot = TakeSnapshot();
    const Account account = MakeAccount(source, snapshot);
    const std::vector<Finding> findings = FindRewriteLosses(account, snapshot);
    std::string text;
    if (const auto failure = WriteText({options.input, options.output, options.order}, text)) {
        return *failure;
    }
    const RewriteSummary summary = SummarizeRewrite(account, findings, text);
    const bool isHeld = NeedsAcceptance(options, summary, input.file);
    // Windows does not replace an open file.
    static_cast<void>(input.file.file.Close());
    if (!isHeld && !options.dryRun) {
        if (const auto failure = SaveOutput(options.output, text)) {
            return *failure;
        }
    }
    Report(options, RewriteReport(options.input, summary));
    if (options.diff) {
        std::cout << UnifiedDiff({options.input, source.Bytes()}, {options.output, text});
    }
    if (isHeld) {
        PrintError("'" + options.output + "' stays as it is: the written file " +
                   LossesInWords(summary) + "; --accept-loss saves it nevertheless");
        return ExitNotAccepted;
    }
    return summary.hasFindings && !options.acceptLoss ? ExitFindings : ExitSuccess;
}

}  // namespace vexil::tool
