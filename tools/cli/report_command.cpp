// vexil-dbc report FILE... -o OUT.html [OPTION...]
// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/commands.h"
#include "commands/report.h"

namespace vexil::tool {

void AddReport(CLI::App& app, ExitCode& exitCode) {
    const auto options = std::make_shared<ReportOptions>();
    CLI::App* command = app.add_subcommand("report", "Write an HTML page about networks");
    command
        ->add_option("FILE", options->files,
                     "The files to report, and folders with .dbc files; - is standard input")
        ->required();
    command->add_option("-o,--output", options->output, "The page to write; - is standard output")
        ->required();
    command->add_option("--from", options->from,
                        "The encoding of the files, such as windows-1252; the default is UTF-8");
    command->callback([options, &exitCode] { exitCode = Report(*options); });
}

}  // namespace vexil::tool
