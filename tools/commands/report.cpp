// vexil-dbc report: the sections of all files, then the page.
// SPDX-License-Identifier: MIT
#include "commands/report.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include "account/account.h"
#include "commands/input_files.h"
#include "commands/saved_output.h"
#include "commands/source_input.h"
#include "file/saved_file.h"
#include "file/terminal.h"
#include "view/html_report.h"
#include "view/progress.h"

namespace vexil::tool {
namespace {

class Reporter {
  public:
    explicit Reporter(const ReportOptions& options) : settings(options) {}

    ExitCode Run() {
        const std::vector<std::string> files =
            InputFiles(settings.files, [this](const std::string& path, const std::string& reason) {
                PrintFileError("read", path, reason);
                Fail(path, reason);
            });
        Progress progress(std::cerr, files.size(), IsTerminal(StandardErrorStream));
        for (const std::string& file : files) {
            progress.Show(file);
            if (const auto failure = AddFile(file, progress)) {
                return *failure;
            }
        }
        progress.Clear();
        if (hasFile) {
            worst =
                std::max(worst, SaveOutput(settings.output, report.Page()).value_or(ExitSuccess));
        }
        return worst;
    }

  private:
    void Fail(const std::string& path, const std::string& reason) {
        report.AddFailure(path, reason);
        worst = std::max(worst, ExitCannotRead);
    }

    // Returns an exit code only after a failure that ends the command.
    std::optional<ExitCode> AddFile(const std::string& path, Progress& progress) {
        SourceInput input{path, settings.from, {}};
        std::optional<ExitCode> failure = LoadSource(input);
        if (!failure && settings.output != StandardStream &&
            IsSameFile(settings.output, input.file.file.Value())) {
            progress.Clear();
            PrintError("'" + settings.output + "' is one of the files to report");
            return ExitUsage;
        }
        const SourceText source(std::move(input.file.bytes));
        if (!failure) {
            failure = LoadDatabase(input, source.Bytes());
        }
        progress.Clear();
        if (failure) {
            Fail(path, "the system or the library refused it");
            worst = std::max(worst, *failure);
            return failure == ExitUsage ? failure : std::nullopt;
        }
        const Snapshot snapshot = TakeSnapshot();
        const Account account = MakeAccount(source, snapshot);
        if (HasNoStatement(account)) {
            PrintFileError("read", path, NoDbcFile);
            Fail(path, std::string(NoDbcFile));
            return std::nullopt;
        }
        report.Add({path, snapshot, account, FindLayoutFaults(account, snapshot)});
        hasFile = true;
        return std::nullopt;
    }

    const ReportOptions& settings;
    HtmlReport report;
    bool hasFile = false;
    ExitCode worst = ExitSuccess;
};

}  // namespace

ExitCode Report(const ReportOptions& options) {
    return Reporter(options).Run();
}

}  // namespace vexil::tool
