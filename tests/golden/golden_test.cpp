// Reads the input of each topic and compares records, errors and the file written from them with
// the files in the folder of the topic, byte for byte. README.md describes what to do when they
// differ.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/record_dump.h"
#include "vexil64.h"

namespace vexil::test {
namespace {

namespace fs = std::filesystem;

const fs::path GoldenFolder = VEXIL64_GOLDEN_FOLDER;
const fs::path ActualFolder = VEXIL64_ACTUAL_FOLDER;

std::vector<std::string> Topics() {
    std::set<std::string> topics;
    for (const auto& entry : fs::directory_iterator(GoldenFolder)) {
        if (entry.is_directory()) {
            topics.insert(entry.path().filename().string());
        }
    }
    return {topics.begin(), topics.end()};
}

std::uint32_t BufferSize(const std::string& path) {
    return static_cast<std::uint32_t>(path.size() + 1);
}

class Golden : public testing::TestWithParam<std::string> {
  protected:
    Golden() {
        fs::create_directories(ActualFolder / GetParam());
        VexilClearData();
        const DatabaseInfo plain{};
        VexilSetDatabaseInfo(&plain, sizeof plain);
    }
    ~Golden() override { VexilClearData(); }

    static std::string Expected(const char* file) {
        return (GoldenFolder / GetParam() / file).string();
    }

    static std::string Actual(const char* file) {
        return (ActualFolder / GetParam() / file).string();
    }

    static void Read() {
        const std::string path = Expected("input.dbc");
        std::uint32_t code = 99;
        ASSERT_EQ(VexilReadDbcFile(path.c_str(), BufferSize(path), &code), 1);
        ASSERT_EQ(code, StateClosed);
    }

    static void Compare(const char* file) {
        EXPECT_EQ(ReadTextFile(Actual(file)), ReadTextFile(Expected(file)))
            << Actual(file) << " is not " << Expected(file);
    }
};

TEST_P(Golden, HasItsRecords) {
    Read();
    WriteBytes(Actual("records.txt"), RecordText(FetchDatabase()));
    Compare("records.txt");
}

TEST_P(Golden, HasItsErrors) {
    Read();
    WriteBytes(Actual("errors.txt"), ErrorText(FetchDatabase()));
    Compare("errors.txt");
}

TEST_P(Golden, WritesItsFile) {
    Read();
    const std::string path = Actual("written.dbc");
    std::uint32_t code = 99;
    ASSERT_EQ(VexilWriteDbcFile(path.c_str(), BufferSize(path), OrderAsStored, &code), 1);
    ASSERT_EQ(code, StateClosed);
    Compare("written.dbc");
}

INSTANTIATE_TEST_SUITE_P(Topics, Golden, testing::ValuesIn(Topics()),
                         [](const auto& topic) { return topic.param; });

TEST(GoldenFolder, HoldsFourFilesForEachTopic) {
    const std::set<std::string> expected = {"input.dbc", "records.txt", "errors.txt",
                                            "written.dbc"};
    EXPECT_FALSE(Topics().empty());
    for (const std::string& topic : Topics()) {
        std::set<std::string> files;
        for (const auto& entry : fs::directory_iterator(GoldenFolder / topic)) {
            files.insert(entry.path().filename().string());
        }
        EXPECT_EQ(files, expected) << topic;
    }
}

}  // namespace
}  // namespace vexil::test
