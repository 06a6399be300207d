// vexil-dbc check: what it prints for each refused statement, and files that cannot be read.
// SPDX-License-Identifier: MIT
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using CheckCommand = ToolTest;
using CheckCommandOnLinux = LinuxToolTest;

constexpr std::string_view Clean =
    "BO_ 291 Engine: 8 ECU1\n"
    " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n";

struct StepRow {
    std::string_view name;
    std::string_view statement;
    std::string_view failed;
};

void PrintTo(const StepRow& row, std::ostream* stream) {
    *stream << row.statement;
}

class CheckCommandStep : public ToolTest, public testing::WithParamInterface<StepRow> {};

TEST_P(CheckCommandStep, IsToldInWords) {
    const StepRow& row = GetParam();
    const std::string statement(row.statement);
    const std::string file =
        MakeFile("a.dbc", "BO_ 1 First: 8 ECU1\n " + statement + "\nBO_ 2 Last: 8 ECU1\n");
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{Findings, file + ":2: error: " + std::string(row.failed) + ": " + statement + "\n",
                 ""}));
}

// One row per code, 0 to 6.
INSTANTIATE_TEST_SUITE_P(
    EachCode, CheckCommandStep,
    testing::Values(
        StepRow{"MessageId", "BO_ x1 Engine: 8 ECU1", "cannot read the id of the message"},
        StepRow{"MessageName", "BO_ 291 Engine 8 ECU1", "cannot read the name of the message"},
        StepRow{"MessageSize", "BO_ 291 Engine: big ECU1", "cannot read the size of the message"},
        StepRow{"SignalName", "SG_ Speed 0|16@1+ (1,0)", "cannot read the name of the signal"},
        StepRow{"SignalLayout", "SG_ Speed : 0|16@2+ (1,0)",
                "cannot read the bit layout of the signal"},
        StepRow{"SignalScaling", "SG_ Speed : 0|16@1+ (1)",
                "cannot read factor and offset of the signal"},
        StepRow{"SignalRange", "SG_ Speed : 0|16@1+ (1,0) [0]",
                "cannot read minimum and maximum of the signal"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(CheckCommand, SaysNothingOfACleanFile) {
    EXPECT_EQ(RunTool({"check", MakeFile("a.dbc", Clean)}), (Outcome{Success, "", ""}));
}

TEST_F(CheckCommand, SaysNothingOfAnEmptyFile) {
    EXPECT_EQ(RunTool({"check", MakeFile("a.dbc", "")}), (Outcome{Success, "", ""}));
}

TEST_F(CheckCommand, TellsEachErrorInTheOrderOfTheFile) {
    const std::string file = MakeFile("a.dbc",
                                      "BO_ 5 Five: 8 ECU1\n"
                                      "BO_ x1 A: 8 ECU1\n"
                                      "\n"
                                      "BO_ 3 B: 8 ECU1\n"
                                      " SG_ Speed 0|16@1+ (1,0)\n"
                                      "BO_ 4 C 8 ECU1\n"
                                      "BU_ : ECU1\n");
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{Findings,
                 file + ":3: error: cannot read the id of the message: BO_ x1 A: 8 ECU1\n" + file +
                     ":5: error: cannot read the name of the signal: SG_ Speed 0|16@1+ "
                     "(1,0)\n" +
                     file + ":6: error: cannot read the name of the message: BO_ 4 C 8 ECU1\n",
                 ""}));
}

TEST_F(CheckCommand, PutsAStatementOnOneLine) {
    const std::string file =
        MakeFile("a.dbc", "BO_ 5\tTwo \t\v\f words\r\n\n   8\n  ECU1  \n\n BU_ : ECU1\n");
    EXPECT_EQ(RunTool({"check", file}),
              (Outcome{Findings,
                       file + ":5: error: cannot read the name of the message: BO_ 5 Two words 8 "
                              "ECU1\n",
                       ""}));
}

// The library counts to the line above the next statement, and takes the end of the file for one
// that stands on the last line.
TEST_F(CheckCommand, TellsTheLineThatTheLibraryTells) {
    const std::string file = MakeFile("a.dbc", "BO_ x1 A: 8 ECU1\n");
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{Findings,
                 file + ":0: error: cannot read the id of the message: BO_ x1 A: 8 ECU1\n", ""}));
}

TEST_F(CheckCommand, TellsTheFrontOfALongStatement) {
    const std::string file = MakeFile("a.dbc", "BO_ 5 " + std::string(300, 'N') + "\nBU_ : ECU1\n");
    EXPECT_EQ(RunTool({"check", file}),
              (Outcome{Findings,
                       file + ":1: error: cannot read the name of the message: BO_ 5 " +
                           std::string(248, 'N') + "\n",
                       ""}));
}

TEST_F(CheckCommand, TakesAFileNameWithBlanks) {
    const std::string file = MakeFile(" my network .dbc", "BO_ x1 A: 8 ECU1\nBU_ : ECU1\n");
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{Findings,
                 file + ":1: error: cannot read the id of the message: BO_ x1 A: 8 ECU1\n", ""}));
}

TEST_F(CheckCommand, RefusesAMissingFile) {
    const std::string file = folder.File("none.dbc");
    EXPECT_EQ(
        RunTool({"check", file}),
        (Outcome{CannotRead, "", "vexil-dbc: cannot read '" + file + "': could not be opened\n"}));
}

TEST_F(CheckCommand, RefusesAnEmptyPath) {
    EXPECT_EQ(RunTool({"check", ""}),
              (Outcome{CannotRead, "", "vexil-dbc: cannot read '': empty path\n"}));
}

TEST_F(CheckCommand, RefusesAPathOf260Bytes) {
    const std::string file(260, 'p');
    EXPECT_EQ(RunTool({"check", file}),
              (Outcome{CannotRead, "", "vexil-dbc: cannot read '" + file + "': path too long\n"}));
}

TEST_F(CheckCommandOnLinux, TakesAPathOf259Bytes) {
    std::string file = folder.File("");
    file += std::string(259 - 6 - file.size(), '/') + "ab.dbc";
    WriteBytes(file, Clean);
    EXPECT_EQ(RunTool({"check", file}), (Outcome{Success, "", ""}));
}

TEST_F(CheckCommandOnLinux, RefusesAPathThatIsNotUtf8) {
    EXPECT_EQ(RunTool({"check", "\xff\xff\xff\xff.dbc"}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '\xff\xff\xff\xff.dbc': path not valid UTF-8\n"}));
}

TEST_F(CheckCommandOnLinux, TellsAFolderThatCannotBeReadLikeAFile) {
    const std::string file = folder.File("");
    EXPECT_EQ(RunTool({"check", file}),
              (Outcome{CannotRead, "", "vexil-dbc: cannot read '" + file + "': reading failed\n"}));
}

}  // namespace
}  // namespace vexil::test
