// Tests of text/line_blocks.h, mostly compared with a plain form of the same rules.
// SPDX-License-Identifier: MIT
#include "text/line_blocks.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "support/files.h"
#include "support/reference_text.h"

#ifndef _WIN32
#include "text/feed.h"
#endif

namespace vexil {
namespace {

using namespace std::string_literals;
using Outcome = LineBlocks::Outcome;
using Marks = std::vector<std::size_t>;

constexpr std::size_t BlockSize = std::size_t{64} * 1024;

// The clean lines of a file, and the marks as positions in them.
struct CleanText {
    std::string text;
    Marks marks;

    bool operator==(const CleanText&) const = default;
};

bool IsSpace(char ch) {
    return " \f\n\r\t\v"s.find(ch) != std::string::npos;
}

CleanText CleanedByRules(const std::string& bytes) {
    CleanText clean;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) {
        clean.text += test::reference::CleanLine(line) + '\n';
    }
    char before = '\n';
    for (std::size_t at = 0; at < clean.text.size(); ++at) {
        const char ch = clean.text[at];
        if (ch == '\n' || (IsSpace(ch) && "_NR"s.find(before) != std::string::npos)) {
            clean.marks.push_back(at);
        }
        before = ch;
    }
    return clean;
}

class LineBlocksTest : public testing::Test {
  protected:
    void Open(const std::string& bytes) {
        test::WriteBytes(path, bytes);
        file.Close();
        ASSERT_TRUE(file.Open(path, OpenMode::Read));
        blocks.Clear();
    }

    Outcome ReadKeepingNothing() { return blocks.Read(file, blocks.End()); }

    std::string_view Text() const { return blocks.Text(LineBlocks::Start, blocks.End()); }

    // The whole file, read without keeping anything.
    CleanText ReadAll() {
        CleanText all;
        Outcome outcome = ReadKeepingNothing();
        for (; outcome == Outcome::Lines; outcome = ReadKeepingNothing()) {
            EXPECT_EQ(Text().back(), '\n');
            for (const std::size_t mark : blocks.Marks()) {
                all.marks.push_back(all.text.size() + mark - LineBlocks::Start);
            }
            all.text += Text();
        }
        EXPECT_EQ(outcome, Outcome::EndOfFile);
        return all;
    }

    void ExpectCleaned(const std::string& bytes) {
        Open(bytes);
        // EXPECT_EQ would print the whole of a long text.
        EXPECT_TRUE(ReadAll() == CleanedByRules(test::ReadTextFile(path)));
    }

    test::TempFolder folder;
    std::string path = folder.File("net.dbc");
    File file;
    LineBlocks blocks;
};

// -- Lines --------------------------------------------------------------------------------------

TEST_F(LineBlocksTest, FindsNothingInAnEmptyFile) {
    Open("");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::EndOfFile);
    EXPECT_EQ(Text(), "");
    EXPECT_EQ(blocks.Marks(), Marks{});
}

TEST_F(LineBlocksTest, StartsWithWhiteSpaceBeforeTheText) {
    Open("BO_ 1\n");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(blocks.Text(0, blocks.End()), "\nBO_ 1\n");
    EXPECT_EQ(blocks.At(LineBlocks::Start), 'B');
    EXPECT_EQ(blocks.Marks(), (Marks{4, 6}));
}

TEST_F(LineBlocksTest, EndsTheLastLine) {
    Open("one\ntwo");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(Text(), "one\n");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(Text(), "two\n");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::EndOfFile);
    EXPECT_EQ(Text(), "");
}

TEST_F(LineBlocksTest, ReadsNothingAfterTheEndOfTheFile) {
    Open("one\ntwo");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    std::ofstream(test::Utf8Path(path), std::ios_base::app) << "three\n";
    EXPECT_EQ(ReadKeepingNothing(), Outcome::EndOfFile);
}

TEST_F(LineBlocksTest, CanBeReusedAfterClear) {
    Open("one\ntwo");
    ReadAll();
    Open("three");
    EXPECT_EQ(ReadAll().text, "three\n");
}

// -- What is kept -------------------------------------------------------------------------------

std::string ManyLines() {
    std::string bytes;
    for (int number = 0; number < 20000; ++number) {
        bytes += "VAL_ \x01 line " + std::to_string(number) + "\n";
    }
    return bytes;
}

TEST_F(LineBlocksTest, MovesKeptTextToTheFront) {
    Open(ManyLines());
    const CleanText expected = CleanedByRules(ManyLines());
    ASSERT_EQ(ReadKeepingNothing(), Outcome::Lines);
    std::size_t front = 0;  // of the kept text, in the whole text
    std::size_t markAt = blocks.Marks().size();
    for (std::size_t kept : {1U, 1000U, 2U, 60000U}) {
        ASSERT_GE(Text().size(), kept);
        front += Text().size() - kept;
        ASSERT_EQ(blocks.Read(file, blocks.End() - kept), Outcome::Lines);
        ASSERT_GT(Text().size(), kept);
        EXPECT_TRUE(Text() == expected.text.substr(front, Text().size())) << kept;
        EXPECT_EQ(blocks.At(LineBlocks::Start - 1), '\n');
        for (const std::size_t mark : blocks.Marks()) {
            ASSERT_EQ(mark + front - LineBlocks::Start, expected.marks[markAt++]);
        }
    }
}

TEST_F(LineBlocksTest, KeepsAWholeFile) {
    Open(ManyLines());
    while (blocks.Read(file, LineBlocks::Start) == Outcome::Lines) {
    }
    EXPECT_TRUE(Text() == CleanedByRules(ManyLines()).text);
}

