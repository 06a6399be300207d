// vexil-dbc check: what it prints, its exit codes, and files that cannot be read.
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using CheckCommand = ToolTest;
using CheckCommandOnLinux = LinuxToolTest;

constexpr std::string_view Clean =
    "BO_ 291 Engine: 8 ECU1\n"
    " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n";

constexpr std::string_view Swallowing =
    "BO_ 1 First: 8 ECU1\n"
    " SG_ Speed : 0|8@1+ (1,0) [1|0] \"\" ABS\n"
    "CM_ \"network\"\n"
    "BO_ 2 Second: 8 ECU1\n"
    " SG_ Speed : 0|8@1+ (1,0) [0|1] \"\" ABS\n"
    "BU_ : ECU1\n";

TEST_F(CheckCommand, PrintsTheSummaryOfACleanFile) {
    const std::string file = MakeFile("a.dbc", Clean);
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success, file + ": 2 statements: 2 kept\n", ""}));
}

TEST_F(CheckCommand, PrintsTheSummaryThenTheCausesThenWhatIsIgnored) {
    const std::string file = MakeFile("a.dbc", Swallowing);
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{
            Findings,
            file +
                ": 6 statements: 2 dropped, 1 changed, 2 ignored, 1 kept\n"
                "\n"
                "dropped, signal-of-dropped-message: 1 - the message of the signal was dropped\n"
                "  5:2: SG_ Speed : 0|8@1+ (1,0) [0|1] \"\" ABS\n"
                "      the message in line 4\n"
                "\n"
                "dropped, swallowed: 1 - an earlier statement without its semicolon took this one "
                "for its text\n"
                "  4:1: BO_ 2 Second: 8 ECU1\n"
                "      by CM_ in line 3\n"
                "\n"
                "changed, range-reversed: 1 - the minimum is larger than the maximum; the two are "
                "exchanged\n"
                "  2:2: SG_ Speed : 0|8@1+ (1,0) [1|0] \"\" ABS\n"
                "      [1|0]\n"
                "\n"
                "ignored, since it is never kept:\n"
                "  1 nodes\n"
                "  1 comments-of-the-network\n",
            ""}));
}

TEST_F(CheckCommand, ListsTenPlacesOfACauseAndAllOnRequest) {
    std::string text;
    for (int id = 1; id <= 12; ++id) {
        text += "BO_ x" + std::to_string(id) + " A: 8 ECU1\n";
    }
    const std::string file = MakeFile("a.dbc", text);
    const Outcome some = RunTool({"check", file});
    EXPECT_NE(some.out.find("  10:1: BO_ x10 A: 8 ECU1\n"), std::string::npos);
    EXPECT_EQ(some.out.find("  11:1: "), std::string::npos);
    EXPECT_NE(some.out.find("  and 2 more; --all lists them\n"), std::string::npos);
    const Outcome all = RunTool({"check", file, "--all"});
    EXPECT_NE(all.out.find("  12:1: BO_ x12 A: 8 ECU1\n"), std::string::npos);
    EXPECT_EQ(all.out.find("more; --all"), std::string::npos);
}

TEST_F(CheckCommand, ListsStatementsThatWereKeptOnRequest) {
    const std::string file = MakeFile("a.dbc", "BO_ 1 A: 8 N\nBU_ : N\n");
    EXPECT_EQ(
        RunTool({"check", file, "--all"}),
        (Outcome{Success,
                 file + ": 2 statements: 1 ignored, 1 kept\n"
                        "\n"
                        "ignored, nodes: 1 - the list of nodes; a written file lists the nodes "
                        "that send or receive\n"
                        "  2:1: BU_ : N\n"
                        "\n"
                        "kept, kept: 1 - the statement is kept as it is\n"
                        "  1:1: BO_ 1 A: 8 N\n"
                        "\n"
                        "ignored, since it is never kept:\n"
                        "  1 nodes\n",
                 ""}));
}

