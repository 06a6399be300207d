// vexil-dbc diff --json: the whole output for two files, and the schema of docs/diff.schema.json,
// to which the output for many files is held.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "tool/json_schema.h"
#include "tool/tool_process.h"

namespace vexil::test {
namespace {

using nlohmann::json;

class DiffJson : public ToolTest {
  protected:
    // The document that the tool prints.
    static json Compare(const std::string& before, const std::string& after) {
        return json::parse(RunTool({"diff", "--json", before, after}).out);
    }

    static std::vector<std::string> Faults(const json& document) {
        return SchemaFaults(json::parse(ReadBytes(VEXIL64_DIFF_SCHEMA)), document);
    }

    static std::vector<std::string> FilesOf(const char* dbcFolder) {
        std::vector<std::string> files;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(dbcFolder)) {
            if (entry.path().extension() == ".dbc") {
                files.push_back(entry.path().string());
            }
        }
        std::sort(files.begin(), files.end());
        return files;
    }
};

TEST_F(DiffJson, PrintsWhatDiffers) {
    const std::string a = MakeFile("a.dbc",
                                   "BO_ 1 A: 8 N\n"
                                   " SG_ S : 0|8@1+ (0.5,0) [0|1] \"\" N\n"
                                   " SG_ T : 8|8@1+ (1,0) [0|1] \"\" N\n"
                                   "BO_ 2 B: 8 N\n");
    const std::string b = MakeFile("b.dbc",
                                   "BO_ 2 B: 8 N\n"
                                   "BO_ 1 A: 6 N\n"
                                   " SG_ T m3 : 8|8@0+ (1,0) [0|1] \"\" N\n"
                                   "VAL_ 1 T 1 \"on\" ;\n");
    const Outcome outcome = RunTool({"diff", "--json", a, b});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(
        outcome.out,
        "{\"before\": " + json(a).dump() + ",\n\"after\": " + json(b).dump() +
            ",\n"
            "\"counts\": {\"removed\":0,\"added\":0,\"changed\":1,\"moved\":1},\n"
            "\"changes\": [],\n"
            "\"messages\": [\n"
            "{\"change\":\"changed\",\"before\":{\"id\":1,\"name\":\"A\"},"
            "\"after\":{\"id\":1,\"name\":\"A\"},"
            "\"changes\":[{\"aspect\":\"size\",\"before\":8,\"after\":6}],"
            "\"signals\":["
            "{\"change\":\"removed\",\"before\":{\"name\":\"S\",\"longName\":\"S\",\"comment\":"
            "\"\","
            "\"bits\":{\"start\":0,\"length\":8,\"byteOrder\":\"little-endian\"},"
            "\"type\":\"unsigned\",\"scaling\":{\"factor\":0.5,\"offset\":0},"
            "\"range\":{\"minimum\":0,\"maximum\":1},\"unit\":\"\","
            "\"multiplexing\":{\"type\":\"none\"},\"receivers\":[\"N\"],\"values\":[],"
            "\"startValue\":0,\"inactiveValue\":0}},"
            "{\"change\":\"changed\",\"before\":{\"name\":\"T\"},\"after\":{\"name\":\"T\"},"
            "\"changes\":["
            "{\"aspect\":\"bits\","
            "\"before\":{\"start\":8,\"length\":8,\"byteOrder\":\"little-endian\"},"
            "\"after\":{\"start\":8,\"length\":8,\"byteOrder\":\"big-endian\"}},"
            "{\"aspect\":\"multiplexing\",\"before\":{\"type\":\"none\"},"
            "\"after\":{\"type\":\"selected\",\"value\":3}},"
            "{\"aspect\":\"values\",\"before\":[],\"after\":[{\"value\":1,\"text\":\"on\"}]}]}],"
            "\"moved\":[]}\n"
            "],\n"
            "\"moved\": [{\"id\":2,\"name\":\"B\"}]}\n");
}

TEST_F(DiffJson, PrintsEmptyListsForEqualFiles) {
    const std::string a = MakeFile("a.dbc", "BO_ 1 A: 8 N\n");
    const Outcome outcome = RunTool({"diff", "--json", a, a});
    EXPECT_EQ(outcome,
              (Outcome{0,
                       "{\"before\": " + json(a).dump() + ",\n\"after\": " + json(a).dump() +
                           ",\n\"counts\": "
                           "{\"removed\":0,\"added\":0,\"changed\":0,\"moved\":0},\n"
                           "\"changes\": [],\n\"messages\": [],\n\"moved\": []}\n",
                       ""}));
}

TEST_F(DiffJson, HasNumbersWithTheFewestDigits) {
    const std::string head = "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ ";
    const std::string a = MakeFile("a.dbc", head + "(0.1,1e300) [-5|0.25] \"\" N\n");
    const std::string b = MakeFile("b.dbc", head + "(3,-0.30000000000000004) [0|1e15] \"\" N\n");
    const json changes = Compare(a, b)["messages"][0]["signals"][0]["changes"];
    EXPECT_EQ(changes[0].dump(),
              "{\"after\":{\"factor\":3,\"offset\":-0.30000000000000004},\"aspect\":\"scaling\","
              "\"before\":{\"factor\":0.1,\"offset\":1e+300}}");
    EXPECT_EQ(changes[1]["before"].dump(), "{\"maximum\":0.25,\"minimum\":-5}");
    EXPECT_EQ(changes[1]["after"].dump(), "{\"maximum\":1000000000000000,\"minimum\":0}");
    EXPECT_EQ(Faults(Compare(a, b)), std::vector<std::string>());
}

TEST_F(DiffJson, FollowsTheSchema) {
    std::vector<std::string> files = FilesOf(VEXIL64_GOLDEN);
    ASSERT_GT(files.size(), 10U);
    files.insert(files.begin(), "/dev/null");
    for (std::size_t index = 1; index < files.size(); ++index) {
        EXPECT_EQ(Faults(Compare(files[index - 1], files[index])), std::vector<std::string>())
            << files[index];
    }
}

TEST_F(DiffJson, FollowsTheSchemaForRealFilesAndTheirRewrites) {
    const char* const corpus = std::getenv("VEXIL64_CORPUS");
    if (corpus == nullptr || *corpus == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    const std::vector<std::string> files = FilesOf(corpus);
    ASSERT_FALSE(files.empty());
    const std::string written = folder.File("written.dbc");
    for (const std::string& file : files) {
        RunTool({"rewrite", file, written});
        EXPECT_EQ(Faults(Compare(file, written)), std::vector<std::string>()) << file;
    }
}

// The check of the schema would find what it looks for.
TEST_F(DiffJson, SchemaRefusesOtherDocuments) {
    const json good = Compare(
        MakeFile("a.dbc", "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\nBO_ 2 B: 8 N\n"),
        MakeFile("b.dbc", "BO_ 1 A: 6 N\n SG_ S : 0|8@0+ (2,0) [0|1] \"\" N\n"));
    ASSERT_EQ(Faults(good), std::vector<std::string>());
    const auto isRefused = [&](const json& patch) { return !Faults(good.patch(patch)).empty(); };
    const auto replace = [&](const std::string& path, const json& value) {
        return json::array({{{"op", "replace"}, {"path", path}, {"value", value}}});
    };
    EXPECT_TRUE(isRefused(replace("/counts/added", -1)));
    EXPECT_TRUE(isRefused(replace("/messages/0/change", "lost")));
    EXPECT_TRUE(isRefused(replace("/messages/1/changes/0/before", "8")));
    EXPECT_TRUE(isRefused(replace("/messages/1/changes/0/aspect", "colour")));
    const std::string change = "/messages/1/signals/0/changes/0";
    EXPECT_TRUE(isRefused(replace(change + "/before/byteOrder", "middle")));
    EXPECT_TRUE(isRefused(replace("/messages/1/signals/0/changes/1/before/factor", "one")));
    EXPECT_TRUE(isRefused(json::array({{{"op", "remove"}, {"path", change + "/after"}}})));
    EXPECT_TRUE(isRefused(json::array({{{"op", "add"}, {"path", "/more"}, {"value", 1}}})));
}

}  // namespace
}  // namespace vexil::test
