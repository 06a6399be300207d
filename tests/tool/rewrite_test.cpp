// vexil-dbc rewrite: what it writes in each order, and what it does when a file fails it.
// SPDX-License-Identifier: MIT
#include "tool/rewrite_files.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

class RewriteCommand : public ToolTest {
  protected:
    std::string input = MakeFile("in.dbc", Three);
    std::string output = folder.File("out.dbc");
};

struct OrderRow {
    std::string_view name;
    std::vector<std::string> arguments;
    std::string_view messages;
};

void PrintTo(const OrderRow& row, std::ostream* stream) {
    *stream << row.name;
}

class RewriteCommandOrder : public RewriteCommand, public testing::WithParamInterface<OrderRow> {};

TEST_P(RewriteCommandOrder, SortsTheMessages) {
    const OrderRow& row = GetParam();
    std::vector<std::string> arguments{"rewrite", input, output};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    EXPECT_EQ(RunTool(arguments), (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadLines(output), Written(row.messages));
}

INSTANTIATE_TEST_SUITE_P(EachOrder, RewriteCommandOrder,
                         testing::Values(OrderRow{"Default", {}, AsInFile},
                                         OrderRow{"File", {"--order", "file"}, AsInFile},
                                         OrderRow{"Id", {"--order", "id"}, ById},
                                         OrderRow{"Name", {"--order", "name"}, ByName},
                                         OrderRow{"WithEqualsSign", {"--order=name"}, ByName}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(RewriteCommand, TakesTheOrderBeforeTheFiles) {
    EXPECT_EQ(RunTool({"rewrite", "--order", "id", input, output}),
              (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadLines(output), Written(ById));
}

TEST_F(RewriteCommand, TakesFileNamesWithBlanks) {
    const std::string from = MakeFile("my network.dbc", Three);
    const std::string to = folder.File(" the copy .dbc");
    EXPECT_EQ(RunTool({"rewrite", from, to}), (Outcome{Success, NothingLost(from), ""}));
    EXPECT_EQ(ReadLines(to), Written(AsInFile));
}

TEST_F(RewriteCommand, ReplacesAFileThatIsThere) {
    WriteBytes(output, std::string(10000, 'x'));
    EXPECT_EQ(RunTool({"rewrite", input, output}), (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

TEST_F(RewriteCommand, WritesAFileOverItself) {
    EXPECT_EQ(RunTool({"rewrite", input, input}), (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadLines(input), Written(AsInFile));
}

TEST_F(RewriteCommand, LosesNothingOfAFileThatItWrote) {
    ASSERT_EQ(RunTool({"rewrite", input, output}).exitCode, Success);
    EXPECT_EQ(RunTool({"rewrite", output, output}), (Outcome{Success, NothingLost(output), ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

std::string LossyReport(const std::string& input) {
    return input +
           ": the written file loses 3 and changes 1\n"
           "loses\n"
           "      1  version       line 1: the version of the file\n"
           "      2  value-tables  from line 2: a table of values\n"
           "changes\n"
           "      1  unit-folded   line 5: the ASCII form of the unit has an underscore for each "
           "other character\n";
}

TEST_F(RewriteCommand, PrintsWhatTheWrittenFileLosesAndChanges) {
    WriteBytes(input, Lossy);
    EXPECT_EQ(RunTool({"rewrite", input, output}), (Outcome{Success, LossyReport(input), ""}));
    EXPECT_NE(ReadLines(output).find("BO_ 5 Beta: 8 ECU1\n"), std::string::npos);
}

TEST_F(RewriteCommand, HasFindingsWhereAStatementIsRefused) {
    WriteBytes(input, "BO_ x1 Bad: 8 ECU1\nBO_ 5 Beta: 8 ECU1\n");
    EXPECT_EQ(RunTool({"rewrite", input, output}),
              (Outcome{Findings,
                       input + ": the written file loses 1 and changes 0\nloses\n"
                               "      1  message-id  line 1: the id of a message is not a plain "
                               "number of 32 bits\n",
                       ""}));
    EXPECT_EQ(ReadLines(output), Written("BO_ 5 Beta: 8 ECU1\n\n"));
}

TEST_F(RewriteCommand, WritesOverItsInputOnlyWhenTheLossIsAccepted) {
    WriteBytes(input, Lossy);
    const Outcome held{NotAccepted, LossyReport(input),
                       "vexil-dbc: '" + input +
                           "' stays as it is: the written file loses 3 and changes 1; "
                           "--accept-loss saves it nevertheless\n"};
    EXPECT_EQ(RunTool({"rewrite", input, input}), held);
    EXPECT_EQ(RunTool({"rewrite", input, input, "--dry-run"}), held);
    EXPECT_EQ(ReadBytes(input), Lossy);
    EXPECT_EQ(RunTool({"rewrite", input, input, "--accept-loss", "--dry-run"}),
              (Outcome{Success, LossyReport(input), ""}));
    EXPECT_EQ(ReadBytes(input), Lossy);
    EXPECT_EQ(RunTool({"rewrite", input, input, "--accept-loss"}),
              (Outcome{Success, LossyReport(input), ""}));
    EXPECT_EQ(RunTool({"rewrite", input, input}), (Outcome{Success, NothingLost(input), ""}));
}

TEST_F(RewriteCommand, HasNoFindingsThatAreAccepted) {
    WriteBytes(input, "BO_ x1 Bad: 8 ECU1\nBO_ 5 Beta: 8 ECU1\n");
    EXPECT_EQ(RunTool({"rewrite", input, input, "--accept-loss"}).exitCode, Success);
    EXPECT_EQ(ReadLines(input), Written("BO_ 5 Beta: 8 ECU1\n\n"));
}

TEST_F(RewriteCommand, LeavesTheOutputAloneWhenTheInputIsMissing) {
    const std::string none = folder.File("none.dbc");
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"rewrite", none, output}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + none + "': No such file or directory\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommand, HasNothingToWriteWithoutAMessage) {
    WriteBytes(input, "VERSION \"1\"\n");
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"rewrite", input, output}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot rewrite '" + input + "': no message to write\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommand, RefusesAnOutputInAMissingFolder) {
    const std::string lost = folder.File("none/out.dbc");
    EXPECT_EQ(RunTool({"rewrite", input, lost}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + lost + "': No such file or directory\n"}));
}

TEST_F(RewriteCommand, RefusesAnOutputThatIsAFolder) {
    const std::string top = folder.File("");
    EXPECT_EQ(
        RunTool({"rewrite", input, top}),
        (Outcome{CannotWrite, "", "vexil-dbc: cannot write '" + top + "': Is a directory\n"}));
}

TEST_F(RewriteCommand, RefusesAnEmptyOutputPath) {
    EXPECT_EQ(
        RunTool({"rewrite", input, ""}),
        (Outcome{CannotWrite, "", "vexil-dbc: cannot write '': No such file or directory\n"}));
}

TEST_F(RewriteCommand, WritesNothingInADryRun) {
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"rewrite", input, output, "--dry-run"}),
              (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadBytes(output), "precious");
    EXPECT_EQ(RunTool({"rewrite", input, input, "--dry-run"}),
              (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadBytes(input), Three);
}

TEST_F(RewriteCommand, PrintsTheDifferences) {
    ASSERT_EQ(RunTool({"rewrite", input, input}).exitCode, Success);
    EXPECT_EQ(RunTool({"rewrite", input, output, "--order=id", "--diff"}),
              (Outcome{Success,
                       "--- " + input + "\n+++ " + output +
                           "\n@@ -34,9 +34,9 @@\n \n BU_ :  ECU1\n \n-BO_ 5 Beta: 8 ECU1\n-\n"
                           " BO_ 100 Gamma: 4 ECU1\n \n BO_ 7 Alpha: 2 ECU1\n+\n"
                           "+BO_ 5 Beta: 8 ECU1\n \n",
                       NothingLost(input)}));
    EXPECT_EQ(ReadLines(output), Written(ById));
}

TEST_F(RewriteCommand, MakesUtf8OfAnotherEncoding) {
    WriteBytes(input, "BO_ 5 Beta: 8 ECU1\nCM_ BO_ 5 \"20 \xB0\x43\";\n");
    const Outcome outcome = RunTool({"rewrite", input, output, "--from", "windows-1252"});
    if (outcome.err == "vexil-dbc: --from: this build of vexil-dbc has no encodings\n") {
        EXPECT_EQ(outcome.exitCode, Usage);
        return;
    }
    EXPECT_EQ(outcome, (Outcome{Success, NothingLost(input), ""}));
    EXPECT_NE(ReadLines(output).find("CM_ BO_ 5 \"20 \xC2\xB0\x43\";\n"), std::string::npos);
}

}  // namespace
}  // namespace vexil::test
