// vexil-dbc rewrite: what it writes in each order, and what it does when a file fails it.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using RewriteCommand = ToolTest;
using RewriteCommandOnLinux = LinuxToolTest;

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

struct OrderRow {
    std::string_view name;
    std::vector<std::string> arguments;
    std::string_view messages;
};

void PrintTo(const OrderRow& row, std::ostream* stream) {
    *stream << row.name;
}

class RewriteCommandOrder : public ToolTest, public testing::WithParamInterface<OrderRow> {};

TEST_P(RewriteCommandOrder, DecidesHowTheMessagesStand) {
    const OrderRow& row = GetParam();
    const std::string output = folder.File("out.dbc");
    std::vector<std::string> arguments{"rewrite", MakeFile("in.dbc", Three), output};
    arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
    EXPECT_EQ(RunTool(arguments), (Outcome{Success, "", ""}));
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
    const std::string output = folder.File("out.dbc");
    EXPECT_EQ(RunTool({"rewrite", "--order", "id", MakeFile("in.dbc", Three), output}),
              (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadLines(output), Written(ById));
}

TEST_F(RewriteCommand, TakesFileNamesWithBlanks) {
    const std::string output = folder.File(" the copy .dbc");
    EXPECT_EQ(RunTool({"rewrite", MakeFile("my network.dbc", Three), output}),
              (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

TEST_F(RewriteCommand, ReplacesAFileThatIsThere) {
    const std::string output = MakeFile("out.dbc", std::string(10000, 'x'));
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), output}), (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

TEST_F(RewriteCommand, WritesAFileOverItself) {
    const std::string file = MakeFile("a.dbc", Three);
    EXPECT_EQ(RunTool({"rewrite", file, file}), (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadLines(file), Written(AsInFile));
}

TEST_F(RewriteCommand, TellsParseErrorsAndWritesTheRest) {
    const std::string input = MakeFile("in.dbc",
                                       "BO_ x1 Bad: 8 ECU1\n"
                                       "BO_ 5 Beta: 8 ECU1\n"
                                       "SG_ Speed 0|16@1+\n"
                                       "BU_ : ECU1\n");
    const std::string output = folder.File("out.dbc");
    EXPECT_EQ(
        RunTool({"rewrite", input, output}),
        (Outcome{ParseErrors, "",
                 input + ":1: error: cannot read the id of the message: BO_ x1 Bad: 8 ECU1\n" +
                     input +
                     ":3: error: cannot read the name of the signal: SG_ Speed 0|16@1+\n"}));
    EXPECT_EQ(ReadLines(output), Written("BO_ 5 Beta: 8 ECU1\n\n"));
}

TEST_F(RewriteCommand, LeavesTheOutputAloneWhenTheInputIsMissing) {
    const std::string input = folder.File("none.dbc");
    const std::string output = MakeFile("out.dbc", "precious");
    EXPECT_EQ(
        RunTool({"rewrite", input, output}),
        (Outcome{CannotRead, "", "vexil-dbc: cannot read '" + input + "': could not be opened\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommandOnLinux, LeavesTheOutputAloneWhenTheInputIsAFolder) {
    const std::string input = folder.File("");
    const std::string output = MakeFile("out.dbc", "precious");
    EXPECT_EQ(
        RunTool({"rewrite", input, output}),
        (Outcome{CannotRead, "", "vexil-dbc: cannot read '" + input + "': reading failed\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommand, HasNothingToWriteWithoutAMessage) {
    const std::string output = MakeFile("out.dbc", "precious");
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", "VERSION \"1\"\n"), output}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + output + "': no message to write\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommand, TellsParseErrorsAlsoWhenNoMessageIsLeft) {
    const std::string input = MakeFile("in.dbc", "BO_ x1 Bad: 8 ECU1\nBU_ : ECU1\n");
    const std::string output = folder.File("out.dbc");
    EXPECT_EQ(
        RunTool({"rewrite", input, output}),
        (Outcome{CannotWrite, "",
                 input + ":1: error: cannot read the id of the message: BO_ x1 Bad: 8 ECU1\n" +
                     "vexil-dbc: cannot write '" + output + "': no message to write\n"}));
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST_F(RewriteCommand, RefusesAnOutputInAMissingFolder) {
    const std::string output = folder.File("none/out.dbc");
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), output}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + output + "': could not be opened\n"}));
}

TEST_F(RewriteCommand, RefusesAnOutputThatIsAFolder) {
    const std::string output = folder.File("");
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), output}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + output + "': could not be opened\n"}));
}

// Nobody can make a file there, an administrator neither.
TEST_F(RewriteCommandOnLinux, RefusesAnOutputInAFolderThatCannotBeWritten) {
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), "/proc/self/out.dbc"}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '/proc/self/out.dbc': could not be opened\n"}));
}

TEST_F(RewriteCommand, RefusesAnEmptyOutputPath) {
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), ""}),
              (Outcome{CannotWrite, "", "vexil-dbc: cannot write '': empty path\n"}));
}

TEST_F(RewriteCommand, RefusesAnOutputPathOf260Bytes) {
    const std::string output(260, 'p');
    EXPECT_EQ(
        RunTool({"rewrite", MakeFile("in.dbc", Three), output}),
        (Outcome{CannotWrite, "", "vexil-dbc: cannot write '" + output + "': path too long\n"}));
}

TEST_F(RewriteCommandOnLinux, TakesAnOutputPathOf259Bytes) {
    std::string output = folder.File("");
    output += std::string(259 - 6 - output.size(), '/') + "ab.dbc";
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), output}), (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

TEST_F(RewriteCommandOnLinux, RefusesAnOutputPathThatIsNotUtf8) {
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), "\xff\xff\xff\xff.dbc"}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '\xff\xff\xff\xff.dbc': path not valid UTF-8\n"}));
}

TEST_F(RewriteCommandOnLinux, TellsAFullDisk) {
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), "/dev/full"}),
              (Outcome{CannotWrite, "", "vexil-dbc: cannot write '/dev/full': writing failed\n"}));
}

// The library calls it a success with a doubt when the last line alone failed; the tool does not.
TEST_F(RewriteCommandOnLinux, TellsAFailureOfTheLastLine) {
    const std::string output = folder.File("out.dbc");
    const std::string whole = Written(AsInFile);
    const Surroundings oneByteShort{.fileSizeLimit = whole.size() - 1};
    EXPECT_EQ(
        RunTool({"rewrite", MakeFile("in.dbc", Three), output}, oneByteShort),
        (Outcome{CannotWrite, "", "vexil-dbc: cannot write '" + output + "': writing failed\n"}));
    EXPECT_EQ(ReadBytes(output), whole.substr(0, whole.size() - 1));
}

TEST_F(RewriteCommandOnLinux, NeedsNoMoreRoomThanTheFileTakes) {
    const std::string output = folder.File("out.dbc");
    const std::string whole = Written(AsInFile);
    const Surroundings justEnough{.fileSizeLimit = whole.size()};
    EXPECT_EQ(RunTool({"rewrite", MakeFile("in.dbc", Three), output}, justEnough),
              (Outcome{Success, "", ""}));
    EXPECT_EQ(ReadBytes(output), whole);
}

}  // namespace
}  // namespace vexil::test
