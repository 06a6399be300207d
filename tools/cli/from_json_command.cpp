// vexil-dbc from-json IN OUT [OPTION...]
// SPDX-License-Identifier: MIT
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/order_option.h"
#include "commands/from_json.h"

namespace vexil::tool {
namespace {

struct FromJsonArguments {
    FromJsonOptions options;
    std::string order = DefaultOrder;
};

}  // namespace

void AddFromJson(CLI::App& app, ExitCode& exitCode) {
    const auto arguments = std::make_shared<FromJsonArguments>();
    FromJsonOptions& options = arguments->options;
    CLI::App* command =
        app.add_subcommand("from-json", "Make a DBC file from a document that json printed");
    command->add_option("IN", options.input, "The document to read; - is standard input")
        ->required();
    command->add_option("OUT", options.output, "The file to write; - is standard output")
        ->required();
    AddOrderOption(*command, arguments->order);
    command->add_flag("--skip-refused", options.skipRefused,
                      "Leave out each message, signal and value description with a refused value, "
                      "and write the rest");
    command->add_flag("--all", options.all, "List every value that is changed or may be cut");
    command->callback([arguments, &exitCode] {
        arguments->options.order = OrderOf(arguments->order);
        exitCode = FromJson(arguments->options);
    });
}

}  // namespace vexil::tool
