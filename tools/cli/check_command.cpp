// vexil-dbc check FILE... [OPTION...]
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "commands/check.h"

namespace vexil::tool {
namespace {

struct CheckArguments {
    CheckOptions options;
    std::string failOn = "refused,dropped";
};

// Returns the fates of a list that is separated by commas, and the last word of it that is no fate.
std::pair<std::vector<Fate>, std::string> ReadFates(std::string_view list) {
    std::pair<std::vector<Fate>, std::string> read;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(','), list.size());
        const std::string_view name = list.substr(0, end);
        if (const auto fate = FindFate(name)) {
            read.first.push_back(*fate);
        } else {
            read.second = name;
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return read;
}

std::string CheckFates(const std::string& list) {
    const std::string wrong = ReadFates(list).second;
    return wrong.empty() || list == "none"
               ? ""
               : wrong + " not in {refused,dropped,changed,ignored,kept}, and not none";
}

}  // namespace

void AddCheck(CLI::App& app, ExitCode& exitCode) {
    const auto arguments = std::make_shared<CheckArguments>();
    CheckOptions& options = arguments->options;
    CLI::App* command =
        app.add_subcommand("check",
                           "Account for every statement: refused, dropped, changed, "
                           "ignored or kept");
    command
        ->add_option("FILE", options.files,
                     "The files to check, and folders with .dbc files; - is standard input")
        ->required();
    command->add_flag("--all", options.all, "List every statement");
    command->add_flag("--json", options.json, "Print JSON, as docs/check.schema.json describes it");
    command->add_flag("--layout", options.layout,
                      "Also check the layout of the signals: overlaps, signals outside their "
                      "message, missing selectors, ranges that no raw value reaches");
    command
        ->add_option("--fail-on", arguments->failOn,
                     "The fates that make the exit code 1, separated by commas, or none")
        ->check(CheckFates)
        ->capture_default_str();
    command->add_option("--from", options.from,
                        "The encoding of the files, such as windows-1252; the default is UTF-8");
    command->callback([arguments, &exitCode] {
        arguments->options.failOn = ReadFates(arguments->failOn).first;
        exitCode = Check(arguments->options);
    });
}

}  // namespace vexil::tool
