// vexil-dbc: the arguments, and the command that they ask for.
//
//   vexil-dbc check FILE
//   vexil-dbc rewrite IN OUT [--order id|name|file]
//
// A command has a function in commands.h and a function here that gives it its arguments.
// SPDX-License-Identifier: MIT
#include <vexil64.h>

#include <CLI/CLI.hpp>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "arguments.h"
#include "commands/commands.h"

namespace {

using vexil::tool::ExitCode;

// What the command line said, and what came of it.
struct Invocation {
    std::string input;
    std::string output;
    std::string order = "file";
    ExitCode exitCode = vexil::tool::ExitSuccess;
};

const std::map<std::string, std::uint32_t> Orders = {
    {"id", OrderByIdDescending}, {"name", OrderByNameAscending}, {"file", OrderAsStored}};

std::string LibraryVersion() {
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << VexilGetLibraryVersion();
    return text.str();
}

void AddCheck(CLI::App& app, Invocation& call) {
    CLI::App* command = app.add_subcommand("check", "Print each statement that cannot be read");
    command->add_option("FILE", call.input, "The file to check")->required();
    command->callback([&call] { call.exitCode = vexil::tool::Check(call.input); });
}

void AddRewrite(CLI::App& app, Invocation& call) {
    CLI::App* command =
        app.add_subcommand("rewrite", "Read a file and write what is kept of it to another");
    command->add_option("IN", call.input, "The file to read")->required();
    command->add_option("OUT", call.output, "The file to write; it may be IN")->required();
    command
        ->add_option("--order", call.order,
                     "Order of the messages: id, largest first; name; or file, as they stand")
        ->check(CLI::IsMember(Orders))
        ->capture_default_str();
    command->callback([&call] {
        call.exitCode = vexil::tool::Rewrite(call.input, call.output, Orders.at(call.order));
    });
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
        "Exit codes: 0 success, 1 statements could not be read, 2 the input could not be read,\n"
        "3 the output could not be written, 64 wrong arguments.");
    AddCheck(app, call);
    AddRewrite(app, call);
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
    const ExitCode exitCode = Run(vexil::tool::Utf8Arguments(argc, argv));
    // Whatever the command found: half an output must not pass for a whole one.
    if (!std::cout.flush()) {
        std::cerr << "vexil-dbc: cannot write standard output\n";
        return vexil::tool::ExitCannotWrite;
    }
    return exitCode;
}
