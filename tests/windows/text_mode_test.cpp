// Files as text: line ends written and read, byte 0x1A, and what a host does to the
// runtime that it shares with the library.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <stdlib.h>

#include <string>
#include <vector>

#include "windows/windows_test.h"

namespace vexil::test {
namespace {

// Checks that every line end of a text has two bytes, or finds the position of another one.
testing::AssertionResult EndsEveryLineInTwoBytes(const std::string& bytes) {
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const bool isFeed = bytes[at] == '\n';
        const bool isBehindReturn = at > 0 && bytes[at - 1] == '\r';
        if (isFeed != isBehindReturn) {
            return testing::AssertionFailure()
                   << "at byte " << at << " of " << testing::PrintToString(bytes);
        }
    }
    return testing::AssertionSuccess();
}

class TextMode : public ApiTest {
  protected:
    // A database whose file has line feeds inside comments and a node list of several lines.
    static void FillDatabase() {
        for (std::uint32_t id = 0; id < 40; ++id) {
            AppendMessage({.id = id,
                           .longName = "Message",
                           .transmitter = "NodeWithALongName" + std::to_string(id),
                           .comment = "first\nsecond\n\nlast"});
        }
        AppendSignal(0, {.longName = "Signal", .comment = "one\ntwo"});
    }

    // Positions around the ends of the blocks in which files can be read.
    static std::vector<std::size_t> PiecesEnds() {
        std::vector<std::size_t> positions;
        for (const std::size_t piece : {512, 1024, 4096, 65536, 131072}) {
            for (std::size_t at = piece - 20; at < piece + 4; ++at) {
                positions.push_back(at);
            }
        }
        return positions;
    }

    static std::size_t Count(const std::string& bytes, std::string_view text) {
        std::size_t count = 0;
        for (std::size_t at = bytes.find(text); at != std::string::npos;
             at = bytes.find(text, at + 1)) {
            ++count;
        }
        return count;
    }

    static std::string CommentOfMessage(std::uint32_t index) {
        CanMessageRecord message{};
        EXPECT_EQ(VexilGetCanMessageData(index, &message), 1);
        return message.comment;
    }
};

TEST_F(TextMode, EndsEveryWrittenLineInTwoBytes) {
    FillDatabase();
    EXPECT_EQ(Write(path), Success);
    const std::string bytes = ReadBytes(path);
    EXPECT_TRUE(EndsEveryLineInTwoBytes(bytes));
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(Count(bytes, "\"first\r\nsecond\r\n\r\nlast\";\r\n"), 40U);
    EXPECT_EQ(Count(bytes, "\"one\r\ntwo\";\r\n"), 1U);
    const std::string nodes = bytes.substr(bytes.find("BU_ :"));
    EXPECT_GT(Count(nodes.substr(0, nodes.find("\r\n\r\n")), "\r\n"), 0U);
}

TEST_F(TextMode, ReadsWhatItWroteWithoutCarriageReturns) {
    FillDatabase();
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(Read(path), Success);
    ASSERT_EQ(VexilGetNumCanMessages(), 40U);
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
    for (std::uint32_t index = 0; index < 40; ++index) {
        EXPECT_EQ(CommentOfMessage(index), "first\nsecond\n\nlast");
    }
    CanSignalRecord signal{};
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &signal), 1);
    EXPECT_STREQ(signal.comment, "one\ntwo");
}

// A carriage return of the model is no line end and is written as it is.
TEST_F(TextMode, WritesACarriageReturnUnchanged) {
    AppendMessage({.id = 1, .longName = "A", .comment = "a\rb\r\nc"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(Count(ReadBytes(path), "\"a\rb\r\r\nc\";\r\n"), 1U);
    EXPECT_EQ(Read(path), Success);
    EXPECT_EQ(CommentOfMessage(0), "a\rb\r\nc");
}

// The runtime and the library read in pieces; a line end may be at the boundary of two.
TEST_F(TextMode, ReadsALineEndAtEachPlaceOfAFile) {
    const std::string head = "BO_ 1 A: 8 N\r\nCM_ BO_ 1 \"";
    for (const std::size_t at : PiecesEnds()) {
        const std::string front(at - head.size(), ' ');
        EXPECT_EQ(ReadText("BO_ 1 A: 8 N\r\n" + front + "\r\n  CM_ BO_ 1 \"x\r\ny\";\r\n"),
                  Success);
        EXPECT_EQ(CommentOfMessage(0), "x\ny") << at;
        EXPECT_EQ(ReadText(head + "x\";" + front + "\r\n" + "BO_ 2 B: 8 N\r\n"), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), 2U) << at;
    }
}

TEST_F(TextMode, KeepsALoneCarriageReturnAtEachPlaceOfAFile) {
    const std::string head = "BO_ 1 A: 8 N\r\n";
    const std::string comment = "CM_ BO_ 1 \"x";
    for (const std::size_t at : PiecesEnds()) {
        const std::string front(at - head.size() - comment.size(), ' ');
        EXPECT_EQ(ReadText(head + front + comment + "\ry\r\r\nz\";\r\n"), Success);
        EXPECT_EQ(CommentOfMessage(0), "x\ry\r\nz") << at;
        // The last byte of a file.
        EXPECT_EQ(ReadText(head + front + comment + "\r"), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), 1U) << at;
    }
}

TEST_F(TextMode, EndsAReadAtByteHex1AAtEachPlaceOfAFile) {
    const std::string head = "BO_ 1 A: 8 N\r\n";
    for (const std::size_t at : PiecesEnds()) {
        const std::string front(at - head.size(), ' ');
        EXPECT_EQ(ReadText(head + front + "BO_ 2 B: 8 N\r\n\x1a\r\nBO_ 3 C: 8 N\r\n"), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), 2U) << at;
        EXPECT_EQ(ReadText(head + front + "\x1a" + "BO_ 2 B: 8 N\r\n"), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), 1U) << at;
    }
}

TEST_F(TextMode, WritesByteHex1AAndAllThatFollows) {
    AppendMessage({.id = 1,
                   .comment = "a\x1a"
                              "b"});
    AppendMessage({.id = 2});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(Count(ReadBytes(path),
                    "\"a\x1a"
                    "b\";\r\n"),
              1U);
}

// The runtime of Windows can open files as binary ones by default; the library is not misled.
TEST_F(TextMode, IgnoresTheDefaultModeOfTheRuntime) {
    _fmode = _O_BINARY;
    FillDatabase();
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(Read(path), Success);
    _fmode = _O_TEXT;
    EXPECT_TRUE(EndsEveryLineInTwoBytes(ReadBytes(path)));
    EXPECT_EQ(CommentOfMessage(0), "first\nsecond\n\nlast");
}

}  // namespace
}  // namespace vexil::test
