// Tests of text/file.h: which paths are taken, and what happens to their files.
// SPDX-License-Identifier: MIT
#include "text/file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/files.h"
#include "vexil64.h"

#ifndef _WIN32
#include <sys/stat.h>

#include "text/feed.h"
#endif

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

TEST(CheckedPath, EndsAtTheNul) {
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
                 {"abc\xffwv\0"sv, "abc", untouched}});
}

TEST(CheckedPath, RefusesEmptyAndInvalidPaths) {
    ExpectPaths({{"\0"sv, "", StatePathEmpty},
                 {"\0abc\0"sv, "", StatePathEmpty},
                 {"\0\xff\xff\xff\xff"sv, "", StatePathEmpty},
                 {"a"sv, "", StatePathInvalid},
                 {"\xffxyz\0"sv, "", StatePathInvalid},
                 {"abc\x80\0"sv, "", StatePathInvalid},
                 {"\xed\xa0\x80xyz\0"sv, "", StatePathInvalid},
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

TEST(CheckedPath, DoesNotReadABufferThatIsTooLong) {
    const auto* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});
    for (const std::uint32_t size : {261U, 4096U, 0xFFFFFFFFU}) {
        std::uint32_t state = untouched;
        EXPECT_EQ(CheckedPath(notAPath, size, state), "");
        EXPECT_EQ(state, StatePathTooLong);
    }
}

TEST(CheckedPath, TreatsANullBufferAsAnEmptyPath) {
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

class FileTest : public testing::Test {
  protected:
    // What one read of at most size bytes gives.
    std::string ReadOnce(std::size_t size = 100) {
        std::string bytes(size, '?');
        const std::ptrdiff_t count = file.Read(bytes);
        EXPECT_GE(count, 0);
        return bytes.substr(0, static_cast<std::size_t>(count));
    }

    TempFolder folder;
    std::string path = folder.File("net.dbc");
    File file;
};

TEST_F(FileTest, ReadsAFile) {
    WriteBytes(path, "one\ntwo");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_TRUE(file.Open(path, OpenMode::Read));
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(ReadOnce(5), "one\nt");
    EXPECT_EQ(ReadOnce(5), "wo");
    EXPECT_EQ(ReadOnce(5), "");
    EXPECT_EQ(file.Write("three"), 0U);
    file.Close();
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(ReadBytes(path), "one\ntwo");
}

TEST_F(FileTest, OpenForReadingFailsForAMissingFile) {
    EXPECT_FALSE(file.Open(path, OpenMode::Read));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(FileTest, OpenForWritingCreatesTheFile) {
    ASSERT_TRUE(file.Open(path, OpenMode::Write));
    EXPECT_EQ(file.Write("some "), 5U);
    EXPECT_EQ(ReadBytes(path), "some ");
    EXPECT_EQ(file.Write("text"), 4U);
    EXPECT_EQ(file.Write(""), 0U);
    EXPECT_EQ(ReadBytes(path), "some text");
    std::array<char, 4> room;
    EXPECT_EQ(file.Read(room), -1);
}

TEST_F(FileTest, OpenForWritingTruncatesTheFile) {
    WriteBytes(path, "old text");
    EXPECT_TRUE(file.Open(path, OpenMode::Write));
    EXPECT_EQ(ReadBytes(path), "");
}

TEST_F(FileTest, OpenForWritingFailsInAMissingFolder) {
    EXPECT_FALSE(file.Open(folder.File("missing/net.dbc"), OpenMode::Write));
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(FileTest, OpensAUtf8Path) {
    path = folder.File("caf\xc3\xa9 \xf0\x9f\x9a\x97.dbc");
    WriteBytes(path, "text");
    ASSERT_TRUE(file.Open(path, OpenMode::Read));
    EXPECT_EQ(ReadOnce(), "text");
}

TEST_F(FileTest, OtherProcessesMayOpenTheFile) {
    ASSERT_TRUE(file.Open(path, OpenMode::Write));
    file.Write("text");
    File reader;
    ASSERT_TRUE(reader.Open(path, OpenMode::Read));
    std::array<char, 4> room;
    EXPECT_EQ(reader.Read(room), 4);
    File writer;
    EXPECT_TRUE(writer.Open(path, OpenMode::Write));
}

TEST_F(FileTest, CanBeOpenedAgainAfterClose) {
    WriteBytes(path, "text");
    ASSERT_TRUE(file.Open(path, OpenMode::Read));
    file.Close();
    file.Close();
    ASSERT_TRUE(file.Open(path, OpenMode::Read));
    EXPECT_EQ(ReadOnce(), "text");
}

#ifndef _WIN32

TEST_F(FileTest, DescriptorIsNotInherited) {
    for (const OpenMode mode : {OpenMode::Write, OpenMode::Read}) {
        const int descriptor = test::NextDescriptor();
        ASSERT_TRUE(file.Open(path, mode));
        EXPECT_EQ(fcntl(descriptor, F_GETFD), FD_CLOEXEC);
        file.Close();
        EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
    }
}

TEST_F(FileTest, DestructorClosesTheFile) {
    const int descriptor = test::NextDescriptor();
    {
        File other;
        ASSERT_TRUE(other.Open(path, OpenMode::Write));
        EXPECT_NE(fcntl(descriptor, F_GETFD), -1);
    }
    EXPECT_EQ(fcntl(descriptor, F_GETFD), -1);
}

TEST_F(FileTest, NewFileHasThePermissionsThatTheUmaskAllows) {
    const mode_t before = umask(027);
    ASSERT_TRUE(file.Open(path, OpenMode::Write));
    umask(before);
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0640});
}

TEST_F(FileTest, ShortReadReturnsTheAvailableBytes) {
    WriteBytes(path, "");
    const test::Feed feed;
    const int descriptor = test::NextDescriptor();
    ASSERT_TRUE(file.Open(path, OpenMode::Read));
    feed.Replace(descriptor);
    feed.Send("one");
    feed.Send("two");
    EXPECT_EQ(ReadOnce(), "one");
    EXPECT_EQ(ReadOnce(), "two");
    std::array<char, 4> room;
    EXPECT_EQ(file.Read(room), -1);
    feed.End();
    EXPECT_EQ(ReadOnce(), "");
}

// A pipe that is not read accepts bytes until it is full.
TEST_F(FileTest, WriteReturnsTheNumberOfBytesWritten) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC), 0);
    const int descriptor = test::NextDescriptor();
    ASSERT_TRUE(file.Open(path, OpenMode::Write));
    dup2(ends[1], descriptor);
    const auto capacity = static_cast<std::size_t>(fcntl(ends[1], F_GETPIPE_SZ));
    EXPECT_EQ(file.Write(std::string(capacity + 1000, 'x')), capacity);
    EXPECT_EQ(file.Write("text"), 0U);
    close(ends[0]);
    close(ends[1]);
}

#endif

}  // namespace
}  // namespace vexil
