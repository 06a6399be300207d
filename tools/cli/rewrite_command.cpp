// vexil-dbc rewrite IN OUT [OPTION...]
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/order_option.h"
#include "commands/rewrite.h"

namespace vexil::tool {
namespace {

struct RewriteArguments {
    RewriteOptions options;
    std::string order = DefaultOrder;
};

}  // namespace

void AddRewrite(CLI::App& app, ExitCode& exitCode) {
    const auto arguments = std::make_shared<RewriteArguments>();
    RewriteOptions& options = arguments->options;
    CLI::App* command =
        app.add_subcommand("rewrite", "Read a file and write what is kept of it to another");
    command->add_option("IN", options.input, "The file to read; - is standard input")->required();
    command
        ->add_option("OUT", options.output,
                     "The file to write, which may be IN; - is standard output")
        ->required();
    AddOrderOption(*command, arguments->order);
    command->add_option("--from", options.from,
                        "The encoding of IN, such as windows-1252; UTF-8 without it");
    command->add_flag("--accept-loss", options.acceptLoss,
                      "Write over IN even if that loses or changes something");
    command->add_flag("--dry-run", options.dryRun, "Write nothing");
    command->add_flag("--diff", options.diff, "Print how the text that is written differs from IN");
    command->callback([arguments, &exitCode] {
        RewriteOptions& chosen = arguments->options;
        if (chosen.diff && !chosen.dryRun && chosen.output == "-") {
            throw CLI::ValidationError("--diff", "needs standard output, which is OUT");
        }
        chosen.order = OrderOf(arguments->order);
        exitCode = Rewrite(chosen);
    });
}

}  // namespace vexil::tool
