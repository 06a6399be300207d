// Tests of StatementFile: its states, the lines that go in and those that go out. The cut into
// statements is tested in statement_scan_test.cpp.
// SPDX-License-Identifier: MIT
#include "text/statement_file.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/files.h"
#include "vexil64.h"

#ifndef _WIN32
#include "text/feed.h"
#endif

namespace vexil {
namespace {

using namespace std::string_literals;
using test::ReadTextFile;
using test::TempFolder;
using test::WriteBytes;

class StatementFileTest : public testing::Test {
  protected:
    // Opens a path. The size of the buffer includes the NUL.
    void Open(const std::string& name, OpenMode mode) {
        file.Open(name.c_str(), static_cast<std::uint32_t>(name.size() + 1), mode);
    }

    void OpenWith(std::string_view bytes) {
        WriteBytes(path, bytes);
        Open(path, OpenMode::Read);
    }

    void Write(std::string_view text) {
        LineBuffer line;
        line.Append(text);
        file.WriteLine(line);
        EXPECT_EQ(line.Size(), 0U);
    }

    // The whole of a file that holds one statement.
    std::string OneStatement(std::string_view bytes) {
        OpenWith(bytes);
        EXPECT_TRUE(file.NextStatement());
        std::string statement(file.statement);
        EXPECT_FALSE(file.NextStatement());
        EXPECT_EQ(file.parseState, StateEndOfFile);
        return statement;
    }

    void ExpectClosed(std::uint32_t state) {
        EXPECT_EQ(file.parseState, state);
        EXPECT_EQ(file.lineNumber, 0U);
        EXPECT_EQ(file.statement, "");
        EXPECT_FALSE(file.NextStatement());
        EXPECT_EQ(file.parseState, state);
        Write("text");
        EXPECT_EQ(file.parseState, state);
    }

    TempFolder folder;
    std::string path = folder.File("net.dbc");
    StatementFile file;
};

// -- States -----------------------------------------------------------------------------------

TEST_F(StatementFileTest, IsClosedAndEmptyWhenMade) {
    ExpectClosed(StateClosed);
}

TEST_F(StatementFileTest, OpensForReading) {
    OpenWith("BO_ 1\n");
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_EQ(file.lineNumber, 0U);
    EXPECT_EQ(file.statement, "");
    EXPECT_EQ(ReadTextFile(path), "BO_ 1\n");
}

TEST_F(StatementFileTest, OpensForWriting) {
    WriteBytes(path, "old text");
    Open(path, OpenMode::Write);
    EXPECT_EQ(file.parseState, StateWriting);
    EXPECT_EQ(file.lineNumber, 0U);
    EXPECT_EQ(ReadTextFile(path), "");
}

TEST_F(StatementFileTest, RefusesPaths) {
    for (const OpenMode mode : {OpenMode::Read, OpenMode::Write}) {
        file.Open(path.c_str(), 261, mode);
        ExpectClosed(StatePathTooLong);
        Open("\xffxyz", mode);
        ExpectClosed(StatePathInvalid);
        file.Open(path.c_str(), 0, mode);
        ExpectClosed(StatePathEmpty);
        file.Open("", 1, mode);
        ExpectClosed(StatePathEmpty);
        file.Open(nullptr, 260, mode);
        ExpectClosed(StatePathEmpty);
        Open(folder.File("missing/net.dbc"), mode);
        ExpectClosed(StateOpenFailed);
        file.Close();
        ExpectClosed(StateClosed);
    }
}

TEST_F(StatementFileTest, ReachesTheEndOfTheFileWithTheLastStatement) {
    OpenWith("BO_ 1\nBO_ 2\n");
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.parseState, StateEndOfFile);
    EXPECT_FALSE(file.NextStatement());
    EXPECT_EQ(file.parseState, StateEndOfFile);
    file.Close();
    ExpectClosed(StateClosed);
}

TEST_F(StatementFileTest, ClosesInTheMiddleOfAFile) {
    OpenWith("CM_ \"a BO_ 1\nBO_ 2\nBO_ 3\n");
    EXPECT_TRUE(file.NextStatement());
    file.Close();
    ExpectClosed(StateClosed);
}

TEST_F(StatementFileTest, CanBeOpenedAgainWhileOpen) {
    OpenWith("BO_ 1\n x\nBO_ 2\nBO_ 3\n");
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.lineNumber, 3U);
    Open(path, OpenMode::Read);
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_EQ(file.lineNumber, 0U);
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.statement, "BO_ 1\n x\n");
    EXPECT_EQ(file.lineNumber, 3U);
}

