// Tests of text/open_stream.h: which paths are taken, and how their files are opened.
// SPDX-License-Identifier: MIT
#include "text/open_stream.h"

#include <gtest/gtest.h>

#include <string>

#include "support/files.h"
#include "vexil64.h"

namespace vexil {
namespace {

using namespace std::string_view_literals;
using test::ReadBytes;
using test::TempFolder;
using test::WriteBytes;

constexpr std::uint32_t untouched = 77;

struct PathCase {
    std::string_view buffer;
    std::string_view path;
    std::uint32_t state;
};

void ExpectPaths(std::initializer_list<PathCase> rows) {
    for (const PathCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.buffer));
        const auto size = static_cast<std::uint32_t>(row.buffer.size());
        std::uint32_t state = untouched;
        EXPECT_EQ(CheckedPath(row.buffer.data(), size, state), row.path);
        EXPECT_EQ(state, row.state);
    }
}

TEST(CheckedPath, TakesThePathInFrontOfTheNul) {
    ExpectPaths({{"net.dbc\0"sv, "net.dbc", untouched},
                 {"net.dbc\0rest\0"sv, "net.dbc", untouched},
                 {"net.dbc\0\xff\xff\xff\xff"sv, "net.dbc", untouched},
                 {"caf\xc3\xa9\0"sv, "caf\xc3\xa9", untouched},
                 {"\xf0\x9f\x9a\x97\0"sv, "\xf0\x9f\x9a\x97", untouched},
                 // Without a NUL the last byte goes.
                 {"net.dbc"sv, "net.db", untouched},
                 {"caf\xc3\xa9"sv, "caf", untouched},
                 // A character cut off at the end is dropped.
                 {"abc\xe2\x82\0"sv, "abc", untouched},
                 {"abc\xff"
                  "de\0"sv,
                  "abc", untouched}});
}

TEST(CheckedPath, RefusesEmptyAndInvalidPaths) {
    ExpectPaths({{"\0"sv, "", StatePathEmpty},
                 {"\0abc\0"sv, "", StatePathEmpty},
                 {"\0\xff\xff\xff\xff"sv, "", StatePathEmpty},
                 {"a"sv, "", StatePathInvalid},
                 {"\xff"
                  "abc\0"sv,
                  "", StatePathInvalid},
                 {"abc\x80\0"sv, "", StatePathInvalid},
                 {"\xed\xa0\x80"
                  "abc\0"sv,
                  "", StatePathInvalid},
                 // All of a text of at most three bytes is dropped, so
                 // that nothing is left.
                 {"\xff\0"sv, "", StatePathEmpty},
                 {"\x80\x80\x80\0"sv, "", StatePathEmpty}});
}

TEST(CheckedPath, TakesABufferOfAtMost260Bytes) {
    std::string buffer(300, 'a');
    std::uint32_t state = untouched;
    EXPECT_EQ(CheckedPath(buffer.data(), 259, state), std::string(258, 'a'));
    EXPECT_EQ(state, untouched);
    EXPECT_EQ(CheckedPath(buffer.data(), 260, state), std::string(259, 'a'));
    EXPECT_EQ(state, untouched);
    buffer[259] = '\0';
    EXPECT_EQ(CheckedPath(buffer.data(), 260, state), std::string(259, 'a'));
    EXPECT_EQ(state, untouched);
    EXPECT_EQ(CheckedPath(buffer.data(), 261, state), "");
    EXPECT_EQ(state, StatePathTooLong);
    buffer[3] = '\0';
    EXPECT_EQ(CheckedPath(buffer.data(), 261, state), "");
    EXPECT_EQ(state, StatePathTooLong);
}

TEST(CheckedPath, LooksAtNoPathOfATooLongBuffer) {
    const auto* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});
    for (const std::uint32_t size : {261U, 4096U, 0xFFFFFFFFU}) {
        std::uint32_t state = untouched;
        EXPECT_EQ(CheckedPath(notAPath, size, state), "");
        EXPECT_EQ(state, StatePathTooLong);
    }
}

