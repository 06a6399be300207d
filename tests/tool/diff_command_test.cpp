// vexil-dbc diff: the whole output for two files, exit codes, what is ignored, standard input, and
// what cannot be compared.
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>
#include <vector>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

// Exit codes of diff alone.
constexpr int Equal = 0;
constexpr int Different = 1;
constexpr int Trouble = 2;

constexpr std::string_view Old =
    "BO_ 1 Engine: 8 ECU\n"
    " SG_ Gear : 0|4@1+ (1,0) [0|5] \"\" Dash\n"
    " SG_ Speed : 8|16@1+ (0.5,0) [0|100] \"km/h\" Dash\n"
    "BO_ 2 Door: 1 ECU\n"
    "CM_ BO_ 1 \"The engine\";\n"
    "VAL_ 1 Gear 0 \"off\" 1 \"one\" ;\n";
constexpr std::string_view New =
    "BO_ 1 Engine: 6 ECU\n"
    " SG_ Gear : 0|3@1+ (1,0) [0|5] \"\" Dash,Gate\n"
    " SG_ Velocity : 8|16@1+ (0.1,-5) [0|100] \"m/s\" Dash\n"
    " SG_ Fan M : 24|2@0- (1,0) [0|1] \"\" Dash\n"
    "BO_ 2566844672 Roof: 4 Roof\n"
    " SG_ Open : 0|1@1+ (1,0) [0|1] \"\" ECU\n"
    "CM_ BO_ 1 \"The motor\";\n"
    "VAL_ 1 Gear 1 \"first\" 2 \"second\" ;\n";

class DiffCommand : public ToolTest {
  protected:
    // Compares two texts. The names of the files are "A" and "B" in what was printed.
    Outcome Compare(std::string_view before, std::string_view after,
                    std::vector<std::string> options = {}) {
        const std::string a = MakeFile("a.dbc", before);
        const std::string b = MakeFile("b.dbc", after);
        options.insert(options.begin(), {"diff", a, b});
        Outcome outcome = RunTool(options);
        for (std::string* text : {&outcome.out, &outcome.err}) {
            Replace(*text, a, "A");
            Replace(*text, b, "B");
        }
        return outcome;
    }

    static void Replace(std::string& text, const std::string& from, std::string_view to) {
        for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from)) {
            text.replace(at, from.size(), to);
        }
    }
};

TEST_F(DiffCommand, PrintsWhatDiffersByMessageAndSignal) {
    EXPECT_EQ(Compare(Old, New),
              (Outcome{Different,
                       "A -> B: 1 message removed, 1 message added, 1 message changed\n"
                       "- 2 (0x2) Door: 1 byte from ECU, 0 signals\n"
                       "~ 1 (0x1) Engine\n"
                       "    ~ size: 8 -> 6\n"
                       "    ~ comment: \"The engine\" -> \"The motor\"\n"
                       "    ~ Gear\n"
                       "        ~ bits: 0|4 little-endian -> 0|3 little-endian\n"
                       "        ~ receivers: +Gate\n"
                       "        - value 0 \"off\"\n"
                       "        ~ value 1: \"one\" -> \"first\"\n"
                       "        + value 2 \"second\"\n"
                       "    ~ Velocity\n"
                       "        ~ name: Speed -> Velocity\n"
                       "        ~ scaling: (0.5,0) -> (0.1,-5)\n"
                       "        ~ unit: \"km/h\" -> \"m/s\"\n"
                       "    + Fan M: 24|2@0- (1,0) [0|1] \"\" Dash\n"
                       "+ 2566844672 (0x18FEF100 extended) Roof: 4 bytes from Roof, 1 signal\n"
                       "    + Open: 0|1@1+ (1,0) [0|1] \"\" ECU\n",
                       ""}));
}

TEST_F(DiffCommand, PrintsNothingForFilesOfOneMeaning) {
    const Outcome nothing{Equal, "", ""};
    EXPECT_EQ(Compare(Old, Old), nothing);
    EXPECT_EQ(Compare("VERSION \"1\"\nBO_ 1 A: 8 N\n", "BO_  1  A :  8  N\n\n"), nothing);
    EXPECT_EQ(Compare("", " \n"), nothing);
    EXPECT_EQ(Compare("VERSION \"1\"\n", ""), nothing);
}

