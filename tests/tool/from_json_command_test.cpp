// vexil-dbc from-json: what it writes, what it refuses, and what it reports.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "tool/rewrite_files.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

// The three messages of rewrite_files.h.
constexpr std::string_view ThreeJson =
    R"({"messages":[{"id":5,"name":"Beta","transmitter":"ECU1"},
{"id":100,"name":"Gamma","dlc":4,"transmitter":"ECU1"},
{"id":7,"name":"Alpha","dlc":2,"transmitter":"ECU1"}]}
)";

class FromJsonCommand : public ToolTest {
  protected:
    // What the tool prints of a document of which it takes every value.
    std::string Unchanged(std::string_view counts) const {
        return input + ": " + std::string(counts) + "\n";
    }

    // A file by way of JSON is the file that rewrite writes, unless a text of it may be cut.
    void TryFolder(const std::filesystem::path& top) {
        std::size_t files = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
            if (entry.path().extension() != ".dbc") {
                continue;
            }
            const std::string file = entry.path().string();
            SCOPED_TRACE(file);
            const Outcome printed = RunTool({"json", file});
            WriteBytes(input, printed.out);
            const nlohmann::json document = nlohmann::json::parse(printed.out);
            const Outcome made = RunTool({"from-json", input, output});
            if (document["messages"].empty()) {
                EXPECT_EQ(made.exitCode, CannotRead);
                continue;
            }
            EXPECT_EQ(made.exitCode, Success);
            EXPECT_EQ(made.err, "");
            const std::string copy = folder.File("copy.dbc");
            RunTool({"rewrite", file, copy});
            const bool isCut = printed.out.find("\"cut\":") != std::string::npos;
            const bool isRenamed = made.out.find("].name: ") != std::string::npos;
            if (!isCut && !isRenamed) {
                EXPECT_EQ(ReadLines(output), ReadLines(copy));
                ++files;
            }
        }
        EXPECT_GT(files, 0U);
    }

    std::string input = MakeFile("in.json", ThreeJson);
    std::string output = folder.File("out.dbc");
};

class FromJsonCommandOnLinux : public LinuxToolTest {
  protected:
    std::string input = MakeFile("in.json", ThreeJson);
    std::string output = folder.File("out.dbc");
};

constexpr std::string_view ThreeCounted = "3 messages, 0 signals, 0 value descriptions";

TEST_F(FromJsonCommand, WritesTheMessagesInTheirOrder) {
    EXPECT_EQ(RunTool({"from-json", input, output}),
              (Outcome{Success, Unchanged(ThreeCounted), ""}));
    EXPECT_EQ(ReadLines(output), Written(AsInFile));
}

TEST_F(FromJsonCommand, WritesTheMessagesInAnotherOrder) {
    EXPECT_EQ(RunTool({"from-json", input, output, "--order", "id"}).exitCode, Success);
    EXPECT_EQ(ReadLines(output), Written(ById));
    EXPECT_EQ(RunTool({"from-json", input, output, "--order=name"}).exitCode, Success);
    EXPECT_EQ(ReadLines(output), Written(ByName));
}

