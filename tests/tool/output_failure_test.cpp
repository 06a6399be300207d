// What vexil-dbc does when its standard output takes no more.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using StandardOutput = LinuxToolTest;

const Surroundings Full{.standardOutput = "/dev/full"};
const Surroundings Closed{.standardOutputClosed = true};
const Outcome NotWritten{CannotWrite, "", "vexil-dbc: cannot write standard output\n"};

constexpr std::string_view Bad = "BO_ x1 A: 8 ECU1\nBU_ : ECU1\n";
constexpr std::string_view Good = "BO_ 1 A: 8 ECU1\n";

TEST_F(StandardOutput, MustTakeTheErrorsOfACheck) {
    const std::string file = MakeFile("a.dbc", Bad);
    EXPECT_EQ(RunTool({"check", file}, Full), NotWritten);
    EXPECT_EQ(RunTool({"check", file}, Closed), NotWritten);
}

// More than any buffer holds, so that the failure comes while the check still prints.
TEST_F(StandardOutput, MustTakeManyErrors) {
    std::string text;
    for (int i = 0; i < 5000; ++i) {
        text += "BO_ x1 A: 8 ECU1\n";
    }
    EXPECT_EQ(RunTool({"check", MakeFile("a.dbc", text)}, Full), NotWritten);
}

TEST_F(StandardOutput, MustTakeTheVersion) {
    EXPECT_EQ(RunTool({"--version"}, Full), NotWritten);
}

TEST_F(StandardOutput, MustTakeTheHelp) {
    EXPECT_EQ(RunTool({"--help"}, Full), NotWritten);
}

TEST_F(StandardOutput, MustTakeTheSummaryOfACleanFile) {
    const std::string file = MakeFile("a.dbc", Good);
    EXPECT_EQ(RunTool({"check", file}, Full), NotWritten);
    EXPECT_EQ(RunTool({"check", "--json", file}, Closed), NotWritten);
}

// More than any buffer holds, too.
TEST_F(StandardOutput, MustTakeANetworkAsJson) {
    std::string text;
    for (int id = 0; id < 1000; ++id) {
        text += "BO_ " + std::to_string(id) + " A: 8 ECU1\n";
    }
    EXPECT_EQ(RunTool({"json", MakeFile("a.dbc", text)}, Full), NotWritten);
    EXPECT_EQ(RunTool({"json", MakeFile("b.dbc", Good)}, Closed), NotWritten);
}

TEST_F(StandardOutput, MustTakeTheReportOfADocument) {
    const std::string input = MakeFile("in.json", R"({"messages":[{"id":1,"name":"A"}]})");
    const std::string output = folder.File("out.dbc");
    EXPECT_EQ(RunTool({"from-json", input, output}, Full), NotWritten);
    EXPECT_NE(ReadLines(output).find("BO_ 1 A: 8 "), std::string::npos);
}

TEST_F(StandardOutput, MustTakeAnExplanation) {
    EXPECT_EQ(RunTool({"explain", "swallowed"}, Full), NotWritten);
}

TEST_F(StandardOutput, MayBeAPipeWithoutAReader) {
    const std::string file = folder.File("pipe");
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    // Both ends, of which the tool keeps one.
    const int reader = open(file.c_str(), O_RDONLY | O_NONBLOCK);
    const int writer = open(file.c_str(), O_WRONLY);
    close(reader);
    EXPECT_EQ(RunTool({"--version"}, {.standardOutputDescriptor = writer}), NotWritten);
    close(writer);
}

// A file that is opened must not take the place of a stream.
TEST_F(StandardOutput, IsNoFileOfTheToolWhenItIsClosed) {
    const std::string input = MakeFile("in.dbc", Good);
    EXPECT_EQ(RunTool({"rewrite", input, "-"}, Closed),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write standard output: Bad file descriptor\n"}));
    EXPECT_EQ(ReadBytes(input), Good);
}

// The file is saved before anything is printed of it.
TEST_F(StandardOutput, MustTakeTheReportOfARewrite) {
    const std::string input = MakeFile("in.dbc", Good);
    const std::string output = folder.File("out.dbc");
    const std::string again = folder.File("again.dbc");
    EXPECT_EQ(RunTool({"rewrite", input, output}, Full), NotWritten);
    EXPECT_EQ(RunTool({"rewrite", input, again}, Closed), NotWritten);
    EXPECT_NE(ReadLines(output).find(Good), std::string::npos);
    EXPECT_EQ(ReadLines(again), ReadLines(output));
}

}  // namespace
}  // namespace vexil::test