TEST_F(StatementFileTest, ReturnsNoStatementWhileWriting) {
    Open(path, OpenMode::Write);
    EXPECT_FALSE(file.NextStatement());
    EXPECT_EQ(file.parseState, StateWriting);
}

// A folder opens for reading here, but gives no line.
TEST_F(StatementFileTest, FailsOnALineThatCannotBeRead) {
    Open(folder.File(""), OpenMode::Read);
    ASSERT_EQ(file.parseState, StateReading);
    EXPECT_FALSE(file.NextStatement());
    EXPECT_EQ(file.parseState, StateStreamError);
    EXPECT_EQ(file.lineNumber, 0U);
    EXPECT_FALSE(file.NextStatement());
    file.Close();
    ExpectClosed(StateStreamError);
    OpenWith("BO_ 1\n");
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_TRUE(file.NextStatement());
    file.Close();
    ExpectClosed(StateClosed);
}

#ifndef _WIN32

// The statements of the lines before a failure are returned, the last one with the failure.
TEST_F(StatementFileTest, ReturnsTheLinesBeforeAFailedRead) {
    const test::Feed feed;
    const int descriptor = test::NextDescriptor();
    OpenWith("");
    feed.Replace(descriptor);
    feed.Send("BO_ 1\n x\nBO_ 2\n y\n z BO_ 3");
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.statement, "BO_ 1\n x\n");
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.statement, "BO_ 2\n y\n");
    EXPECT_EQ(file.parseState, StateStreamError);
    EXPECT_EQ(file.lineNumber, 4U);
    EXPECT_FALSE(file.NextStatement());
    file.Close();
    ExpectClosed(StateStreamError);
}

#endif

// -- Reading lines ----------------------------------------------------------------------------

TEST_F(StatementFileTest, ReplacesEachInvalidByteWithAnUnderscore) {
    EXPECT_EQ(OneStatement("BO_ \xff\xe9 caf\xc3\xa9 \xe2\x82z \xed\xa0\x80\n"),
              "BO_ __ caf\xc3\xa9 __z ___\n");
    EXPECT_EQ(OneStatement("BO_ \xf0\x9f\x9a\x97\xf0\x9f\x9a\n"), "BO_ \xf0\x9f\x9a\x97___\n");
}

TEST_F(StatementFileTest, RemovesControlCharactersExceptWhiteSpace) {
    std::string line = "BO_ ";
    for (int code = 0; code < 32; ++code) {
        if (code != '\n') {
            line += static_cast<char>(code);
        }
        line += 'x';
    }
    line += "\x7fz\n";
    EXPECT_EQ(OneStatement(line), "BO_ xxxxxxxxx\txx\vx\fx\r" + std::string(19, 'x') + "z\n");
}

TEST_F(StatementFileTest, MatchesAKeywordSplitByAControlCharacter) {
    EXPECT_EQ(OneStatement("B\0O_ 1\n"s), "BO_ 1\n");
}

// -- Writing lines ----------------------------------------------------------------------------