TEST_F(CheckCommand, CountsIgnoredAttributesByName) {
    const std::string file = MakeFile("a.dbc",
                                      "BO_ 1 A: 8 N\n"
                                      "BA_DEF_ BO_ \"Often\" INT 0 1;\n"
                                      "BA_DEF_ \"Once\" STRING ;\n"
                                      "BA_ \"Often\" BO_ 1 1;\n");
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success,
                                                 file + ": 4 statements: 3 ignored, 1 kept\n"
                                                        "\n"
                                                        "ignored, since it is never kept:\n"
                                                        "  3 other-attributes: Often 2, Once 1\n",
                                                 ""}));
}

TEST_F(CheckCommand, TakesSeveralFiles) {
    const std::string one = MakeFile("a.dbc", Clean);
    const std::string other = MakeFile("b.dbc", "BO_ 1 A: 8 N\n");
    EXPECT_EQ(
        RunTool({"check", one, other}),
        (Outcome{Success, one + ": 2 statements: 2 kept\n\n" + other + ": 1 statement: 1 kept\n",
                 ""}));
}

TEST_F(CheckCommand, TakesTheDbcFilesOfAFolder) {
    std::filesystem::create_directories(Utf8Path(folder.File("inner")));
    const std::string first = MakeFile("a.dbc", Clean);
    const std::string second = MakeFile("inner/B.DBC", Clean);
    MakeFile("c.txt", "BO_ x: 1");
    const Outcome outcome = RunTool({"check", folder.File("")});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_NE(outcome.out.find("a.dbc: 2 statements"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find("B.DBC: 2 statements"), std::string::npos) << outcome.out;
    EXPECT_EQ(outcome.out.find("c.txt"), std::string::npos) << outcome.out;
}

TEST_F(CheckCommand, RefusesAFolderWithoutDbcFiles) {
    const std::string path = folder.File("");
    EXPECT_EQ(RunTool({"check", path}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + path + "': the folder has no .dbc file\n"}));
}

TEST_F(CheckCommand, GoesOnAfterAFileThatCannotBeRead) {
    const std::string file = MakeFile("a.dbc", Clean);
    const std::string missing = folder.File("none.dbc");
    EXPECT_EQ(RunTool({"check", missing, file}),
              (Outcome{CannotRead, file + ": 2 statements: 2 kept\n",
                       "vexil-dbc: cannot read '" + missing + "': No such file or directory\n"}));
}

struct NoDbcRow {
    std::string_view name;
    std::string_view bytes;
};

void PrintTo(const NoDbcRow& row, std::ostream* stream) {
    *stream << row.name;
}

class NoDbcFile : public ToolTest, public testing::WithParamInterface<NoDbcRow> {};

TEST_P(NoDbcFile, IsReportedAsSuch) {
    const Outcome outcome = RunTool({"check", MakeFile("a.dbc", GetParam().bytes)});
    EXPECT_EQ(outcome.exitCode, CannotRead);
    EXPECT_NE(outcome.out.find("\nno-statement: 1 - the file has no statement at all\n"),
              std::string::npos)
        << outcome.out;
}

INSTANTIATE_TEST_SUITE_P(EachKind, NoDbcFile,
                         testing::Values(NoDbcRow{"Empty", ""}, NoDbcRow{"BlankLines", "\n\n \n"},
                                         NoDbcRow{"OtherText", "a list\nof words\n"},
                                         NoDbcRow{"Program",
                                                  {"\x7F"
                                                   "ELF\2\1\1\0\0\0",
                                                   10}}),
                         [](const auto& row) { return std::string(row.param.name); });

struct FileRow {
    std::string_view name;
    std::string_view bytes;
    std::string_view cause;
};

void PrintTo(const FileRow& row, std::ostream* stream) {
    *stream << row.name;
}

class FileWithFindings : public ToolTest, public testing::WithParamInterface<FileRow> {};

TEST_P(FileWithFindings, IsNotClean) {
    const Outcome outcome = RunTool({"check", MakeFile("a.dbc", GetParam().bytes)});
    EXPECT_EQ(outcome.exitCode, Findings);
    EXPECT_NE(outcome.out.find("\n" + std::string(GetParam().cause) + ": "), std::string::npos)
        << outcome.out;
}

