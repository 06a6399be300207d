// Drawings of layouts, whole.
// SPDX-License-Identifier: MIT
#include "view/layout_section.h"

#include <gtest/gtest.h>

#include <string>

#include "tool/network_maker.h"
#include "view/multiplexing.h"

namespace vexil::test {
namespace {

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}

// The section without its first line, which is the same for all messages.
std::string Draw(const NetworkMaker& network, const tool::DrawStyle& style = {.ascii = true}) {
    const std::string title =
        "layout: a row for each byte, a column for each bit; 15..8 are bits of the signal, 0 is "
        "the lowest\n";
    std::string text = Joined(DrawLayout(network.snapshot, network.Message(), style));
    return text.starts_with(title) ? text.substr(title.size()) : text;
}

TEST(DrawLayout, DrawsAnAreaForEachSignalOfBothByteOrders) {
    NetworkMaker network(4);
    network.Add("Level", 0, 12);
    network.Add("Open", 14, 1);
    network.Add("Torque", 18, 11, ByteOrderBigEndian);
    EXPECT_EQ(Draw(network, {}), R"(        7      6      5      4      3      2      1      0
     ┌───────────────────────────────────────────────────────┐
   0 │ Level                                            7..0 │
     ├──────┬──────┬─────────────┐                           │
   1 │      │ Open │             │                     11..8 │
     │      └──────┘             └──────┬────────────────────┤
   2 │                                  │ Torque       10..8 │
     ├──────────────────────────────────┘                    │
   3 │                                                  7..0 │
     └───────────────────────────────────────────────────────┘
)");
}

TEST(DrawLayout, DrawsWithAsciiAlone) {
    NetworkMaker network(2);
    network.Add("Level", 0, 12);
    network.Add("Door", 14, 1);
    EXPECT_EQ(Draw(network), R"(        7      6      5      4      3      2      1      0
     +-------------------------------------------------------+
   0 | Level                                            7..0 |
     +------+------+-------------+                           |
   1 |      | Door |             |                     11..8 |
     +------+------+-------------+---------------------------+
)");
}

TEST(DrawLayout, NamesEachPartOfASignalWhosePartsDoNotTouch) {
    NetworkMaker network(4);
    network.Add("B", 3, 8, ByteOrderBigEndian);
    network.Add("L", 20, 8);
    EXPECT_EQ(Draw(network), R"(        7     6     5     4     3     2     1     0
     +-----------------------+-----------------------+
   0 |                       | B                7..4 |
     +-----------------------+-----------------------+
   1 | B                3..0 |                       |
     +-----------------------+                       |
   2 | L                3..0 |                       |
     +-----------------------+-----------------------+
   3 |                       | L                7..4 |
     +-----------------------+-----------------------+
)");
}

TEST(DrawLayout, PutsANameWhereTheBitsHaveRoomToo) {
    NetworkMaker network(2);
    network.Add("Level", 0, 9, ByteOrderBigEndian);
    EXPECT_EQ(Draw(network), R"(        7     6     5     4     3     2     1     0
     +-----------------------------------------+-----+
   0 |                                         |   8 |
     +-----------------------------------------+     |
   1 | Level                                    7..0 |
     +-----------------------------------------------+
)");
}

TEST(DrawLayout, PutsNamesThatDoNotFitIntoTheLegend) {
    NetworkMaker network(1);
    network.Add("Short", 0, 1);
    network.Add("AVeryLongNameOfASignalOfOneBit", 1, 1);
    network.Add("AnotherVeryLongNameOfTheNextBits", 2, 2);
    network.Add("Fits", 4, 4);
    EXPECT_EQ(Draw(network, {.width = 54, .ascii = true}),
              R"(layout: a row for each byte, a column for each bit;
15..8 are bits of the signal, 0 is the lowest
        7     6     5     4     3     2     1     0
     +-----------------------+-----------+-----+-----+
   0 | Fits             3..0 | (1)  1..0 | (2) |Short|
     +-----------------------+-----------+-----+-----+
     (1) AnotherVeryLongNameOfTheNextBits
     (2) AVeryLongNameOfASignalOfOneBit
)");
    const auto legend = [&](std::size_t width) {
        const std::string drawing = Draw(network, {.width = width, .ascii = true});
        return drawing.substr(drawing.find("     (1)"));
    };
    EXPECT_EQ(legend(77),
              "     (1) AnotherVeryLongNameOfTheNextBits\n"
              "     (2) AVeryLongNameOfASignalOfOneBit\n");
    EXPECT_EQ(legend(78),
              "     (1) AnotherVeryLongNameOfTheNextBits   (2) AVeryLongNameOfASignalOfOneBit\n");
}

TEST(DrawLayout, MarksOverlaps) {
    NetworkMaker network(2);
    network.Add("A", 0, 10);
    network.Add("B", 6, 4);
    network.Add("C", 7, 1);
    network.Add("D", 12, 4);
    EXPECT_EQ(Draw(network), R"(        7     6     5     4     3     2     1     0
     +-----+-----+-----------------------------------+
   0 | !1 #| !2 #| A                            5..0 |
     +-----+-----+-----------+-----------+-----------+
   1 | D                3..0 |           |### !2 ####|
     +-----------------------+-----------+-----------+
     !1 A, B and 1 more overlap
     !2 A and B overlap
)");
}

TEST(DrawLayout, ShowsOverlapsInColour) {
    NetworkMaker network(1);
    network.Add("A", 0, 1);
    network.Add("B", 0, 1);
    network.Add("C", 8, 1);
    EXPECT_EQ(Draw(network, {.ascii = true, .colour = true}),
              "        7     6     5     4     3     2     1     0\n"
              "     +-----------------------------------------+-----+\n"
              "   0 |                                         |\x1B[31m !1 #\x1B[0m|\n"
              "     +-----------------------------------------+-----+\n"
              "     \x1B[31m!1 A and B overlap\x1B[0m\n"
              "\x1B[33moutside of the 1 byte, up to byte 1: C\x1B[0m\n");
}

TEST(DrawLayout, DrawsAFrameForEachMultiplexerValue) {
    NetworkMaker network(1);
    network.Add("Page", 0, 2).multiplexType = MultiplexSelector;
    network.Describe(1, "First");
    network.AddSelected(1, "A", 2, 6);
    network.AddSelected(3, "B", 2, 2);
    EXPECT_EQ(Draw(network), R"(
Page = 1 "First"
        7     6     5     4     3     2     1     0
     +-----------------------------------+-----------+
   0 | A                            5..0 | Page 1..0 |
     +-----------------------------------+-----------+

Page = 3
        7     6     5     4     3     2     1     0
     +-----------------------+-----------+-----------+
   0 |                       | B    1..0 | Page 1..0 |
     +-----------------------+-----------+-----------+
)");
}

TEST(DrawLayout, NumbersMultiplexerValuesWithoutASelector) {
    NetworkMaker network(1);
    network.AddSelected(4294967295U, "A", 0, 8);
    EXPECT_EQ(Draw(network), R"(
m4294967295
        7     6     5     4     3     2     1     0
     +-----------------------------------------------+
   0 | A                                        7..0 |
     +-----------------------------------------------+
)");
}

TEST(DrawLayout, KeepsTheKeyOfASignalInAllFrames) {
    NetworkMaker network(1);
    network.AddSelected(0, "AVeryLongNameOfASignalOfOneBit", 0, 1);
    network.AddSelected(1, "AnotherVeryLongNameOfTheNextBit", 0, 1);
    network.Add("YetAnotherVeryLongNameOfABit", 1, 1);
    EXPECT_EQ(Draw(network), R"(
m0
          7          6          5          4          3          2          1          0
     +-----------------------------------------------------------------+----------+----------+
   0 |                                                                 | (1)      | (2)      |
     +-----------------------------------------------------------------+----------+----------+
     (1) YetAnotherVeryLongNameOfABit   (2) AVeryLongNameOfASignalOfOneBit

m1
          7          6          5          4          3          2          1          0
     +-----------------------------------------------------------------+----------+----------+
   0 |                                                                 | (1)      | (3)      |
     +-----------------------------------------------------------------+----------+----------+
     (1) YetAnotherVeryLongNameOfABit   (3) AnotherVeryLongNameOfTheNextBit
)");
}

TEST(DrawLayout, ShortensASeriesOfMoreThanEightBytesWithoutSignals) {
    NetworkMaker network(20);
    network.Add("A", 0, 8);
    network.Add("B", 80, 8);
    EXPECT_EQ(Draw(network), R"(        7     6     5     4     3     2     1     0
     +-----------------------------------------------+
   0 | A                                        7..0 |
     +-----------------------------------------------+
   1 |                                               |
   : |                                               |
   9 |                                               |
     +-----------------------------------------------+
  10 | B                                        7..0 |
     +-----------------------------------------------+
  11 |                                               |
   : |                                               |
  19 |                                               |
     +-----------------------------------------------+
)");
}

TEST(DrawLayout, DrawsASeriesOfEightBytesWithoutSignals) {
    NetworkMaker network(8);
    EXPECT_NE(Draw(network).find("\n   4 |"), std::string::npos);
    EXPECT_EQ(Draw(network).find(':'), std::string::npos);
}

TEST(DrawLayout, DrawsThe64BytesOfALongerMessageAtMost) {
    NetworkMaker network(0xFFFFFFFFU);
    network.Add("A", 0, 0xFFFFFFFFU);
    const std::string drawing = Draw(network);
    EXPECT_NE(drawing.find("  63 |                                      511..504 |\n"),
              std::string::npos)
        << drawing;
    EXPECT_TRUE(drawing.ends_with("+\nnot drawn: bytes 64 to 4294967294\n")) << drawing;
}

TEST(DrawLayout, NamesTheSignalsOutsideOfTheMessage) {
    NetworkMaker network(1);
    network.Add("Inside", 0, 8);
    network.Add("Partly", 4, 5);
    network.Add("Outside", 0xFFFFFFFFU, 0xFFFFFFFFU);
    EXPECT_EQ(Draw(network), R"(        7     6     5     4     3     2     1     0
     +-----------------------+-----------------------+
   0 |######### !1 ##########| Inside           3..0 |
     +-----------------------+-----------------------+
     !1 Inside and Partly overlap
outside of the 1 byte, up to byte 1073741823: Partly, Outside
)");
    const std::string coloured = Draw(network, {.ascii = true, .colour = true});
    EXPECT_NE(coloured.find("\x1B[33moutside of the 1 byte"), std::string::npos) << coloured;
}

TEST(DrawLayout, DrawsNoMoreThan256MultiplexerValues) {
    NetworkMaker network(1);
    for (std::uint32_t value = 0; value < 258; ++value) {
        network.AddSelected(value, "A", 0, 8);
    }
    const std::string drawing = Draw(network);
    EXPECT_NE(drawing.find("\nm255\n"), std::string::npos);
    EXPECT_EQ(drawing.find("\nm256\n"), std::string::npos);
    EXPECT_TRUE(drawing.ends_with("+\nnot drawn: 2 more multiplexer values\n"));
}

TEST(DrawLayout, HasNoDrawingWithoutBytes) {
    NetworkMaker network(0);
    network.Add("A", 0, 8);
    EXPECT_EQ(Draw(network), "no layout: the message has no bytes\n");
    EXPECT_EQ(Draw(NetworkMaker(8, 0xC0000000U)), "no layout: these signals have no message\n");
}

TEST(DrawLayout, HasNarrowDrawingsOnANarrowTerminal) {
    NetworkMaker network(2);
    network.Add("Temperature", 0, 16);
    EXPECT_EQ(Draw(network, {.width = 40, .ascii = true}), R"(layout: a row for each byte, a column
for each bit; 15..8 are bits of the
signal, 0 is the lowest
       7   6   5   4   3   2   1   0
     +-------------------------------+
   0 | Temperature              7..0 |
   1 |                         15..8 |
     +-------------------------------+
)");
}

TEST(DrawMultiplexing, IsATreeOfValuesAndSignals) {
    NetworkMaker network(8);
    network.Add("Page", 0, 8).multiplexType = MultiplexSelector;
    network.Describe(-1, "Last");
    network.Describe(2, "Second");
    network.AddSelected(4294967295U, "Z", 8, 8);
    network.AddSelected(2, "FirstOfAll", 8, 8);
    network.AddSelected(2, "SecondOfAll", 16, 8);
    network.Add("Other", 0, 8).multiplexType = MultiplexSelector;
    EXPECT_EQ(Joined(DrawMultiplexing(network.snapshot, network.Message(), {.width = 40})),
              "multiplexing by Page; another selector\n"
              "is Other\n"
              "├─ 2 \"Second\": FirstOfAll, SecondOfAll\n"
              "└─ 4294967295 \"Last\": Z\n");
    EXPECT_EQ(
        Joined(DrawMultiplexing(network.snapshot, network.Message(), {.width = 30, .ascii = true})),
        "multiplexing by Page; another\n"
        "selector is Other\n"
        "|- 2 \"Second\": FirstOfAll,\n"
        "|  SecondOfAll\n"
        "`- 4294967295 \"Last\": Z\n");
}

TEST(DrawMultiplexing, IsPossibleWithoutASelector) {
    NetworkMaker network(8);
    EXPECT_EQ(Joined(DrawMultiplexing(network.snapshot, network.Message(), {})), "");
    network.AddSelected(2, "A", 8, 8);
    EXPECT_EQ(Joined(DrawMultiplexing(network.snapshot, network.Message(), {})),
              "multiplexing, without a selector\n"
              "└─ 2: A\n");
}

}  // namespace
}  // namespace vexil::test
