// vexil-dbc: the arguments, and the command that they ask for.
//
//   vexil-dbc check FILE... [OPTION...]
//   vexil-dbc explain [CAUSE]
//   vexil-dbc rewrite IN OUT [OPTION...]
//
// A command has a file in commands, and a function here that gives it its arguments.
// SPDX-License-Identifier: MIT
#include <vexil64.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "arguments.h"
#include "commands/check.h"
#include "commands/explain.h"
#include "commands/rewrite.h"
#include "commands/source_input.h"
#include "file/standard_streams.h"
#include "file/temporary_file.h"
#include "view/closest_word.h"

namespace {

using vexil::tool::ExitCode;

// What the command line said, and what came of it.
struct Invocation {
    std::string cause;
    std::string order = "file";
    std::string failOn = "refused,dropped";
    vexil::tool::CheckOptions check;
    vexil::tool::RewriteOptions rewrite;
    ExitCode exitCode = vexil::tool::ExitSuccess;
};

const std::map<std::string, std::uint32_t> Orders = {
    {"id", OrderByIdDescending}, {"name", OrderByNameAscending}, {"file", OrderAsStored}};

std::string LibraryVersion() {
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << VexilGetLibraryVersion();
    return text.str();
}

// The fates of a list with commas. A word that is none, or "none", is in the second place.
std::pair<std::vector<vexil::tool::Fate>, std::string> ReadFates(std::string_view list) {
    std::pair<std::vector<vexil::tool::Fate>, std::string> read;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(','), list.size());
        const std::string_view name = list.substr(0, end);
        if (const auto fate = vexil::tool::FindFate(name)) {
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

void AddCheck(CLI::App& app, Invocation& call) {
    vexil::tool::CheckOptions& options = call.check;
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
                      "Look at the layout of the signals, too: overlaps, signals outside their "
                      "message, missing selectors, ranges out of reach");
    command
        ->add_option("--fail-on", call.failOn,
                     "The fates that count as findings, with commas between them; none for none")
        ->check(CheckFates)
        ->capture_default_str();
    command->add_option("--from", options.from,
                        "The encoding of the files, such as windows-1252; UTF-8 without it");
    command->callback([&call, &options] {
        options.failOn = ReadFates(call.failOn).first;
        call.exitCode = vexil::tool::Check(options);
    });
}

void AddExplain(CLI::App& app, Invocation& call) {
    CLI::App* command =
        app.add_subcommand("explain", "Tell what a cause means and what to do about it");
    command->add_option("CAUSE", call.cause, "A name that check prints; none for a list of all");
    command->callback([&call] { call.exitCode = vexil::tool::Explain(call.cause); });
}

void AddRewrite(CLI::App& app, Invocation& call) {
    vexil::tool::RewriteOptions& options = call.rewrite;
    CLI::App* command =
        app.add_subcommand("rewrite", "Read a file and write what is kept of it to another");
    command->add_option("IN", options.input, "The file to read; - is standard input")->required();
    command
        ->add_option("OUT", options.output,
                     "The file to write, which may be IN; - is standard output")
        ->required();
    command
        ->add_option("--order", call.order,
                     "Order of the messages: id, largest first; name; or file, as they stand")
        ->check(CLI::IsMember(Orders))
        ->capture_default_str();
    command->add_option("--from", options.from,
                        "The encoding of IN, such as windows-1252; UTF-8 without it");
    command->add_flag("--accept-loss", options.acceptLoss,
                      "Write over IN even if that loses or changes something");
    command->add_flag("--dry-run", options.dryRun, "Write nothing");
    command->add_flag("--diff", options.diff, "Print how the text that is written differs from IN");
    command->callback([&call, &options] {
        if (options.diff && !options.dryRun && options.output == "-") {
            throw CLI::ValidationError("--diff", "needs standard output, which is OUT");
        }
        options.order = Orders.at(call.order);
        call.exitCode = vexil::tool::Rewrite(options);
    });
}

// Whether the first word is a command. If not, prints an error that suggests a similar one.
bool NamesACommand(const CLI::App& app, const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments.front().starts_with('-')) {
        return true;  // for the parser
    }
    std::vector<std::string> names;
    for (const CLI::App* command : app.get_subcommands(nullptr)) {
        names.push_back(command->get_name());
    }
    const std::string& typed = arguments.front();
    if (std::find(names.begin(), names.end(), typed) != names.end()) {
        return true;
    }
    const std::string_view closest = vexil::tool::ClosestWord(typed, {names.begin(), names.end()});
    vexil::tool::PrintError("there is no command '" + typed + "'; " +
                            (closest.empty() ? "vexil-dbc --help lists them"
                                             : "did you mean " + std::string(closest) + "?"));
    return false;
}

// Runs the command that the arguments ask for.
ExitCode Run(const std::vector<std::string>& arguments) {
    Invocation call;
    CLI::App app("Checks and rewrites DBC files, the descriptions of CAN bus networks.",
                 "vexil-dbc");
    app.allow_windows_style_options(false);  // "/home/a.dbc" is a path everywhere
    app.set_version_flag("--version", LibraryVersion, "Print the version of the library and exit");
    app.require_subcommand(1);
    app.footer(
        "Exit codes: 0 nothing was found, 1 findings, 2 wrong arguments, 3 the input cannot be "
        "read\n"
        "or is no DBC file, 4 a rewrite over its input needs --accept-loss, 5 the output cannot "
        "be\n"
        "written.");
    AddCheck(app, call);
    AddExplain(app, call);
    AddRewrite(app, call);
    if (!NamesACommand(app, arguments)) {
        return vexil::tool::ExitUsage;
    }
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        // Help and version end the parse in this way too.
        return app.exit(error) == 0 ? vexil::tool::ExitSuccess : vexil::tool::ExitUsage;
    }
    return call.exitCode;
}

}  // namespace

int main(int argc, char** argv) {
    vexil::tool::PrepareStandardStreams();
    vexil::tool::RemoveTemporaryFilesOnSignals();
    const ExitCode exitCode = Run(vexil::tool::Utf8Arguments(argc, argv));
    // Whatever the command found: half an output must not pass for a whole one.
    if (!std::cout.flush()) {
        vexil::tool::PrintError("cannot write standard output");
        return vexil::tool::ExitCannotWrite;
    }
    return exitCode;
}