TEST_F(DiffCommand, IgnoresTheNamedAspects) {
    const std::string a = "BO_ 1 A: 8 N\nBO_ 2 B: 8 N\nCM_ BO_ 1 \"old\";\n";
    const std::string b = "BO_ 2 B: 8 N\nBO_ 1 A: 4 N\nCM_ BO_ 1 \"new\";\n";
    const Outcome nothing{Equal, "", ""};
    EXPECT_EQ(Compare(a, b, {"--ignore", "comments,order,sizes"}), nothing);
    EXPECT_EQ(Compare(a, b, {"--ignore", "comments", "--ignore", "order,sizes"}), nothing);
    EXPECT_EQ(
        Compare(a, b, {"--ignore", "comments,order"}),
        (Outcome{Different, "A -> B: 1 message changed\n~ 1 (0x1) A\n    ~ size: 8 -> 4\n", ""}));
    const Outcome wrong = Compare(a, b, {"--ignore", "comments,colours"});
    EXPECT_EQ(wrong.exitCode, Trouble);
    EXPECT_TRUE(wrong.err.starts_with("--ignore: 'colours' not in {protocol,bus-type,ids,"))
        << wrong.err;
}

TEST_F(DiffCommand, ReadsOneOfTheFilesFromStandardInput) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const std::string b = MakeFile("b.dbc", "BO_ 1 B: 8 N\n");
    EXPECT_EQ(RunTool({"diff", "-", b, "--ignore", "names"}, {.standardInput = a}),
              (Outcome{Equal, "", ""}));
    const Outcome outcome = RunTool({"diff", a, "-"}, {.standardInput = b});
    EXPECT_EQ(outcome.exitCode, Different);
    EXPECT_EQ(outcome.out, a + " -> -: 1 message changed\n~ 1 (0x1) B\n    ~ name: A -> B\n");
    EXPECT_EQ(RunTool({"diff", "-", "-"}).exitCode, Trouble);
}

TEST_F(DiffCommand, TakesTheNullDeviceForANetworkWithoutMessages) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    EXPECT_EQ(RunTool({"diff", "/dev/null", a}),
              (Outcome{Different,
                       "/dev/null -> " + a +
                           ": 1 message added\n+ 1 (0x1) A: 8 bytes from N, 0 signals\n",
                       ""}));
    EXPECT_EQ(RunTool({"diff", "/dev/null", "/dev/null"}), (Outcome{Equal, "", ""}));
}

TEST_F(DiffCommand, TakesTheArgumentsOfGit) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const std::string b = MakeFile("b.dbc", "BO_ 1 A: 4 N\n");
    EXPECT_EQ(RunTool({"diff", "--git", "--", "x.dbc", a, "1a", "100644", b, "2b", "100644"}),
              (Outcome{Equal, "x.dbc: 1 message changed\n~ 1 (0x1) A\n    ~ size: 8 -> 4\n", ""}));
    EXPECT_EQ(RunTool({"diff", "--git", "--ignore", "sizes", "--", "x.dbc", a, "1a", "100644", b,
                       "2b", "100644", "y.dbc", "similarity index 90%"}),
              (Outcome{Equal, "x.dbc -> y.dbc: equal in meaning\n", ""}));
    EXPECT_EQ(
        RunTool({"diff", "--git", "--", "x.dbc", "nul", ".", ".", a, "1a", "100644"}),
        (Outcome{Equal, "x.dbc: 1 message added\n+ 1 (0x1) A: 8 bytes from N, 0 signals\n", ""}));
    EXPECT_EQ(
        RunTool({"diff", "--git", "--", "x.dbc", a, "1a", "100644", "nul", ".", "."}),
        (Outcome{Equal, "x.dbc: 1 message removed\n- 1 (0x1) A: 8 bytes from N, 0 signals\n", ""}));
    EXPECT_EQ(RunTool({"diff", "--git", "--", "x.dbc"}),
              (Outcome{Equal, "x.dbc: not merged\n", ""}));
    EXPECT_EQ(RunTool({"diff", "--git", "--", "x.dbc", a, "1a", "100644", b}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff", "--git", "--json", a, b}).exitCode, Trouble);
}

TEST_F(DiffCommand, ReportsTheStatementsThatTakeNoPart) {
    const Outcome outcome = Compare("BO_ 1 A: 8 N\nBO_ x B: 8 N\n", "BO_ 1 A: 8 N\n");
    EXPECT_EQ(outcome.exitCode, Equal);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err,
              "vexil-dbc: 'A': 1 statement was refused and not compared; vexil-dbc check lists "
              "it\n");
}