TEST_F(StatementFileTest, WritesEachLineAtOnce) {
    Open(path, OpenMode::Write);
    Write("one");
    EXPECT_EQ(ReadTextFile(path), "one\n");
    Write("");
    EXPECT_EQ(ReadTextFile(path), "one\n\n");
    Write("two\nthree");
    EXPECT_EQ(ReadTextFile(path), "one\n\ntwo\nthree\n");
    EXPECT_EQ(file.parseState, StateWriting);
    EXPECT_EQ(file.lineNumber, 0U);
    file.Close();
    EXPECT_EQ(file.parseState, StateClosed);
    EXPECT_EQ(ReadTextFile(path), "one\n\ntwo\nthree\n");
}

TEST_F(StatementFileTest, WritesTheBytesOfATextUnchanged) {
    Open(path, OpenMode::Write);
    Write("\xef\xbb\xbf\xff\0\x01\r\t\xc3\xa9"s);
    EXPECT_EQ(ReadTextFile(path), "\xef\xbb\xbf\xff\0\x01\r\t\xc3\xa9\n"s);
}

TEST_F(StatementFileTest, WritesNothingWhileReading) {
    OpenWith("BO_ 1\nBO_ 2\n");
    EXPECT_TRUE(file.NextStatement());
    Write("text");
    EXPECT_EQ(file.parseState, StateReading);
    EXPECT_TRUE(file.NextStatement());
    EXPECT_EQ(file.statement, "BO_ 2\n");
    Write("text");
    EXPECT_EQ(file.parseState, StateEndOfFile);
    file.Close();
    EXPECT_EQ(ReadTextFile(path), "BO_ 1\nBO_ 2\n");
}

#ifndef _WIN32

// Closing the file writes the rest of a line if there is room again.
TEST_F(StatementFileTest, CloseRetriesTheRestOfALine) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC), 0);
    const int descriptor = test::NextDescriptor();
    Open(path, OpenMode::Write);
    dup2(ends[1], descriptor);
    std::string bytes(static_cast<std::size_t>(fcntl(ends[1], F_GETPIPE_SZ)), '?');
    Write(std::string(bytes.size(), 'x') + "yz");
    EXPECT_EQ(read(ends[0], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    Write("lost");
    file.Close();
    ExpectClosed(StateStreamError);
    EXPECT_EQ(read(ends[0], bytes.data(), bytes.size()), 3);
    EXPECT_EQ(bytes.substr(0, 4), "yz\nx");
    close(ends[0]);
    close(ends[1]);
}

#endif

// The device takes every open and refuses every byte.
class FullDeviceTest : public StatementFileTest {
  protected:
    void SetUp() override {
        if (!std::filesystem::exists("/dev/full")) {
            GTEST_SKIP() << "no /dev/full here";
        }
        Open("/dev/full", OpenMode::Write);
        ASSERT_EQ(file.parseState, StateWriting);
    }
};

TEST_F(FullDeviceTest, FailedLineIsReportedByTheNextLine) {
    Write("one");
    EXPECT_EQ(file.parseState, StateWriting);
    Write("two");
    EXPECT_EQ(file.parseState, StateStreamError);
    Write("three");
    EXPECT_EQ(file.parseState, StateStreamError);
    file.Close();
    ExpectClosed(StateStreamError);
}

TEST_F(FullDeviceTest, FailedLastLineIsReportedByClose) {
    Write("one");
    EXPECT_EQ(file.parseState, StateWriting);
    file.Close();
    ExpectClosed(StateStreamError);
}

TEST_F(FullDeviceTest, FailedOpenClearsTheStreamError) {
    Write("one");
    file.Close();
    ExpectClosed(StateStreamError);
    Open(path + "/missing", OpenMode::Read);
    EXPECT_EQ(file.parseState, StateOpenFailed);
    file.Close();
    ExpectClosed(StateClosed);
}

TEST_F(FullDeviceTest, NextFileCanBeWrittenAfterAFailure) {
    Write("one");
    Write("two");
    Open(path, OpenMode::Write);
    EXPECT_EQ(file.parseState, StateWriting);
    Write("three");
    file.Close();
    EXPECT_EQ(file.parseState, StateClosed);
    EXPECT_EQ(ReadTextFile(path), "three\n");
}

}  // namespace
}  // namespace vexil
