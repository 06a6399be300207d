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
        app.add_subcommand("rewrite", "Read a file and write the data that the library keeps");
    command->add_option("IN", options.input, "The file to read; - is standard input")->required();
    command
        ->add_option("OUT", options.output,
                     "The file to write, which may be IN; - is standard output")
        ->required();
    AddOrderOption(*command, arguments->order);
    command->add_option("--from", options.from,
                        "The encoding of IN, such as windows-1252; the default is UTF-8");
    command->add_flag("--accept-loss", options.acceptLoss,
                      "Write over IN even if that loses or changes something");
    command->add_flag("--dry-run", options.dryRun, "Write nothing, but report losses and changes");
    command->add_flag("--diff", options.diff, "Print the differences between IN and the new text");
    command->callback([arguments, &exitCode] {
        RewriteOptions& chosen = arguments->options;
        if (chosen.diff && !chosen.dryRun && chosen.output == "-") {
            throw CLI::ValidationError("--diff", "needs --dry-run if OUT is standard output");
        }
        chosen.order = OrderOf(arguments->order);
        exitCode = Rewrite(chosen);
    });
}

}  // namespace vexil::tool
