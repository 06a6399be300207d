// The command line of vexil-dbc: commands, options and what is refused.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using Arguments = ToolTest;

struct UsageRow {
    std::string_view name;
    std::vector<std::string> arguments;
    std::string_view message;
};

void PrintTo(const UsageRow& row, std::ostream* stream) {
    *stream << row.name;
}

class WrongArguments : public testing::TestWithParam<UsageRow> {};

TEST_P(WrongArguments, AreAUsageError) {
    const UsageRow& row = GetParam();
    EXPECT_EQ(RunTool(row.arguments),
              (Outcome{Usage, "",
                       std::string(row.message) + "\nRun with --help for more information.\n"}));
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, WrongArguments,
    testing::Values(
        UsageRow{"None", {}, "A subcommand is required"},
        UsageRow{"UnknownOption",
                 {"check", "--bogus", "a"},
                 "The following argument was not expected: --bogus"},
        UsageRow{"CheckWithoutFile", {"check"}, "FILE is required"},
        UsageRow{"UnknownFate",
                 {"check", "a", "--fail-on", "lost"},
                 "--fail-on: lost not in {refused,dropped,changed,ignored,kept}, and not none"},
        UsageRow{"ExplainWithTwoCauses",
                 {"explain", "kept", "bare-m"},
                 "The following argument was not expected: bare-m"},
        UsageRow{"RewriteWithoutFiles", {"rewrite"}, "IN is required"},
        UsageRow{"RewriteWithoutOutput", {"rewrite", "a"}, "OUT is required"},
        UsageRow{"RewriteWithThreeFiles",
                 {"rewrite", "a", "b", "c"},
                 "The following argument was not expected: c"},
        UsageRow{"UnknownOrder",
                 {"rewrite", "a", "b", "--order", "size"},
                 "--order: size not in {file,id,name}"},
        UsageRow{"OrderByItsNumber",
                 {"rewrite", "a", "b", "--order", "0"},
                 "--order: 0 not in {file,id,name}"},
        UsageRow{"OrderInCapitals",
                 {"rewrite", "a", "b", "--order", "ID"},
                 "--order: ID not in {file,id,name}"},
        UsageRow{"OrderWithoutValue",
                 {"rewrite", "a", "b", "--order"},
                 "--order: 1 required TEXT:{file,id,name} missing"},
        UsageRow{"DifferencesAndFileOnStandardOutput",
                 {"rewrite", "a", "-", "--diff"},
                 "--diff: needs --dry-run if OUT is standard output"},
        UsageRow{"OrderOfCheck",
                 {"check", "a", "--order=id"},
                 "The following argument was not expected: --order=id"}),
    [](const auto& row) { return std::string(row.param.name); });

struct CommandRow {
    std::string_view typed;
    std::string_view answer;
};

void PrintTo(const CommandRow& row, std::ostream* stream) {
    *stream << row.typed;
}

class MistypedCommand : public testing::TestWithParam<CommandRow> {};

TEST_P(MistypedCommand, IsAUsageError) {
    const CommandRow& row = GetParam();
    const std::string typed(row.typed);
    EXPECT_EQ(RunTool({typed, "a.dbc"}), (Outcome{Usage, "",
                                                  "vexil-dbc: there is no command '" + typed +
                                                      "'; " + std::string(row.answer) + "\n"}));
}

INSTANTIATE_TEST_SUITE_P(EachKind, MistypedCommand,
                         testing::Values(CommandRow{"chekc", "did you mean check?"},
                                         CommandRow{"Check", "did you mean check?"},
                                         CommandRow{"rewrit", "did you mean rewrite?"},
                                         CommandRow{"explian", "did you mean explain?"},
                                         CommandRow{"a.dbc", "vexil-dbc --help lists them"}));

// Nothing is done in part: the file is read only when all arguments are right.
TEST_F(Arguments, AreAllCheckedBeforeAnythingIsWritten) {
    const std::string output = MakeFile("out.dbc", "precious");
    const std::string input = MakeFile("in.dbc", "BO_ 1 A: 8 ECU1\n");
    EXPECT_EQ(RunTool({"rewrite", input, output, "surplus"}).exitCode, Usage);
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(Arguments, VersionIsThatOfTheLibrary) {
    EXPECT_EQ(RunTool({"--version"}), (Outcome{Success, "1.33\n", ""}));
}

TEST_F(Arguments, HelpNamesTheCommands) {
    const Outcome outcome = RunTool({"--help"});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_EQ(outcome.err, "");
    for (const char* const text : {"\n  check ", "\n  explain ", "\n  rewrite ", "Exit codes: "}) {
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << "\n" << outcome.out;
    }
}

TEST_F(Arguments, HelpOfACommandNamesItsArguments) {
    const Outcome outcome = RunTool({"rewrite", "--help"});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_EQ(outcome.err, "");
    for (const char* const text : {"\n  IN ", "\n  OUT ", "\n  --order ", "\n  --from ",
                                   "\n  --accept-loss ", "\n  --dry-run ", "\n  --diff "}) {
        EXPECT_NE(outcome.out.find(text), std::string::npos) << text << "\n" << outcome.out;
    }
}

TEST_F(Arguments, NamesOfCommandsAreFileNamesAfterACommand) {
    EXPECT_EQ(
        RunTool({"rewrite", "check", "rewrite"}),
        (Outcome{CannotRead, "", "vexil-dbc: cannot read 'check': No such file or directory\n"}));
}

TEST_F(Arguments, FileNamesMayBeginWithADashAfterTwoDashes) {
    EXPECT_EQ(RunTool({"check", "--", "-none.dbc"}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '-none.dbc': No such file or directory\n"}));
}

TEST_F(Arguments, FileNamesMayBeginWithASlash) {
    EXPECT_EQ(RunTool({"check", "/none.dbc"}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '/none.dbc': No such file or directory\n"}));
}

}  // namespace
}  // namespace vexil::test