INSTANTIATE_TEST_SUITE_P(
    EachKind, FileWithFindings,
    testing::Values(FileRow{"ByteOrderMark",
                            "\xEF\xBB\xBF"
                            "BO_ 1 A: 8 N\n",
                            "byte-order-mark"},
                    FileRow{
                        "Utf16", {"B\0O\0_\0 \0001\0 \0A\0:\0 \0008\0 \0N\0\n\0", 26}, "utf-16"},
                    FileRow{"LoneCarriageReturns", "CM_ BO_ 1 \"x\";\rBO_ 1 A: 8 N\r",
                            "lone-carriage-returns"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CheckCommand, CountsTheFatesOfFailOnAsFindings) {
    const std::string file = MakeFile("a.dbc", Swallowing);
    EXPECT_EQ(RunTool({"check", file, "--fail-on", "refused"}).exitCode, Success);
    EXPECT_EQ(RunTool({"check", "--fail-on", "refused,changed", file}).exitCode, Findings);
    EXPECT_EQ(RunTool({"check", file, "--fail-on", "none"}).exitCode, Success);
    EXPECT_EQ(RunTool({"check", MakeFile("b.dbc", Clean), "--fail-on", "kept"}).exitCode, Findings);
}

TEST_F(CheckCommand, ChecksTheLayoutOnRequest) {
    const std::string file = MakeFile("a.dbc",
                                      "BO_ 1 A: 1 N\n"
                                      " SG_ One : 0|4@1+ (1,0) [0|15] \"\" N\n"
                                      " SG_ Two : 3|8@1+ (1,0) [0|255] \"\" N\n");
    EXPECT_EQ(RunTool({"check", file}).out, file + ": 3 statements: 3 kept\n");
    EXPECT_EQ(RunTool({"check", file, "--layout"}),
              (Outcome{Success,
                       file + ": 3 statements: 3 kept\n"
                              "\n"
                              "signals-overlap: 1 - two signals share bits of their message\n"
                              "  3:2: Two with One in line 2\n"
                              "\n"
                              "signal-outside-message: 1 - a signal reaches beyond the size of its "
                              "message\n"
                              "  3:2: Two reaches byte 2 of 1\n",
                       ""}));
    EXPECT_EQ(RunTool({"check", file, "--layout", "--fail-on", "changed"}).exitCode, Findings);
}

TEST_F(CheckCommand, ReportsTheTrueLineOfARefusedStatement) {
    const std::string file = MakeFile("a.dbc", "BO_ x1 A: 8 ECU1\n\n\n\n\nBO_ 1 A: 8 N\n");
    const Outcome outcome = RunTool({"check", file});
    EXPECT_EQ(outcome.exitCode, Findings);
    EXPECT_NE(outcome.out.find("\n  1:1: BO_ x1 A: 8 ECU1\n"), std::string::npos) << outcome.out;
}

TEST_F(CheckCommand, TakesAFileNameWithBlanks) {
    const std::string file = MakeFile(" my network .dbc", Clean);
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success, file + ": 2 statements: 2 kept\n", ""}));
}

TEST_F(CheckCommand, RefusesAMissingFile) {
    const std::string file = folder.File("none.dbc");
    EXPECT_EQ(RunTool({"check", file}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + file + "': No such file or directory\n"}));
}

TEST_F(CheckCommandOnLinux, TakesAPathThatIsLongerThanTheLibraryTakes) {
    std::string file = folder.File("");
    file += std::string(300, '/') + "ab.dbc";
    WriteBytes(file, Clean);
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success, file + ": 2 statements: 2 kept\n", ""}));
}

TEST_F(CheckCommandOnLinux, TakesAPathThatIsNotUtf8) {
    const std::string file = folder.File("") + "/\xff\xff.dbc";
    std::ofstream(file) << Clean;
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success, file + ": 2 statements: 2 kept\n", ""}));
}

}  // namespace
}  // namespace vexil::test
