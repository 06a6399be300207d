// vexil-dbc rewrite: what it writes in each order, and what it does when a file fails it.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

// Three messages whose orders by id, by name and in the file all differ.
constexpr std::string_view Three =
    "BO_ 5 Beta: 8 ECU1\n"
    "BO_ 100 Gamma: 4 ECU1\n"
    "BO_ 7 Alpha: 2 ECU1\n";
constexpr std::string_view ById =
    "BO_ 100 Gamma: 4 ECU1\n\nBO_ 7 Alpha: 2 ECU1\n\nBO_ 5 Beta: 8 ECU1\n\n";
constexpr std::string_view ByName =
    "BO_ 7 Alpha: 2 ECU1\n\nBO_ 5 Beta: 8 ECU1\n\nBO_ 100 Gamma: 4 ECU1\n\n";
constexpr std::string_view AsInFile =
    "BO_ 5 Beta: 8 ECU1\n\nBO_ 100 Gamma: 4 ECU1\n\nBO_ 7 Alpha: 2 ECU1\n\n";

class RewriteCommand : public ToolTest {
  protected:
    std::string input = MakeFile("in.dbc", Three);
    std::string output = folder.File("out.dbc");
};

class RewriteCommandOnLinux : public LinuxToolTest {
  protected:
    // Runs the tool on the output, which must stay as it is. Returns what it says of that.
    std::string ErrorOf(const std::vector<std::string>& arguments, int exitCode,
                        const Surroundings& surroundings = {}) {
        const Outcome outcome = RunTool(arguments, surroundings);
        EXPECT_EQ(outcome.exitCode, exitCode);
        EXPECT_EQ(outcome.out, "");
        return outcome.err;
    }

    std::string input = MakeFile("in.dbc", Three);
    std::string output = folder.File("out.dbc");
};

// A whole written file of messages that ECU1 alone sends and nobody else receives.
std::string Written(std::string_view messages) {
    return R"(VERSION ""

NS_ :
    NS_DESC_
    CM_
    BA_DEF_
    BA_
    VAL_
    CAT_DEF_
    CAT_
    FILTER
    BA_DEF_DEF_
    EV_DATA_
    ENVVAR_DATA_
    SGTYPE_
    SGTYPE_VAL_
    BA_DEF_SGTYPE_
    BA_SGTYPE_
    SIG_TYPE_REF_
    VAL_TABLE_
    SIG_GROUP_
    SIG_VALTYPE_
    SIGTYPE_VALTYPE_
    BO_TX_BU_
    BA_DEF_REL_
    BA_REL_
    BA_DEF_DEF_REL_
    BU_SG_REL_
    BU_EV_REL_
    BU_BO_REL_
    SG_MUL_VAL_

BS_ :

BU_ :  ECU1

)" + std::string(messages);
}

// What the tool prints of a rewrite without losses.
std::string NothingLost(const std::string& input) {
    return input + ": the written file loses nothing and changes nothing\n";
}

struct OrderRow {
    std::string_view name;
    std::vector<std::string> arguments;
    std::string_view messages;
};

void PrintTo(const OrderRow& row, std::ostream* stream) {
    *stream << row.name;
}

class RewriteCommandOrder : public RewriteCommand, public testing::WithParamInterface<OrderRow> {};

