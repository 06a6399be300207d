// vexil-dbc report: where it writes the page, and files that cannot be read.
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

class ReportCommand : public ToolTest {
  protected:
    std::string input = MakeFile("in.dbc", "BO_ 1 Engine: 8 N\n");
    std::string output = folder.File("out.html");
};
using ReportCommandOnLinux = LinuxToolTest;

bool Has(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}

TEST_F(ReportCommand, WritesAPageAndPrintsNothing) {
    EXPECT_EQ(RunTool({"report", input, "-o", output}), (Outcome{Success, "", ""}));
    const std::string page = ReadBytes(output);
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n"));
    EXPECT_TRUE(page.ends_with("</html>\n"));
    EXPECT_TRUE(Has(page, "<tbody><tr><th>Engine<td>0x001<td>1<td>N<td>8"));
}

TEST_F(ReportCommand, WritesTheSameBytesToStandardOutput) {
    ASSERT_EQ(RunTool({"report", input, "-o", output}).exitCode, Success);
    const Outcome outcome = RunTool({"report", "--output", "-", input});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, ReadBytes(output));
}

TEST_F(ReportCommand, HasNoFindings) {
    WriteBytes(input, "BO_ x Engine: 8 N\n");
    EXPECT_EQ(RunTool({"report", input, "-o", output}), (Outcome{Success, "", ""}));
    EXPECT_TRUE(Has(ReadBytes(output), "<b>refused, message-id</b>: 1 - "));
}

TEST_F(ReportCommand, ReplacesAFileThatIsThere) {
    WriteBytes(output, std::string(100000, 'x'));
    EXPECT_EQ(RunTool({"report", input, "-o", output}).exitCode, Success);
    EXPECT_FALSE(Has(ReadBytes(output), "xxxx"));
}

TEST_F(ReportCommand, NeedsAnOutput) {
    const Outcome outcome = RunTool({"report", input});
    EXPECT_EQ(outcome.exitCode, Usage);
    EXPECT_TRUE(Has(outcome.err, "--output is required")) << outcome.err;
}

TEST_F(ReportCommand, DoesNotWriteOverAnInput) {
    const std::string other = MakeFile("other.dbc", "BO_ 2 Gear: 8 N\n");
    EXPECT_EQ(RunTool({"report", input, other, "-o", other}),
              (Outcome{Usage, "", "vexil-dbc: '" + other + "' is one of the files to report\n"}));
    EXPECT_EQ(ReadBytes(other), "BO_ 2 Gear: 8 N\n");
}

TEST_F(ReportCommand, TakesTheDbcFilesOfAFolderAsCheckDoes) {
    std::filesystem::create_directories(Utf8Path(folder.File("net/inner")));
    std::filesystem::create_directories(Utf8Path(folder.File("none")));
    const std::string first = MakeFile("net/a.dbc", "BO_ 1 A: 8 N\n");
    const std::string second = MakeFile("net/inner/B.DBC", "BO_ 1 B: 8 N\n");
    EXPECT_EQ(RunTool({"report", folder.File("net"), folder.File("none"), "-o", output}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + folder.File("none") +
                           "': the folder has no .dbc file\n"}));
    const std::string page = ReadBytes(output);
    EXPECT_TRUE(Has(page, "a.dbc</h2>"));
    EXPECT_TRUE(Has(page, "B.DBC</h2>"));
    EXPECT_TRUE(Has(page, "none</h2>\n<p class=\"failure\">"));
}

TEST_F(ReportCommand, ReportsTheOtherFilesWhereOneCannotBeRead) {
    const std::string program = MakeFile("program.dbc", "\x7F ELF");
    const Outcome outcome =
        RunTool({"report", program, input, folder.File("absent.dbc"), "-o", output});
    EXPECT_EQ(outcome, (Outcome{CannotRead, "",
                                "vexil-dbc: cannot read '" + program +
                                    "': it has no statement, so it is not a DBC file\n"
                                    "vexil-dbc: cannot read '" +
                                    folder.File("absent.dbc") + "': No such file or directory\n"}));
    const std::string page = ReadBytes(output);
    EXPECT_TRUE(Has(page, "<th>Engine<td>"));
    EXPECT_TRUE(Has(page, "The file cannot be read: it has no statement"));
    EXPECT_TRUE(Has(page, "<li><a href=\"#file3\">"));
}

TEST_F(ReportCommand, WritesNothingWhereNoFileCanBeRead) {
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"report", folder.File("absent.dbc"), "-o", output}).exitCode, CannotRead);
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(ReportCommand, FailsWhereThePageCannotBeWritten) {
    const std::string nowhere = folder.File("none/out.html");
    EXPECT_EQ(RunTool({"report", input, "-o", nowhere}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + nowhere + "': No such file or directory\n"}));
}

// The library itself would keep the bus type of the file that it has read before.
TEST_F(ReportCommand, ShowsTheBusOfEachFileAlone) {
    const std::string fd = MakeFile("fd.dbc",
                                    "BO_ 1 A: 8 N\nBA_DEF_ \"BusType\" STRING ;\n"
                                    "BA_DEF_DEF_ \"BusType\" \"\";\nBA_ \"BusType\" \"CAN FD\";\n");
    ASSERT_EQ(RunTool({"report", fd, input, "-o", output}).exitCode, Success);
    const std::string page = ReadBytes(output);
    EXPECT_TRUE(Has(page, "<dd>CAN FD</dd>"));
    EXPECT_TRUE(Has(page, "<dd>Classic CAN</dd>"));
}

TEST_F(ReportCommandOnLinux, ReadsStandardInputAndOtherEncodings) {
    const std::string file = MakeFile("latin.dbc",
                                      "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\xB0"
                                      "C\" R\n");
    const Outcome outcome =
        RunTool({"report", "-", "--from", "windows-1252", "-o", "-"}, {.standardInput = file});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_TRUE(Has(outcome.out, "<h2 id=\"file1\">-</h2>"));
    EXPECT_TRUE(Has(outcome.out,
                    "<td>0..1 \xC2\xB0"
                    "C<td>R"));
    EXPECT_EQ(
        RunTool({"report", file, "--from", "windows-9999", "-o", "-"}),
        (Outcome{Usage, "", "vexil-dbc: --from: the system has no encoding 'windows-9999'\n"}));
}

TEST_F(ReportCommandOnLinux, ShowsNamesOfFilesThatAreNoText) {
    const std::string file = MakeFile("a\x1B[31m<b>.dbc", "BO_ 1 A: 8 N\n");
    const Outcome outcome = RunTool({"report", file, "-o", "-"});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_TRUE(Has(outcome.out, "a\xEF\xBF\xBD[31m&lt;b&gt;.dbc</h2>"));
}

}  // namespace
}  // namespace vexil::test
