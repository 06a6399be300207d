// vexil-dbc diff A B [OPTION...], and diff --git with the arguments that git passes to an external
// diff program.
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

// Returns an error message, or an empty text if the name is that of an aspect.
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

// The arguments of git: a path, then file, hash and mode of the old and of the new version, and for
// a renamed file the new path and a description. For an unmerged path git passes only the path.
constexpr std::size_t RestOfVersions = 5;
constexpr std::size_t MostRest = 7;

// Returns the file of a version. The hash is "." if the version does not exist. Git then passes the
// null device, which a shell for Windows renames. A file of the name "-" is not standard input.
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
    command->add_option("GIT", arguments->rest, "With --git: the other arguments that git passes")
        ->expected(0, MostRest);
    CLI::Option* const json = command->add_flag(
        "--json", options.json, "Print JSON, as docs/diff.schema.json describes it");
    command
        ->add_option("--ignore", arguments->ignored,
                     "The aspects that are not compared, separated by commas")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("NAMES:{" + AspectNames() + "}")
        ->check(CheckAspect);
    command->add_option("--from", options.from,
                        "The encoding of both files, such as windows-1252; the default is UTF-8");
    CLI::Option* const git = command->add_flag(
        "--git", options.isForGit,
        "Take the arguments that git passes to diff.NAME.command, and exit with 0 also if the "
        "files differ");
    git->excludes(json);
    command->footer("Exit codes: 0 the files are equal, 1 they differ, 2 failure.");
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