TEST_F(FromJsonCommand, WritesNothingWhenAValueIsRefused) {
    WriteBytes(input, R"({"messages":[{"id":-5,"name":"Beta"},{"id":7,"nam":"Alpha"}]})");
    WriteBytes(output, "precious");
    EXPECT_EQ(
        RunTool({"from-json", input, output}),
        (Outcome{
            CannotRead, "",
            "vexil-dbc: messages[0].id: a whole number from 0 to 4294967295 is needed, "
            "not -5\n"
            "vexil-dbc: messages[1].nam: there is no such field\n"
            "vexil-dbc: messages[1].longName: is missing\n"
            "vexil-dbc: cannot write '" +
                output +
                "': 3 values are refused; --skip-refused leaves out the objects with them\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(FromJsonCommand, LeavesOutWhatIsRefusedOnRequest) {
    WriteBytes(input, R"({"messages":[{"id":-5,"name":"Beta"},)"
                      R"({"id":5,"name":"Beta","transmitter":"ECU1","note":1}]})");
    EXPECT_EQ(RunTool({"from-json", "--skip-refused", input, output}),
              (Outcome{Findings, Unchanged("1 message, 0 signals, 0 value descriptions"),
                       "vexil-dbc: messages[0].id: a whole number from 0 to 4294967295 is needed, "
                       "not -5\n"
                       "vexil-dbc: messages[1].note: there is no such field\n"}));
    EXPECT_EQ(ReadLines(output), Written("BO_ 5 Beta: 8 ECU1\n\n"));
}

TEST_F(FromJsonCommand, CountsRefusedValuesThatItDoesNotList) {
    std::string document = R"({"messages":[0)";
    for (int count = 1; count < 1003; ++count) {
        document += ",0";
    }
    WriteBytes(input, document + "]}");
    const Outcome outcome = RunTool({"from-json", input, output});
    EXPECT_EQ(outcome.exitCode, CannotRead);
    EXPECT_NE(outcome.err.find("vexil-dbc: messages[999]: an object is needed\n"
                               "vexil-dbc: and 3 more values are refused\n"),
              std::string::npos);
}

TEST_F(FromJsonCommand, ListsTheValuesThatTheLibraryChanges) {
    std::string document = R"({"messages":[)";
    for (int id = 0; id < 12; ++id) {
        document += (id == 0 ? "" : ",") + std::string(R"({"id":)") + std::to_string(id) +
                    R"(,"name":"A","transmitter":"ECU1","cycleTime":100})";
    }
    WriteBytes(input, document + "]}");
    const Outcome some = RunTool({"from-json", input, output});
    EXPECT_EQ(some.exitCode, Success);
    EXPECT_TRUE(some.out.starts_with(input + ": 12 messages, 0 signals, 0 value descriptions\n"
                                             "\n"
                                             "changed, messages[].cycleTime: 12\n"
                                             "  messages[0].cycleTime: 100 became 0\n"))
        << some.out;
    EXPECT_TRUE(
        some.out.ends_with("  messages[9].cycleTime: 100 became 0\n"
                           "  and 2 more; --all lists them\n"))
        << some.out;
    const Outcome all = RunTool({"from-json", input, output, "--all"});
    EXPECT_TRUE(all.out.ends_with("  messages[11].cycleTime: 100 became 0\n")) << all.out;
}

TEST_F(FromJsonCommand, ListsTheObjectsWithTextsThatMayBeCut) {
    WriteBytes(input,
               R"({"messages":[{"id":5,"name":"Beta","transmitter":"ECU1","cut":["name"]}]})");
    EXPECT_EQ(RunTool({"from-json", input, output}),
              (Outcome{Success,
                       Unchanged("1 message, 0 signals, 0 value descriptions") +
                           "\nmay be cut: 1\n  messages[0]: the texts that its member cut names\n",
                       ""}));
}

TEST_F(FromJsonCommand, EscapesControlCharactersOfATerminal) {
    WriteBytes(input, "{\"messages\":[],\"\\u001b[2J\\u009b\":1}");
    EXPECT_NE(RunTool({"from-json", input, output})
                  .err.find("vexil-dbc: [\"\\u001b[2J\\u009b\"]: there is no such field\n"),
              std::string::npos);
}

TEST_F(FromJsonCommand, ReportsThePlaceWhereTheTextIsNotJson) {
    WriteBytes(input, "{\n  \"messages\": [}\n");
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"from-json", input, output, "--skip-refused"}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + input +
                           "': line 2, column 16: syntax error while parsing value - unexpected "
                           "'}'; expected '[', '{', or a literal\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(FromJsonCommand, HasNothingToWriteWithoutAMessage) {
    WriteBytes(input, R"({"messages":[]})");
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"from-json", input, output}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot rewrite '" + input + "': no message to write\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(FromJsonCommand, DoesNotReplaceTheDocument) {
    EXPECT_EQ(RunTool({"from-json", input, input}),
              (Outcome{Usage, "",
                       "vexil-dbc: cannot write '" + input + "': it is the document itself\n"}));
    EXPECT_EQ(ReadBytes(input), ThreeJson);
}

TEST_F(FromJsonCommand, RefusesADocumentThatIsNotThere) {
    const std::string none = folder.File("none.json");
    WriteBytes(output, "precious");
    EXPECT_EQ(RunTool({"from-json", none, output}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + none + "': No such file or directory\n"}));
    EXPECT_EQ(ReadBytes(output), "precious");
}

TEST_F(FromJsonCommand, RefusesAnOutputInAMissingFolder) {
    const std::string lost = folder.File("none/out.dbc");
    EXPECT_EQ(RunTool({"from-json", input, lost}),
              (Outcome{CannotWrite, "",
                       "vexil-dbc: cannot write '" + lost + "': No such file or directory\n"}));
}

TEST_F(FromJsonCommandOnLinux, ReadsStandardInputAndWritesStandardOutput) {
    EXPECT_EQ(RunTool({"from-json", "-", "-"}, {.standardInput = input}),
              (Outcome{Success, Written(AsInFile), "-: " + std::string(ThreeCounted) + "\n"}));
}

TEST_F(FromJsonCommandOnLinux, RecognizesTheDocumentByAnotherName) {
    std::filesystem::create_symlink(input, output);
    EXPECT_EQ(RunTool({"from-json", input, output}).exitCode, Usage);
    EXPECT_EQ(RunTool({"from-json", "-", output}, {.standardInput = input}).exitCode, Usage);
    EXPECT_EQ(ReadBytes(input), ThreeJson);
}

// Numbers at the ends of their ranges, many messages, and a comment of a megabyte.
TEST_F(FromJsonCommand, TakesWhatJsonPrintsOfAnExtremeNetwork) {
    std::string text;
    for (int id = 0; id < 65535; ++id) {
        text += "BO_ " + std::to_string(id) + " A: 4294967295 N\n";
    }
    text +=
        "BO_ 4294967295 A: 0 N\n"
        " SG_ S m4294967295 : 4294967295|4294967295@0- (1e308,-2.5e-300) [-1e308|1e308] \"\" N\n"
        "CM_ BO_ 4294967295 \"" +
        std::string(std::size_t{1} << 20U, 'c') + "\";\n";
    const Outcome printed = RunTool({"json", MakeFile("in.dbc", text)});
    EXPECT_EQ(printed.exitCode, Success);
    WriteBytes(input, printed.out);
    EXPECT_EQ(RunTool({"from-json", input, output}),
              (Outcome{Success,
                       Unchanged("65536 messages, 1 signal, 0 value descriptions") +
                           "\nmay be cut: 1\n"
                           "  messages[65535]: the texts that its member cut names\n",
                       ""}));
    EXPECT_EQ(RunTool({"json", output}).out, printed.out);
}

TEST_F(FromJsonCommand, MakesTheFileThatRewriteWrites) {
    TryFolder(VEXIL64_SAMPLES);
    TryFolder(VEXIL64_GOLDEN);
}

TEST_F(FromJsonCommand, MakesTheFileThatRewriteWritesOfRealFiles) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    TryFolder(corpus);
}

}  // namespace
}  // namespace vexil::test
