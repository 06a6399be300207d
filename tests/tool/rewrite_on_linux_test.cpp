// vexil-dbc rewrite with the streams, paths and devices of Linux.
// SPDX-License-Identifier: MIT
#include "tool/rewrite_files.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

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

TEST_F(RewriteCommandOnLinux, RecognizesItsInputByAnotherName) {
    WriteBytes(input, Lossy);
    std::filesystem::create_symlink(input, output);
    EXPECT_EQ(RunTool({"rewrite", input, output}).exitCode, NotAccepted);
    EXPECT_EQ(RunTool({"rewrite", output, input}).exitCode, NotAccepted);
    EXPECT_EQ(ReadBytes(input), Lossy);
}

TEST_F(RewriteCommandOnLinux, ReadsStandardInputAndWritesStandardOutput) {
    const Outcome outcome = RunTool({"rewrite", "-", "-"}, {.standardInput = input});
    EXPECT_EQ(outcome, (Outcome{Success, Written(AsInFile), NothingLost("-")}));
}

TEST_F(RewriteCommandOnLinux, RecognizesItsInputIfStandardInputIsAFile) {
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

TEST_F(RewriteCommandOnLinux, ReportsAByteThatIsNotValidInTheEncoding) {
    WriteBytes(input, "BO_ 5 Beta: 8 ECU1\nCM_ BO_ 5 \"\x81\";\n");
    WriteBytes(output, "precious");
    EXPECT_EQ(ErrorOf({"rewrite", input, output, "--from", "windows-1252"}, CannotRead),
              "vexil-dbc: cannot read '" + input +
                  "': line 2: the byte 0x81 at offset 30 is not valid in windows-1252\n");
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(RewriteCommandOnLinux, ReportsAnUnknownEncoding) {
    EXPECT_EQ(ErrorOf({"rewrite", input, output, "--from", "latin-99"}, Usage),
              "vexil-dbc: --from: the system has no encoding 'latin-99'\n");
    EXPECT_FALSE(std::filesystem::exists(output));
}

TEST_F(RewriteCommandOnLinux, WritesToADeviceAndReportsThatItIsFull) {
    EXPECT_EQ(RunTool({"rewrite", input, "/dev/null"}), (Outcome{Success, NothingLost(input), ""}));
    EXPECT_EQ(ErrorOf({"rewrite", input, "/dev/full"}, CannotWrite),
              "vexil-dbc: cannot write '/dev/full': No space left on device\n");
}

TEST_F(RewriteCommandOnLinux, ReportsAFullStandardOutput) {
    EXPECT_EQ(ErrorOf({"rewrite", input, "-"}, CannotWrite, {.standardOutput = "/dev/full"}),
              "vexil-dbc: cannot write standard output: No space left on device\n");
}

// The private copy is as long as the output, so it fails first.
TEST_F(RewriteCommandOnLinux, ReportsALimitOfTheFileSize) {
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