TEST_F(DiffCommand, EndsInTroubleWhereThereIsNothingToCompare) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const std::string none = folder.File("none.dbc");
    const std::string picture = MakeFile("b.png", "\x89PNG and no statement");
    for (const auto& files : {std::vector<std::string>{none, a}, {a, none}}) {
        const Outcome outcome = RunTool({"diff", files[0], files[1]});
        EXPECT_EQ(outcome.exitCode, Trouble);
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.starts_with("vexil-dbc: cannot read '" + none + "': "))
            << outcome.err;
    }
    EXPECT_EQ(RunTool({"diff", a, picture}),
              (Outcome{Trouble, "",
                       "vexil-dbc: cannot read '" + picture +
                           "': it has no statement, so it is not a DBC file\n"}));
    EXPECT_EQ(RunTool({"diff", a, picture, "--json"}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff", a}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff"}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff", a, a, a}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff", a, a, "--git"}).exitCode, Trouble);
    EXPECT_EQ(RunTool({"diff", a, a, "--from", "windows-9999"}).exitCode, Trouble);
}

class DiffCommandOnLinux : public LinuxToolTest {};

TEST_F(DiffCommandOnLinux, EndsInTroubleWhenTheDiskIsFull) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const Outcome outcome = RunTool({"diff", a, "/dev/null"}, {.standardOutput = "/dev/full"});
    EXPECT_EQ(outcome.exitCode, Trouble);
    EXPECT_EQ(outcome.err, "vexil-dbc: cannot write standard output\n");
}

TEST_F(DiffCommandOnLinux, TakesTheEncodingOfBothFiles) {
    const std::string head = "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"";
    const std::string a = MakeFile("a.dbc", head +
                                                "\xB0"
                                                "C\" N\n");
    const std::string b = MakeFile("b.dbc", head +
                                                "\xB5"
                                                "m\" N\n");
    const Outcome outcome = RunTool({"diff", a, b, "--from", "windows-1252"});
    EXPECT_EQ(outcome.out, a + " -> " + b +
                               ": 1 message changed\n~ 1 (0x1) A\n    ~ S\n"
                               "        ~ unit: \"\xC2\xB0"
                               "C\" -> \"\xC2\xB5"
                               "m\"\n");
}

// The largest numbers that a file can have, many messages, and long texts.
TEST_F(DiffCommand, ComparesExtremeNetworks) {
    const std::string signal =
        " SG_ S : 4294967295|4294967295@1+ (1e308,-1e308) [-1e308|1e308] \"\" N\n";
    std::string many;
    for (int id = 0; id < 65535; ++id) {
        many += "BO_ " + std::to_string(id) + " M: 4294967295 N\n";
    }
    const std::string comment = "CM_ BO_ 0 \"" + std::string(1U << 20U, 'x') + "\";\n";
    const Outcome outcome = Compare(many + signal, many + signal + comment);
    EXPECT_EQ(outcome.exitCode, Different);
    EXPECT_TRUE(outcome.out.starts_with("A -> B: 1 message changed\n~ 0 (0x0) M\n"))
        << outcome.out.substr(0, 200);
    const Outcome all = Compare(many + signal, "");
    EXPECT_TRUE(all.out.starts_with("A -> B: 65535 messages removed\n"));
    EXPECT_EQ(Compare(many + signal, many + signal), (Outcome{Equal, "", ""}));
}

}  // namespace
}  // namespace vexil::test
