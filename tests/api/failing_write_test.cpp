// Tests of VexilWriteDbcFile when the system takes no more bytes on the way: which line shows it,
// and what the file and the database hold then.
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "api/api_test.h"
#include "support/file_size_limit.h"

namespace vexil::test {
namespace {

class FailingWriteTest : public ApiTest {
  protected:
    FailingWriteTest() {
        AppendMessageOf(1, {"A", "B"});
        AppendMessage({.id = 2, .longName = "N", .comment = "the last line"});
        EXPECT_EQ(Write(path), Success);
        whole = ReadBytes(path);
        lastLine = whole.size() - std::string("CM_ BO_ 2 \"the last line\";\n").size();
        EXPECT_EQ(whole.substr(lastLine), "CM_ BO_ 2 \"the last line\";\n");
    }

    // Writes over an old text with room for so many bytes.
    Outcome WriteWithRoomFor(std::size_t size) {
        WriteBytes(path, std::string(whole.size() * 2, 'o'));
        const FileSizeLimit limit(size);
        return Write(path);
    }

    std::string whole;
    std::size_t lastLine = 0;  // where it starts
};

TEST_F(FailingWriteTest, SucceedsWithRoomForEveryByte) {
    EXPECT_EQ(WriteWithRoomFor(whole.size()), Success);
    EXPECT_EQ(ReadBytes(path), whole);
}

TEST_F(FailingWriteTest, SucceedsWithAStreamErrorWhenTheLastLineFails) {
    for (const std::size_t size : {whole.size() - 1, lastLine + 1, lastLine}) {
        EXPECT_EQ(WriteWithRoomFor(size), (Outcome{1, StateStreamError})) << size;
        EXPECT_EQ(ReadBytes(path), whole.substr(0, size));
    }
}

TEST_F(FailingWriteTest, FailsWhenAnEarlierLineFails) {
    for (const std::size_t size :
         {lastLine - 1, whole.size() / 2, std::size_t{1}, std::size_t{0}}) {
        EXPECT_EQ(WriteWithRoomFor(size), (Outcome{0, StateStreamError})) << size;
        EXPECT_EQ(ReadBytes(path), whole.substr(0, size));
    }
}

TEST_F(FailingWriteTest, KeepsTheNamesThatItMadeUnique) {
    VexilClearData();
    AppendMessageOf(1, {"A", "A"});
    EXPECT_EQ(WriteWithRoomFor(0), (Outcome{0, StateStreamError}));
    EXPECT_EQ(NamesOf(0), (Lines{"A_0000", "A_0001"}));
}

TEST_F(FailingWriteTest, IsFollowedByAGoodOne) {
    EXPECT_EQ(WriteWithRoomFor(10), (Outcome{0, StateStreamError}));
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(ReadBytes(path), whole);
}

TEST_F(FailingWriteTest, FailsOnADeviceThatIsFull) {
    if (!std::filesystem::exists("/dev/full")) {
        GTEST_SKIP() << "no /dev/full here";
    }
    EXPECT_EQ(Write("/dev/full"), (Outcome{0, StateStreamError}));
}

}  // namespace
}  // namespace vexil::test
