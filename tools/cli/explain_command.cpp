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
        app.add_subcommand("explain", "Explain a cause: its meaning, a remedy, an example");
    command->add_option("CAUSE", *cause,
                        "A cause that check or rewrite names; without it, list all");
    command->callback([cause, &exitCode] { exitCode = Explain(*cause); });
}

}  // namespace vexil::tool
