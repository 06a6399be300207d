// vexil-dbc: parses the command line and runs its command.
//
//   vexil-dbc check FILE... [OPTION...]
//   vexil-dbc diff A B [OPTION...]
//   vexil-dbc explain [CAUSE]
//   vexil-dbc report FILE... -o OUT.html [OPTION...]
//   vexil-dbc rewrite IN OUT [OPTION...]
//   vexil-dbc show FILE [MESSAGE...] [OPTION...]
//   vexil-dbc json FILE [OPTION...]
//   vexil-dbc from-json IN OUT [OPTION...]
//
// Each command has a file in commands, and one in cli that defines its arguments.
// SPDX-License-Identifier: MIT
#include <vexil64.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "arguments.h"
#include "cli/commands.h"
#include "commands/source_input.h"
#include "file/standard_streams.h"
#include "file/temporary_file.h"
#include "view/closest_word.h"

namespace {

using vexil::tool::ExitCode;

std::string LibraryVersion() {
    std::ostringstream text;
    text << std::fixed << std::setprecision(2) << VexilGetLibraryVersion();
    return text.str();
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

// Runs the command of the arguments.
ExitCode Run(const std::vector<std::string>& arguments) {
    ExitCode exitCode = vexil::tool::ExitSuccess;
    CLI::App app(
        "Checks, shows, compares and rewrites DBC files, the descriptions of CAN bus networks.",
        "vexil-dbc");
    app.allow_windows_style_options(false);  // "/home/a.dbc" is a path everywhere
    app.set_version_flag("--version", LibraryVersion, "Print the version of the library and exit");
    app.require_subcommand(1);
    app.footer(
        "Exit codes: 0 success, 1 findings, 2 wrong arguments, 3 the input cannot be read or is "
        "not\n"
        "a DBC file, 4 a rewrite over its input needs --accept-loss, 5 the output cannot be "
        "written.");
    vexil::tool::AddCheck(app, exitCode);
    vexil::tool::AddDiff(app, exitCode);
    vexil::tool::AddExplain(app, exitCode);
    vexil::tool::AddReport(app, exitCode);
    vexil::tool::AddRewrite(app, exitCode);
    vexil::tool::AddShow(app, exitCode);
    vexil::tool::AddJson(app, exitCode);
    vexil::tool::AddFromJson(app, exitCode);
    if (!NamesACommand(app, arguments)) {
        return vexil::tool::ExitUsage;
    }
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        // Help and version end the parse in this way too.
        return app.exit(error) == 0 ? vexil::tool::ExitSuccess : vexil::tool::ExitUsage;
    }
    return exitCode;
}

}  // namespace

int main(int argc, char** argv) {
    vexil::tool::PrepareStandardStreams();
    vexil::tool::RemoveTemporaryFilesOnSignals();
    const ExitCode exitCode = Run(vexil::tool::Utf8Arguments(argc, argv));
    // Incomplete output is a failure, whatever the command found. A command that failed has reported
    // an error already.
    if (!std::cout.flush() && exitCode != vexil::tool::ExitTrouble) {
        vexil::tool::PrintError("cannot write standard output");
        return vexil::tool::ExitCannotWrite;
    }
    return exitCode;
}
