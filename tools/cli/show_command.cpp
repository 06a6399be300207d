// vexil-dbc show FILE [MESSAGE...] [OPTION...]
// SPDX-License-Identifier: MIT
#include <memory>

#include "cli/commands.h"
#include "commands/show.h"

namespace vexil::tool {

void AddShow(CLI::App& app, ExitCode& exitCode) {
    constexpr std::size_t LeastColumns = 40;
    constexpr std::size_t MostColumns = 1000;
    const auto options = std::make_shared<ShowOptions>();
    CLI::App* command = app.add_subcommand(
        "show", "Show messages: signals, multiplexing, values, and the layout as a drawing");
    command->add_option("FILE", options->file, "The file to show; - is standard input")->required();
    command->add_option("MESSAGE", options->messages,
                        "Names or ids of messages, or patterns with * and ?; without any, all");
    command->add_flag("--list", options->list, "Print one line for each message");
    command->add_option("--from", options->from,
                        "The encoding of the file, such as windows-1252; the default is UTF-8");
    command
        ->add_option("--width", options->width,
                     "The width in columns; the default is that of the terminal, or 100")
        ->check(CLI::Range(LeastColumns, MostColumns));
    command->add_flag("--ascii", options->ascii, "Draw with ASCII characters only");
    command->callback([options, &exitCode] { exitCode = Show(*options); });
}

}  // namespace vexil::tool
