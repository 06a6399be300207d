// vexil-dbc explain [CAUSE]
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/commands.h"
#include "commands/explain.h"

namespace vexil::tool {

void AddExplain(CLI::App& app, ExitCode& exitCode) {
    const auto cause = std::make_shared<std::string>();
    CLI::App* command =
        app.add_subcommand("explain", "Tell what a cause means and what to do about it");
    command->add_option("CAUSE", *cause, "A name that check prints; none for a list of all");
    command->callback([cause, &exitCode] { exitCode = Explain(*cause); });
}

}  // namespace vexil::tool