// -- Cleaning and marks -------------------------------------------------------------------------

TEST_F(LineBlocksTest, CleansAndMarksEachByte) {
    for (int code = 0; code < 256; ++code) {
        SCOPED_TRACE(code);
        const char ch = static_cast<char>(code);
        // The piece is in a group of 64 bytes and after the last group.
        const std::string piece = std::string(10, 'x') + ch + "x_" + ch + " " + ch + "\n";
        ExpectCleaned(piece + std::string(60, 'x') + piece);
    }
}

TEST_F(LineBlocksTest, CleansAndMarksAtEachPositionOfAGroup) {
    const std::string pieces[] = {"\x01", "\x7f", "\xff", "\xc3\xa9", "\xe2\x82\xac", "\xe2\x82",
                                  "\n",   "_ ",   "N\t",  "R\r",      "_\x01\n\x01_ "};
    for (const std::string& piece : pieces) {
        for (std::size_t at = 0; at <= 70; ++at) {
            SCOPED_TRACE(testing::PrintToString(piece) + " at " + std::to_string(at));
            ExpectCleaned(std::string(at, 'x') + piece + std::string(140 - at, 'x'));
        }
    }
}

TEST_F(LineBlocksTest, CleansAndMarksManyBytesOfAGroup) {
    for (const std::string piece : {"_ ", "\n", "_\n", "\x01", "\xff", "\x01\xc3\xa9", "\xc3\n"}) {
        std::string bytes;
        while (bytes.size() < 200) {
            bytes += piece;
        }
        SCOPED_TRACE(testing::PrintToString(piece));
        ExpectCleaned(bytes);
    }
}

TEST_F(LineBlocksTest, JoinsNoCharacterAcrossAControlCharacterOrLineEnd) {
    Open("\xc3\x01\xa9 \xc3\n\xa9");
    EXPECT_EQ(ReadAll().text, "__ _\n_\n");
}

// -- Blocks -------------------------------------------------------------------------------------

TEST_F(LineBlocksTest, GivesTheSameTextAcrossBlockBoundaries) {
    std::string lines = "\x01\n";
    while (lines.size() < BlockSize) {
        lines += "BO_ " + std::to_string(lines.size()) + "\r\n";
    }
    for (const std::string piece : {"\xf0\x9f\x9a\x97", "_ \r\n", "x\x01\xff\n", "_\n\n_"}) {
        for (std::size_t at = BlockSize - 7; at <= BlockSize + 2; ++at) {
            SCOPED_TRACE(testing::PrintToString(piece) + " at " + std::to_string(at));
            ExpectCleaned(lines.substr(0, at) + piece + lines.substr(0, 200));
        }
    }
}

// A read asks for as many bytes as there is room for, which is doubled when half of it is kept.
TEST_F(LineBlocksTest, ReadsABlockAtATimeAndMoreWhenHalfOfItIsKept) {
    struct Row {
        std::size_t kept;
        std::size_t added;
    };
    const Row rows[] = {{0, BlockSize - 1},
                        {BlockSize / 2 - 2, BlockSize / 2 + 1},
                        {BlockSize / 2 - 1, BlockSize / 2 * 3},
                        {BlockSize - 1, BlockSize}};
    for (const auto& [kept, added] : rows) {
        Open(std::string(10 * BlockSize, '\n'));
        EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
        EXPECT_EQ(Text().size(), BlockSize - 1);
        EXPECT_EQ(blocks.Read(file, blocks.End() - kept), Outcome::Lines);
        EXPECT_EQ(Text().size(), kept + added) << kept;
    }
}

TEST_F(LineBlocksTest, ReadsAFileThatEndsAtABlockBoundary) {
    for (std::size_t size = BlockSize - 4; size <= BlockSize + 2; ++size) {
        SCOPED_TRACE(size);
        ExpectCleaned(std::string(size, 'x'));
        ExpectCleaned(std::string(size - 1, 'x') + '\n');
    }
}

TEST_F(LineBlocksTest, ReadsALineLongerThanABlock) {
    std::string line;
    while (line.size() < 5 * BlockSize) {
        line += std::to_string(line.size()) + "_ \x01\xff\xf0\x9f\x9a\x97";
    }
    ExpectCleaned("BO_\n" + line + "\nBO_\n" + line);
}

// -- Reads --------------------------------------------------------------------------------------

#ifndef _WIN32

class LineBlocksFeedTest : public LineBlocksTest {
  protected:
    void SetUp() override {
        const int descriptor = test::NextDescriptor();
        Open("");
        feed.Replace(descriptor);
    }

    test::Feed feed;
};

TEST_F(LineBlocksFeedTest, ReturnsLinesAsSoonAsOneIsComplete) {
    feed.Send("o");
    feed.Send("ne\ntwo\nth");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(Text(), "one\ntwo\n");
    feed.Send("ree\xc3");
    feed.Send("\xa9\n");
    feed.End();
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(Text(), "three\xc3\xa9\n");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::EndOfFile);
}

TEST_F(LineBlocksFeedTest, DropsTheLineThatAFailureCuts) {
    feed.Send("one\ntwo");
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Lines);
    EXPECT_EQ(blocks.Read(file, LineBlocks::Start), Outcome::Failure);
    EXPECT_EQ(Text(), "one\n");
    EXPECT_EQ(blocks.Marks(), Marks{});
}

TEST_F(LineBlocksFeedTest, FailsAtOnce) {
    EXPECT_EQ(ReadKeepingNothing(), Outcome::Failure);
    EXPECT_EQ(Text(), "");
}

#endif

}  // namespace
}  // namespace vexil
