// Text on a terminal: escaped, measured, cut and broken into lines.
// SPDX-License-Identifier: MIT
#include "view/display_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "view/character_width.h"

namespace vexil::test {
namespace {

using Lines = std::vector<std::string>;

TEST(CharacterWidth, IsThatOfTheKindOfCharacter) {
    struct Row {
        std::uint32_t character;
        std::size_t width;
    };
    for (const Row& row : {
             Row{'A', 1},     Row{0xE9, 1},     Row{0x2FF, 1},   Row{0x300, 0},   Row{0x36F, 0},
             Row{0x370, 1},   Row{0x416, 1},    Row{0x5D0, 1},   Row{0x10FF, 1},  Row{0x1100, 2},
             Row{0x115F, 2},  Row{0x1160, 0},   Row{0x1200, 1},  Row{0x200B, 0},  Row{0x200D, 0},
             Row{0x2010, 1},  Row{0x20AC, 1},   Row{0x2500, 1},  Row{0x3042, 2},  Row{0x4E2D, 2},
             Row{0xAC00, 2},  Row{0xD7A3, 2},   Row{0xFE0F, 0},  Row{0xFF21, 2},  Row{0xFF61, 1},
             Row{0x1F600, 2}, Row{0x1F6FF, 1},  Row{0x20000, 2}, Row{0xE0100, 0}, Row{0x3FFFD, 2},
             Row{0x3FFFE, 1}, Row{0x10FFFF, 1},
         }) {
        EXPECT_EQ(tool::CharacterWidth(row.character), row.width) << std::hex << row.character;
    }
}

TEST(Printable, KeepsTextAsItIs) {
    EXPECT_EQ(tool::Printable("Grad \xC2\xB0"
                              "C, \xE6\xB8\xA9\xE5\xBA\xA6 ~"),
              "Grad \xC2\xB0"
              "C, \xE6\xB8\xA9\xE5\xBA\xA6 ~");
}

TEST(Printable, ShowsControlCharactersAsBytes) {
    EXPECT_EQ(tool::Printable(std::string("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(tool::Printable("\x1B[31m\x07\x7F"), "\\x1B[31m\\x07\\x7F");
    EXPECT_EQ(tool::Printable("\xC2\x9B"
                              "1m"),
              "\\xC2\\x9B"
              "1m");
    EXPECT_EQ(tool::Printable("\xE2\x80\xAE\xE2\x81\xA6\xE2\x80\xA8\xEF\xBB\xBF"),
              "\\xE2\\x80\\xAE\\xE2\\x81\\xA6\\xE2\\x80\\xA8\\xEF\\xBB\\xBF");
}

TEST(Printable, ShowsBytesThatAreNoCharacter) {
    EXPECT_EQ(tool::Printable("\xB0"
                              "C \xE6\xB8 \xC0\x80"),
              "\\xB0"
              "C \\xE6\\xB8 \\xC0\\x80");
}

TEST(Printable, MakesBlanksOfLineEndsAndTabs) {
    EXPECT_EQ(tool::Printable("a\nb\r\nc\td\re"), "a b c d e");
}

TEST(PrintableComment, KeepsLinesAndTakesOutTheBackslashesOfQuotes) {
    EXPECT_EQ(tool::PrintableComment("a \\\"b\\\"\r\nc\x1B \\n"), "a \"b\"\nc\\x1B \\n");
}

TEST(DisplayWidth, CountsColumns) {
    EXPECT_EQ(tool::DisplayWidth(""), 0U);
    EXPECT_EQ(tool::DisplayWidth("abc"), 3U);
    EXPECT_EQ(tool::DisplayWidth("\xC2\xB0"
                                 "C"),
              2U);
    EXPECT_EQ(tool::DisplayWidth("e\xCC\x81"), 1U);
    EXPECT_EQ(tool::DisplayWidth("\xE6\xB8\xA9\xE5\xBA\xA6"), 4U);
    EXPECT_EQ(tool::DisplayWidth("\xF0\x9F\x98\x80"), 2U);
}

TEST(PadRight, FillsColumns) {
    EXPECT_EQ(tool::PadRight("\xE6\xB8\xA9", 4), "\xE6\xB8\xA9  ");
    EXPECT_EQ(tool::PadRight("abc", 2), "abc");
}

TEST(PadLeft, FillsColumns) {
    EXPECT_EQ(tool::PadLeft("\xE6\xB8\xA9", 4), "  \xE6\xB8\xA9");
    EXPECT_EQ(tool::PadLeft("abc", 3), "abc");
}

TEST(Shorten, CutsAtACharacterAndEndsWithTheMark) {
    EXPECT_EQ(tool::Shorten("abcdef", 6, "..."), "abcdef");
    EXPECT_EQ(tool::Shorten("abcdefg", 6, "..."), "abc...");
    EXPECT_EQ(tool::Shorten("abcdefg", 2, "..."), "..");
    EXPECT_EQ(tool::Shorten("\xE6\xB8\xA9\xE5\xBA\xA6\xE6\xB8\xA9", 4, "\xE2\x80\xA6"),
              "\xE6\xB8\xA9\xE2\x80\xA6");
    EXPECT_EQ(tool::Shorten("e\xCC\x81xyz", 2, "\xE2\x80\xA6"), "e\xCC\x81\xE2\x80\xA6");
}

TEST(WrapText, BreaksAtBlanksAndLineFeeds) {
    EXPECT_EQ(tool::WrapText("the level of the tank", 9), (Lines{"the level", "of the", "tank"}));
    EXPECT_EQ(tool::WrapText("a\n\nb  c ", 9), (Lines{"a", "", "b c"}));
    EXPECT_EQ(tool::WrapText("", 9), Lines{""});
}

TEST(WrapText, BreaksWordsThatAreLongerThanALine) {
    EXPECT_EQ(tool::WrapText("to abcdefgh ij", 3), (Lines{"to", "abc", "def", "gh", "ij"}));
    EXPECT_EQ(tool::WrapText("abcdef", 3), (Lines{"abc", "def"}));
    EXPECT_EQ(tool::WrapText("\xE6\xB8\xA9\xE5\xBA\xA6\xE6\xB8\xA9", 5),
              (Lines{"\xE6\xB8\xA9\xE5\xBA\xA6", "\xE6\xB8\xA9"}));
}

TEST(WrapText, PutsAtLeastOneCharacterOnALine) {
    EXPECT_EQ(tool::WrapText("\xE6\xB8\xA9\xE5\xBA\xA6", 1),
              (Lines{"\xE6\xB8\xA9", "\xE5\xBA\xA6"}));
    EXPECT_EQ(tool::WrapText("ab", 0), (Lines{"a", "b"}));
}

}  // namespace
}  // namespace vexil::test
