// vexil-dbc check: one file after the other, each with its account.
// SPDX-License-Identifier: MIT
#include "commands/check.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include "account/account.h"
#include "commands/input_files.h"
#include "commands/source_input.h"
#include "file/terminal.h"
#include "view/json_report.h"
#include "view/progress.h"
#include "view/text_report.h"

namespace vexil::tool {
namespace {

class Checker {
  public:
    explicit Checker(const CheckOptions& options)
        : settings(options), viewOptions{options.all, !options.json && WantsColour()} {
        if (options.json) {
            json.emplace(std::cout, viewOptions);
        }
    }

    ExitCode Run() {
        const std::vector<std::string> files = InputFiles(
            settings.files,
            [this](const std::string& path, const std::string& reason) { Fail(path, reason); });
        Progress progress(std::cerr, files.size(), IsTerminal(StandardErrorStream));
        for (const std::string& file : files) {
            progress.Show(file);
            const ExitCode result = CheckFile(file, progress);
            if (result == ExitUsage) {
                return result;
            }
            worst = std::max(worst, result);
        }
        progress.Clear();
        if (json) {
            json->Finish();
        }
        return worst;
    }

  private:
    void Fail(const std::string& path, const std::string& reason) {
        PrintFileError("read", path, reason);
        if (json) {
            json->AddFailure(path, reason);
        }
        worst = ExitCannotRead;
    }

    ExitCode CheckFile(const std::string& path, Progress& progress) {
        SourceInput input{path, settings.from, {}};
        std::optional<ExitCode> failure = LoadSource(input);
        const SourceText source(std::move(input.file.bytes));
        if (!failure) {
            failure = LoadDatabase(input, source.Bytes());
        }
        progress.Clear();
        if (failure) {
            if (json) {
                json->AddFailure(path, "the file cannot be read");
            }
            return *failure;
        }
        const Snapshot snapshot = TakeSnapshot();
        const Account account = MakeAccount(source, snapshot);
        const std::vector<Finding> layout =
            settings.layout ? FindLayoutFaults(account, snapshot) : std::vector<Finding>();
        Print({path, account, layout});
        return ResultOf(account, layout);
    }

    void Print(const CheckReport& report) {
        if (json) {
            json->Add(report);
            return;
        }
        std::cout << (isFirst ? "" : "\n");
        isFirst = false;
        PrintText(std::cout, report, viewOptions);
    }

    bool IsFinding(Cause cause) const {
        const std::vector<Fate>& fates = settings.failOn;
        return std::find(fates.begin(), fates.end(), FateOf(cause)) != fates.end();
    }

    ExitCode ResultOf(const Account& account, const std::vector<Finding>& layout) const {
        const auto isFinding = [this](const auto& each) { return IsFinding(each.cause); };
        const auto any = [&](const auto& list) {
            return std::any_of(list.begin(), list.end(), isFinding);
        };
        if (HasNoStatement(account)) {
            return ExitCannotRead;
        }
        return any(account.statements) || any(account.fileFindings) || any(layout) ? ExitFindings
                                                                                   : ExitSuccess;
    }

    const CheckOptions& settings;
    CheckView viewOptions;
    std::optional<JsonReport> json;
    bool isFirst = true;
    ExitCode worst = ExitSuccess;
};

}  // namespace

ExitCode Check(const CheckOptions& options) {
    return Checker(options).Run();
}

}  // namespace vexil::tool
