// vexil-dbc diff A B [OPTION...], and diff --git with the arguments that git passes to a program of
// its users.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "commands/diff.h"

namespace vexil::tool {
namespace {

struct DiffArguments {
    DiffOptions options;
    std::string a;
    std::string b;
    std::vector<std::string> rest;
    std::vector<std::string> ignored;
};

std::string AspectNames() {
    std::string names;
    for (const AspectRow& row : AspectRows()) {
        names += names.empty() ? "" : ",";
        names += row.ignoreName;
    }
    return names;
}

// An empty text if the name is that of an aspect.
std::string CheckAspect(const std::string& name) {
    return FindAspect(name) ? "" : "'" + name + "' not in {" + AspectNames() + "}";
}

void TakeFiles(DiffArguments& arguments) {
    if (arguments.b.empty() || !arguments.rest.empty()) {
        throw CLI::ValidationError("A B", "needs two files");
    }
    if (arguments.a == "-" && arguments.b == "-") {
        throw CLI::ValidationError("A B", "only one of the files can be standard input");
    }
    arguments.options.before = {arguments.a, arguments.a};
    arguments.options.after = {arguments.b, arguments.b};
}

// What git passes: a path, then file, hash and mode of the old and of the new version, and after a
// renaming the new path and a description. Of a path that is not merged it passes the path alone.
constexpr std::size_t RestOfVersions = 5;
constexpr std::size_t MostRest = 7;

// The file of a version. Where there is none, as its hash says, git names the null device, which a
// shell for Windows gives another name. A file of the name "-" is not standard input.
std::string FileOfVersion(const std::string& file, const std::string& hash) {
    if (hash == ".") {
        return "/dev/null";
    }
    return file == "-" ? "./-" : file;
}

void TakeArgumentsOfGit(DiffArguments& arguments) {
    constexpr std::size_t OldHash = 0;
    constexpr std::size_t NewFile = 2;
    constexpr std::size_t NewHash = 3;
    constexpr std::size_t NewPath = 5;
    const std::vector<std::string>& rest = arguments.rest;
    if (rest.size() != RestOfVersions && rest.size() != MostRest) {
        throw CLI::ValidationError("--git", "needs the arguments that git passes");
    }
    arguments.options.before = {FileOfVersion(arguments.b, rest[OldHash]), arguments.a};
    arguments.options.after = {FileOfVersion(rest[NewFile], rest[NewHash]),
                               rest.size() == MostRest ? rest[NewPath] : arguments.a};
}

}  // namespace

void AddDiff(CLI::App& app, ExitCode& exitCode) {
    const auto arguments = std::make_shared<DiffArguments>();
    DiffOptions& options = arguments->options;
    CLI::App* command = app.add_subcommand("diff", "Compare two files by their meaning");
    command->add_option("A", arguments->a, "The first file; - is standard input")->required();
    command->add_option("B", arguments->b, "The second file; - is standard input");
    command->add_option("GIT", arguments->rest, "With --git: what git passes after them")
        ->expected(0, MostRest);
    CLI::Option* const json = command->add_flag(
        "--json", options.json, "Print JSON, as docs/diff.schema.json describes it");
    command
        ->add_option("--ignore", arguments->ignored,
                     "What is not compared, with commas between the names")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("NAMES:{" + AspectNames() + "}")
        ->check(CheckAspect);
    command->add_option("--from", options.from,
                        "The encoding of both files, such as windows-1252; UTF-8 without it");
    CLI::Option* const git = command->add_flag(
        "--git", options.isForGit,
        "Take the arguments that git passes to diff.NAME.command, and exit with 0 also if there "
        "are differences");
    git->excludes(json);
    command->footer("Exit codes: 0 the files are equal, 1 they differ, 2 trouble.");
    command->callback([arguments, &exitCode] {
        DiffOptions& chosen = arguments->options;
        for (const std::string& name : arguments->ignored) {
            chosen.ignored.Add(*FindAspect(name));
        }
        if (chosen.isForGit && arguments->b.empty()) {
            exitCode = ReportUnmerged(arguments->a);
            return;
        }
        chosen.isForGit ? TakeArgumentsOfGit(*arguments) : TakeFiles(*arguments);
        exitCode = Diff(chosen);
    });
}

}  // namespace vexil::tool
