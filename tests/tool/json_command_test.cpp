// vexil-dbc json: the whole output for a file, and the schema of docs/network.schema.json, to which
// the output for many files is held.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "tool/json_schema.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using nlohmann::json;

constexpr std::string_view Small =
    "BO_ 291 Tank: 8 Node\n"
    " SG_ Level m2 : 0|16@1- (0.1,-0.5) [0|100] \"\xC2\xB0\x43\" Dash,Node\n"
    "BO_ x5 Bad: 8 Node\n"
    "VAL_ 291 Level 1 \"on\" 0 \"off\" ;\n";

constexpr std::string_view SmallJson =
    R"({"formatVersion":1,
"libraryVersion":"1.33",
"info":{"protocolType":0,"busType":0},
"messages":[
{"id":291,"name":"Tank","dlc":8,"longName":"Tank","transmitter":"Node","signalCount":1,)"
    R"("comment":"","sendType":"","cycleTime":0,"signals":[
{"name":"Level","longName":"Level","unit":"_C","receiverList":"Dash,Node","comment":"",)"
    R"("multiplexType":2,"multiplexValue":2,"startBit":0,"bitLength":16,"byteOrder":1,)"
    R"("valueType":1,"factor":0.1,"offset":-0.5,"minimum":0,"maximum":100,"enumCount":2,)"
    "\"startValue\":0,\"inactiveValue\":0,\"unitUtf8\":\"\xC2\xB0\x43\",\"valueDescriptions\":["
    R"(
{"value":0,"text":"off"},
{"value":1,"text":"on"}
]}
]}
],
"errors":[
{"code":0,"line":3,"text":"BO_ x5 Bad: 8 Node"}
]}
)";

class JsonCommand : public ToolTest {
  protected:
    static std::vector<std::string> Faults(const json& document) {
        return SchemaFaults(json::parse(ReadBytes(VEXIL64_NETWORK_SCHEMA)), document);
    }

    // Holds the output for each file below a folder to the schemas.
    static void TryFolder(const std::filesystem::path& top) {
        const json checkSchema = json::parse(ReadBytes(VEXIL64_CHECK_SCHEMA));
        std::size_t files = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
            if (entry.path().extension() == ".dbc") {
                const std::string file = entry.path().string();
                SCOPED_TRACE(file);
                const Outcome outcome = RunTool({"json", file, "--account"});
                EXPECT_LE(outcome.exitCode, Findings);
                EXPECT_EQ(outcome.err, "");
                const json document = json::parse(outcome.out);
                EXPECT_EQ(Faults(document), std::vector<std::string>());
                EXPECT_EQ(SchemaFaults(checkSchema, document["account"]),
                          std::vector<std::string>());
                EXPECT_EQ(outcome.exitCode == Findings, !document["errors"].empty());
                ++files;
            }
        }
        EXPECT_GT(files, 0U);
    }
};

using JsonCommandOnLinux = LinuxToolTest;

TEST_F(JsonCommand, PrintsEveryRecord) {
    EXPECT_EQ(RunTool({"json", MakeFile("a.dbc", Small)}),
              (Outcome{Findings, std::string(SmallJson), ""}));
}

TEST_F(JsonCommand, EndsWithoutFindingsWhereNoStatementIsRefused) {
    const Outcome outcome = RunTool({"json", MakeFile("a.dbc", "BO_ 1 A: 8 N\n")});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_EQ(json::parse(outcome.out)["errors"], json::array());
}

TEST_F(JsonCommand, AddsTheAccountThatCheckPrints) {
    const std::string file = MakeFile("a.dbc", Small);
    const json document = json::parse(RunTool({"json", "--account", file}).out);
    EXPECT_EQ(document["account"], json::parse(RunTool({"check", "--json", file}).out));
    EXPECT_EQ(document["account"]["files"][0]["counts"]["refused"], 1);
    EXPECT_EQ(document["messages"].size(), 1U);
    EXPECT_EQ(Faults(document), std::vector<std::string>());
}

