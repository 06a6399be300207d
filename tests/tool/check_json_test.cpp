// vexil-dbc check --json: the whole output for a file, and the schema of docs/check.schema.json, to
// which the output for many files is held.
// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>
#include <set>

#include "tool/json_schema.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using nlohmann::json;

class CheckJson : public ToolTest {
  protected:
    // The document that the tool prints.
    static json Check(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"check", "--json"});
        return json::parse(RunTool(arguments).out);
    }

    static std::vector<std::string> Faults(const json& document) {
        return SchemaFaults(json::parse(ReadBytes(VEXIL64_CHECK_SCHEMA)), document);
    }
};

TEST_F(CheckJson, PrintsCountsAndTheStatementsWithFindings) {
    const std::string file = MakeFile("a.dbc",
                                      "BO_ x1 A: 8 N\n"
                                      " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
                                      "BU_ : N\n");
    const Outcome outcome = RunTool({"check", "--json", file});
    EXPECT_EQ(outcome.exitCode, Findings);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(
        outcome.out,
        "{\"files\": [\n"
        "{\"file\": " +
            json(file).dump() +
            ",\n"
            "\"counts\": {\"statements\":3,\"refused\":1,\"dropped\":1,\"changed\":0,\"ignored\":1,"
            "\"kept\":0},\n"
            "\"causes\": {\"message-id\":1,\"signal-of-refused-message\":1,\"nodes\":1},\n"
            "\"findings\": [],\n"
            "\"layout\": [],\n"
            "\"statements\": [\n"
            "{\"line\":1,\"column\":1,\"keyword\":\"BO_\",\"fate\":\"refused\",\"cause\":\"message-"
            "id\","
            "\"detail\":\"the form is BO_ 291 Engine: 8 ECU1; 1 signal went with it\","
            "\"text\":\"BO_ x1 A: 8 N\"},\n"
            "{\"line\":2,\"column\":2,\"keyword\":\"SG_\",\"fate\":\"dropped\","
            "\"cause\":\"signal-of-refused-message\",\"detail\":\"the message in line 1\","
            "\"text\":\"SG_ S : 0|8@1+ (1,0) [0|1] \\\"\\\" N\"}\n"
            "]}\n"
            "]}\n");
}

TEST_F(CheckJson, HasEveryStatementOnRequest) {
    const std::string file = MakeFile("a.dbc", "VERSION \"\"\nBO_ 1 A: 8 N\nBU_ : N\n");
    EXPECT_EQ(Check({file})["files"][0]["statements"].size(), 0U);
    const json all = Check({file, "--all"});
    ASSERT_EQ(all["files"][0]["statements"].size(), 3U);
    EXPECT_EQ(all["files"][0]["statements"][1]["fate"], "kept");
    EXPECT_EQ(all["files"][0]["counts"]["statements"], 3);
}

TEST_F(CheckJson, NamesFilesThatCannotBeRead) {
    const std::string file = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const std::string missing = folder.File("none.dbc");
    const json document = Check({missing, file});
    EXPECT_EQ(document["files"][0],
              (json{{"file", missing}, {"error", "the file cannot be read"}}));
    EXPECT_EQ(document["files"][1]["counts"]["kept"], 1);
    EXPECT_EQ(Faults(document), std::vector<std::string>());
}

TEST_F(CheckJson, FollowsTheSchema) {
    const json document =
        Check({"--all", "--layout", VEXIL64_SAMPLES, VEXIL64_GOLDEN, MakeFile("a.dbc", ""),
               MakeFile("b.dbc", "BO_ 1 A: 1 N\n SG_ S : 4|8@1+ (1,0) [0|1] \"\xB0\" N\n"),
               MakeFile("c.dbc", "stray BO_ 1 A: 8 N\n")});
    EXPECT_GT(document["files"].size(), 10U);
    EXPECT_EQ(Faults(document), std::vector<std::string>());
}

// The check of the schema would find what it looks for.
TEST_F(CheckJson, SchemaRefusesOtherDocuments) {
    const json good = Check({MakeFile("a.dbc", "BO_ x A: 8 N\n")});
    ASSERT_EQ(Faults(good), std::vector<std::string>());
    const auto isRefused = [&](const json& patch) { return !Faults(good.patch(patch)).empty(); };
    const std::string statement = "/files/0/statements/0";
    const auto replace = [&](const std::string& path, const json& value) {
        return json::array({{{"op", "replace"}, {"path", path}, {"value", value}}});
    };
    EXPECT_TRUE(isRefused(replace(statement + "/fate", "lost")));
    EXPECT_TRUE(isRefused(replace(statement + "/line", 0)));
    EXPECT_TRUE(isRefused(replace(statement + "/cause", "Message Id")));
    EXPECT_TRUE(isRefused(replace(statement + "/text", 5)));
    EXPECT_TRUE(isRefused(json::array({{{"op", "remove"}, {"path", statement + "/detail"}}})));
    EXPECT_TRUE(isRefused(json::array({{{"op", "add"}, {"path", "/files/0/more"}, {"value", 1}}})));
}

}  // namespace
}  // namespace vexil::test
