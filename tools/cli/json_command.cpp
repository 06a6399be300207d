// vexil-dbc json FILE [OPTION...]
// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/commands.h"
#include "commands/json.h"

namespace vexil::tool {

void AddJson(CLI::App& app, ExitCode& exitCode) {
    const auto options = std::make_shared<JsonOptions>();
    CLI::App* command = app.add_subcommand("json", "Print every record of the database as JSON");
    command->add_option("FILE", options->file, "The file to read; - is standard input")->required();
    command->add_flag("--account", options->account,
                      "Add the fate of each statement, as check --json prints it");
    command->add_option("--from", options->from,
                        "The encoding of FILE, such as windows-1252; the default is UTF-8");
    command->callback([options, &exitCode] { exitCode = PrintAsJson(*options); });
}

}  // namespace vexil::tool