TEST_F(JsonCommand, MarksATextThatMayBeCut) {
    const std::string file =
        MakeFile("a.dbc", "BO_ 1 A: 8 N\nCM_ BO_ 1 \"" + std::string(300, 'c') + "\";\n");
    const json message = json::parse(RunTool({"json", file}).out)["messages"][0];
    EXPECT_EQ(message["comment"], std::string(255, 'c'));
    EXPECT_EQ(message["cut"], json{"comment"});
}

TEST_F(JsonCommand, MakesUtf8OfAnotherEncoding) {
    const std::string file = MakeFile("a.dbc", "BO_ 5 Beta: 8 ECU1\nCM_ BO_ 5 \"20 \xB0\x43\";\n");
    const Outcome outcome = RunTool({"json", file, "--from", "windows-1252"});
    if (outcome.err == "vexil-dbc: --from: this build of vexil-dbc has no encodings\n") {
        EXPECT_EQ(outcome.exitCode, Usage);
        return;
    }
    EXPECT_EQ(json::parse(outcome.out)["messages"][0]["comment"], "20 \xC2\xB0\x43");
}

TEST_F(JsonCommand, PrintsAnEmptyNetworkOfAFileWithoutMessages) {
    const Outcome outcome = RunTool({"json", MakeFile("a.dbc", "VERSION \"1\"\n")});
    EXPECT_EQ(outcome.exitCode, Success);
    EXPECT_EQ(json::parse(outcome.out)["messages"], json::array());
}

TEST_F(JsonCommand, RefusesAFileWithoutAnyStatement) {
    const std::string file = MakeFile("a.dbc", "no network at all\n");
    EXPECT_EQ(RunTool({"json", file}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + file +
                           "': it has no statement, so it is not a DBC file\n"}));
}

TEST_F(JsonCommand, RefusesAFileThatIsNotThere) {
    const std::string file = folder.File("none.dbc");
    EXPECT_EQ(RunTool({"json", file}),
              (Outcome{CannotRead, "",
                       "vexil-dbc: cannot read '" + file + "': No such file or directory\n"}));
}

TEST_F(JsonCommandOnLinux, ReadsStandardInput) {
    const std::string file = MakeFile("a.dbc", Small);
    EXPECT_EQ(RunTool({"json", "-"}, {.standardInput = file}),
              (Outcome{Findings, std::string(SmallJson), ""}));
}

TEST_F(JsonCommand, FollowsTheSchema) {
    TryFolder(VEXIL64_SAMPLES);
    TryFolder(VEXIL64_GOLDEN);
}

TEST_F(JsonCommand, FollowsTheSchemaForRealFiles) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    TryFolder(corpus);
}

// The check of the schema would find what it looks for.
TEST_F(JsonCommand, SchemaRefusesOtherDocuments) {
    const json good = json::parse(SmallJson);
    ASSERT_EQ(Faults(good), std::vector<std::string>());
    const auto isRefused = [&](const std::string& path, const json& value) {
        json document = good;
        document[json::json_pointer(path)] = value;
        return !Faults(document).empty();
    };
    const std::string message = "/messages/0";
    const std::string signal = message + "/signals/0";
    EXPECT_TRUE(isRefused("/formatVersion", 2));
    EXPECT_TRUE(isRefused("/more", 1));
    EXPECT_TRUE(isRefused(message + "/id", 4294967296));
    EXPECT_TRUE(isRefused(message + "/id", -1));
    EXPECT_TRUE(isRefused(message + "/transmitter", std::string(33, 'a')));
    EXPECT_TRUE(isRefused(signal + "/factor", "nan"));
    EXPECT_TRUE(isRefused(signal + "/startValue", 2147483648));
    EXPECT_TRUE(isRefused(signal + "/valueDescriptions/0", json::object()));
    EXPECT_FALSE(isRefused(signal + "/factor", "NaN"));
    EXPECT_FALSE(isRefused(signal + "/cut", json{"comment"}));
}

}  // namespace
}  // namespace vexil::test
