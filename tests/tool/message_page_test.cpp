// The words for facts of messages and signals, and the parts of a page that not every message has.
// SPDX-License-Identifier: MIT
#include "view/message_page.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "tool/network_maker.h"
#include "view/message_words.h"
#include "view/signal_table.h"

namespace vexil::test {
namespace {

using Lines = std::vector<std::string>;

TEST(IdInWords, HasTheIdOnTheBusAndTheOneInTheFile) {
    EXPECT_EQ(tool::IdInWords(0x100), "256 (0x100), standard frame");
    EXPECT_EQ(tool::IdInWords(1), "1 (0x001), standard frame");
    EXPECT_EQ(tool::IdInWords(0x80000001U),
              "1 (0x00000001), extended frame; 2147483649 in the file");
}

TEST(IdInWords, MarksIdsThatNoFrameCanHave) {
    EXPECT_EQ(tool::IdInWords(0x7FF), "2047 (0x7FF), standard frame");
    EXPECT_EQ(tool::IdInWords(0x800), "2048 (0x800), standard frame, too large for 11 bits");
    EXPECT_EQ(tool::IdInWords(0xA0000000U),
              "536870912 (0x20000000), extended frame, too large for 29 bits; 2684354560 in the "
              "file");
}

TEST(J1939InWords, HasTheDestinationOnlyWhereThereIsOne) {
    EXPECT_EQ(tool::J1939InWords(0x98FEF200U), "priority 6, PGN 65266 (0xFEF2), source 0 (0x00)");
    EXPECT_EQ(tool::J1939InWords(0x98EA1721U),
              "priority 6, PGN 59904 (0xEA00), source 33 (0x21), destination 23 (0x17)");
    EXPECT_EQ(tool::J1939InWords(0x100), "");
}

TEST(SendingInWords, HasTypeAndCycleTimeWhereTheyAreKnown) {
    NetworkMaker network(8);
    tool::MessageFacts& message = network.snapshot.messages.front();
    EXPECT_EQ(SendingInWords(network.snapshot, message), "");
    message.cycleTime = 20;
    EXPECT_EQ(SendingInWords(network.snapshot, message), "every 20 ms");
    message.sendType = network.Text("Cyclic");
    EXPECT_EQ(SendingInWords(network.snapshot, message), "Cyclic, every 20 ms");
    message.cycleTime = 0;
    EXPECT_EQ(SendingInWords(network.snapshot, message), "Cyclic");
}

TEST(DrawSignals, HasARowForEachSignal) {
    NetworkMaker network(8);
    network.Add("A", 0, 1).maximum = 1;
    tool::SignalFacts& signal = network.Add("B", 7, 12, ByteOrderBigEndian);
    signal.valueType = ValueSigned;
    signal.factor = 0.1;
    signal.offset = -1e-9;
    signal.minimum = -0.25;
    signal.maximum = 1e100;
    signal.receiverList = network.Text("X,Y");
    network.Add("C", 0, 32).valueType = ValueFloat32;
    network.Add("D", 0, 64).valueType = ValueFloat64;
    network.Add("E", 0, 64).valueType = 4;
    EXPECT_EQ(DrawSignals(network.snapshot, network.Message(), {}),
              (Lines{
                  "signal  start  bits  order   type     factor  offset  range            unit  "
                  "receivers",
                  "A           0     1  little  uint          1       0  0 to 1",
                  "B           7    12  big     int         0.1  -1e-09  -0.25 to 1e+100        "
                  "X, Y",
                  "C           0    32  little  float         1       0  -",
                  "D           0    64  little  double        1       0  -",
                  "E           0    64  little  unknown       1       0  -",
              }));
}

TEST(DrawSignals, HasNotesBelowASignal) {
    NetworkMaker network(8);
    tool::SignalFacts& signal = network.AddSelected(7, "Name", 0, 1);
    signal.longName = network.Text("A long name");
    signal.inactiveValue = 3;
    signal.comment = network.Text("The \\\"comment\\\"\nof it");
    signal.receiverList = network.Text("X,Y");
    const Lines wide = {
        "signal  mux  start  bits  order   type  factor  offset  range  unit  receivers",
        "Name    m7       0     1  little  uint       1       0  -            X, Y",
        "    long name A long name",
        "    start value 0, inactive value 3",
        "    The \"comment\"",
        "    of it",
    };
    EXPECT_EQ(DrawSignals(network.snapshot, network.Message(), {.width = 78}), wide);
    const Lines narrow = {
        "signal  mux  start  bits  order   type  factor  offset  range  unit",
        "Name    m7       0     1  little  uint       1       0  -",
        "    long name A long name",
        "    start value 0, inactive value 3",
        "    received by X, Y",
        "    The \"comment\"",
        "    of it",
    };
    EXPECT_EQ(DrawSignals(network.snapshot, network.Message(), {.width = 77}), narrow);
}

TEST(DrawSignals, HasStartAndInactiveValueIfOneOfThemIsNotZero) {
    NetworkMaker network(8);
    network.Add("A", 0, 1).startValue = -5;
    network.Add("B", 1, 1).inactiveValue = 6;
    network.Add("C", 2, 1);
    const Lines lines = DrawSignals(network.snapshot, network.Message(), {});
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[2], "    start value -5, inactive value 0");
    EXPECT_EQ(lines[4], "    start value 0, inactive value 6");
}

TEST(DrawDescriptions, AlignsValues) {
    NetworkMaker network(8);
    network.Add("S", 0, 8);
    network.Describe(-2147483647 - 1, "Least");
    network.Describe(0, "A description of several words");
    EXPECT_EQ(DrawDescriptions(network.snapshot, network.snapshot.signals[0], {.width = 40}),
              (Lines{"values of S", "  -2147483648  Least",
                     "            0  A description of several", "               words"}));
}

TEST(PrintMessagePage, LeavesOutWhatAMessageDoesNotHave) {
    const NetworkMaker network(1);
    std::ostringstream page;
    PrintMessagePage(page, network.snapshot, network.Message(), {.width = 50, .ascii = true});
    EXPECT_EQ(page.str(), R"(-- Message ---------------------------------------
  id         1 (0x001), standard frame
  size       1 byte

  no signals

  layout: a row for each byte, a column for each
  bit; 15..8 are bits of the signal, 0 is the
  lowest
         7    6    5    4    3    2    1    0
       +---------------------------------------+
     0 |                                       |
       +---------------------------------------+
)");
}

TEST(PrintMessagePage, HasLongNameAndCommentInFull) {
    NetworkMaker network(0);
    tool::MessageFacts& message = network.snapshot.messages.front();
    message.longName = network.Text("The name of a message for people");
    message.comment = network.Text("A comment that is longer than a line,\nwith \\\"quotes\\\"");
    message.transmitter = network.Text("Node");
    std::ostringstream page;
    PrintMessagePage(page, network.snapshot, message, {.width = 40});
    EXPECT_EQ(page.str(), R"(── Message ─────────────────────────────
  long name  The name of a message for
             people
  id         1 (0x001), standard frame
  size       0 bytes
  sender     Node
  comment    A comment that is longer
             than a line,
             with "quotes"

  no signals

  no layout: the message has no bytes
)");
}

}  // namespace
}  // namespace vexil::test