TEST_P(RewriteCommandOrder, DecidesHowTheMessagesStand) {
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

TEST_F(RewriteCommand, TakesTheOrderInFrontOfTheFiles) {
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

// A version and a table of values are lost, a unit is changed.
constexpr std::string_view Lossy =
    "VERSION \"2\"\n"
    "VAL_TABLE_ A 0 \"a\";\n"
    "VAL_TABLE_ B 0 \"b\";\n"
    "BO_ 5 Beta: 8 ECU1\n"
    " SG_ A : 0|8@1+ (1,0) [0|9] \"°C\" ECU1\n";

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
                           "--accept-loss writes it all the same\n"};
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

TEST_F(RewriteCommandOnLinux, KnowsItsInputByAnotherName) {
    WriteBytes(input, Lossy);
    std::filesystem::create_symlink(input, output);
    EXPECT_EQ(RunTool({"rewrite", input, output}).exitCode, NotAccepted);
    EXPECT_EQ(RunTool({"rewrite", output, input}).exitCode, NotAccepted);
    EXPECT_EQ(ReadBytes(input), Lossy);
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

TEST_F(RewriteCommandOnLinux, ReadsStandardInputAndWritesStandardOutput) {
    const Outcome outcome = RunTool({"rewrite", "-", "-"}, {.standardInput = input});
    EXPECT_EQ(outcome, (Outcome{Success, Written(AsInFile), NothingLost("-")}));
}

TEST_F(RewriteCommandOnLinux, KnowsItsInputWhereStandardInputIsAFile) {
    WriteBytes(input, "VERSION \"1\"\nBO_ 5 Beta: 8 ECU1\n");
    EXPECT_EQ(RunTool({"rewrite", "-", input}, {.standardInput = input}).exitCode, NotAccepted);
}

TEST_F(RewriteCommandOnLinux, WritesNothingToStandardOutputInADryRun) {
    EXPECT_EQ(RunTool({"rewrite", input, "-", "--dry-run"}),
              (Outcome{Success, NothingLost(input), ""}));
}

TEST_F(RewriteCommandOnLinux, RefusesAFolderAsItsInput) {
    WriteBytes(output, "precious");
    EXPECT_EQ(ErrorOf({"rewrite", folder.File(""), output}, CannotRead),
              "vexil-dbc: cannot read '" + folder.File("") + "': Is a directory\n");
    EXPECT_EQ(ReadBytes(output), "precious");
}

// Nobody can make a file there, an administrator neither.
TEST_F(RewriteCommandOnLinux, RefusesAnOutputInAFolderThatCannotBeWritten) {
    EXPECT_EQ(ErrorOf({"rewrite", input, "/proc/self/out.dbc"}, CannotWrite),
              "vexil-dbc: cannot write '/proc/self/out.dbc': No such file or directory\n");
}

TEST_F(RewriteCommandOnLinux, TakesPathsOfAnyLengthAndAnyBytes) {
    const std::string name = std::string(200, '\xFF') + ".dbc";
    std::string deep = folder.File("");
    while (deep.size() < 5000) {
        deep += "././";
    }
    std::filesystem::copy_file(input, folder.File("") + name);
    EXPECT_EQ(RunTool({"rewrite", deep + name, deep + "x" + name}),
              (Outcome{Success, NothingLost(deep + name), ""}));
    EXPECT_EQ(ReadBytes(folder.File("") + "x" + name), Written(AsInFile));
}

TEST_F(RewriteCommandOnLinux, TellsAByteThatIsNotInTheEncoding) {
    WriteBytes(input, "BO_ 5 Beta: 8 ECU1\nCM_ BO_ 5 \"\x81\";\n");
    WriteBytes(output, "precious");
    EXPECT_EQ(ErrorOf({"rewrite", input, output, "--from", "windows-1252"}, CannotRead),
              "vexil-dbc: cannot read '" + input +
                  "': line 2: the byte 0x81 at offset 30 is not valid in windows-1252\n");
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommandOnLinux, TellsAnUnknownEncoding) {
    EXPECT_EQ(ErrorOf({"rewrite", input, output, "--from", "latin-99"}, Usage),
              "vexil-dbc: --from: the system has no encoding 'latin-99'\n");
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST_F(RewriteCommandOnLinux, WritesToADeviceAndTellsWhenItIsFull) {
    EXPECT_EQ(RunTool({"rewrite", input, "/dev/null"}), (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ErrorOf({"rewrite", input, "/dev/full"}, CannotWrite),
              "vexil-dbc: cannot write '/dev/full': No space left on device\n");
}

TEST_F(RewriteCommandOnLinux, TellsAFullStandardOutput) {
    EXPECT_EQ(ErrorOf({"rewrite", input, "-"}, CannotWrite, {.standardOutput = "/dev/full"}),
              "vexil-dbc: cannot write standard output: No space left on device\n");
}

// The private copy is as long as the output, so it fails first.
TEST_F(RewriteCommandOnLinux, TellsALimitOfTheFileSize) {
    const Surroundings oneByteShort{.fileSizeLimit = Written(AsInFile).size() - 1};
    WriteBytes(output, "precious");
    EXPECT_EQ(ErrorOf({"rewrite", input, output}, CannotWrite, oneByteShort),
              "vexil-dbc: cannot write a copy of '" + output + "': writing failed\n");
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommandOnLinux, NeedsNoMoreRoomThanTheFileTakes) {
    const Surroundings justEnough{.fileSizeLimit = Written(AsInFile).size()};
    EXPECT_EQ(RunTool({"rewrite", input, output}, justEnough),
              (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ReadBytes(output), Written(AsInFile));
}

}  // namespace
}  // namespace vexil::test