TEST(CheckedPath, CountsNoBufferAsAnEmptyPath) {
    const auto* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});
    std::uint32_t state = untouched;
    EXPECT_EQ(CheckedPath(notAPath, 0, state), "");
    EXPECT_EQ(state, StatePathEmpty);
    state = untouched;
    EXPECT_EQ(CheckedPath(nullptr, 260, state), "");
    EXPECT_EQ(state, StatePathEmpty);
    EXPECT_EQ(CheckedPath(nullptr, 261, state), "");
    EXPECT_EQ(state, StatePathTooLong);
}

class OpenStreamTest : public testing::Test {
  protected:
    TempFolder folder;
    std::string path = folder.File("net.dbc");
    std::fstream stream;
};

TEST_F(OpenStreamTest, ReadsAFile) {
    WriteBytes(path, "one\ntwo");
    OpenStream(stream, path, OpenMode::Read);
    ASSERT_TRUE(stream.is_open());
    EXPECT_TRUE(stream.good());
    std::string line;
    EXPECT_TRUE(std::getline(stream, line));
    EXPECT_EQ(line, "one");
    stream << "three" << std::flush;
    stream.close();
    EXPECT_EQ(ReadBytes(path), "one\ntwo");
}

TEST_F(OpenStreamTest, LeavesNoFileOnReadingWhatIsNotThere) {
    OpenStream(stream, path, OpenMode::Read);
    EXPECT_FALSE(stream.is_open());
    EXPECT_TRUE(stream.fail());
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(OpenStreamTest, MakesTheFileThatIsWritten) {
    OpenStream(stream, path, OpenMode::Write);
    ASSERT_TRUE(stream.is_open());
    stream << "text" << std::flush;
    EXPECT_TRUE(stream.good());
    EXPECT_EQ(ReadBytes(path), "text");
}

TEST_F(OpenStreamTest, EmptiesTheFileThatIsWritten) {
    WriteBytes(path, "old text");
    OpenStream(stream, path, OpenMode::Write);
    EXPECT_TRUE(stream.is_open());
    EXPECT_EQ(ReadBytes(path), "");
}

TEST_F(OpenStreamTest, LeavesNoFileOnWritingInAFolderThatIsNotThere) {
    OpenStream(stream, folder.File("missing/net.dbc"), OpenMode::Write);
    EXPECT_FALSE(stream.is_open());
    EXPECT_TRUE(stream.fail());
}

TEST_F(OpenStreamTest, TakesAPathInUtf8) {
    path = folder.File("caf\xc3\xa9 \xf0\x9f\x9a\x97.dbc");
    WriteBytes(path, "text");
    OpenStream(stream, path, OpenMode::Read);
    std::string line;
    EXPECT_TRUE(std::getline(stream, line));
    EXPECT_EQ(line, "text");
}

TEST_F(OpenStreamTest, LocksNobodyOut) {
    OpenStream(stream, path, OpenMode::Write);
    stream << "text\n" << std::flush;
    std::fstream reader;
    OpenStream(reader, path, OpenMode::Read);
    std::string line;
    EXPECT_TRUE(std::getline(reader, line));
    EXPECT_EQ(line, "text");
    std::fstream writer;
    OpenStream(writer, path, OpenMode::Write);
    EXPECT_TRUE(writer.is_open());
}

TEST_F(OpenStreamTest, ClearsWhatTheStreamWasLeftIn) {
    WriteBytes(path, "text");
    stream.setstate(std::ios_base::badbit | std::ios_base::failbit | std::ios_base::eofbit);
    OpenStream(stream, path, OpenMode::Read);
    EXPECT_TRUE(stream.is_open());
    EXPECT_TRUE(stream.good());
}

}  // namespace
}  // namespace vexil
