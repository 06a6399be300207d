// The report of a comparison as text: hostile texts, colours, long lists. Whole reports are tested
// with the tool.
// SPDX-License-Identifier: MIT
#include "view/diff_text_report.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

#include "tool/experiment.h"
#include "view/fact_text.h"
#include "view/visible_text.h"

namespace vexil::test {
namespace {

using tool::Snapshot;

std::string Print(const Snapshot& before, const Snapshot& after, bool inColour = false) {
    const tool::Comparison comparison = Compare(before, after);
    std::ostringstream out;
    tool::PrintDiff(out, {"a.dbc", "b.dbc", before, after, comparison}, inColour);
    return out.str();
}

TEST(PrintDiff, PrintsNothingForEqualNetworks) {
    EXPECT_EQ(Print({}, {}), "");
}

TEST(PrintDiff, ShowsRemovedAndAddedLinesInColour) {
    Experiment experiment;
    const Snapshot before = experiment.Read("BO_ 1 A: 8 N\nBO_ 2 B: 8 N\n");
    const Snapshot after = experiment.Read("BO_ 2 B: 4 N\nBO_ 3 C: 1 \n");
    EXPECT_EQ(Print(before, after, true),
              "a.dbc -> b.dbc: 1 message removed, 1 message added, 1 message changed\n"
              "\x1B[31m- 1 (0x1) A: 8 bytes from N, 0 signals\x1B[0m\n"
              "\x1B[33m~\x1B[0m 2 (0x2) B\n"
              "    \x1B[33m~\x1B[0m size: 8 -> 4\n"
              "\x1B[32m+ 3 (0x3) C: 1 byte from none, 0 signals\x1B[0m\n");
    EXPECT_EQ(Print(before, after).find('\x1B'), std::string::npos);
}

TEST(PrintDiff, EscapesControlCharactersInEveryText) {
    Experiment experiment;
    const Snapshot before = experiment.Read("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n");
    Snapshot after = before;
    const tool::TextRef hostile{static_cast<std::uint32_t>(after.texts.size()), 5};
    after.texts += "\x1B[2Jn";
    tool::MessageFacts& message = after.messages[0];
    message.name = message.longName = message.comment = message.transmitter = hostile;
    message.sendType = hostile;
    tool::SignalFacts& signal = after.signals[0];
    signal.name = signal.longName = signal.comment = signal.unitUtf8 = hostile;
    signal.receiverList = hostile;
    signal.descriptionCount = 1;
    after.descriptions.push_back({0, hostile});
    const std::string changed = Print(before, after);
    EXPECT_EQ(changed.find('\x1B'), std::string::npos) << changed;
    EXPECT_EQ(Print({}, after).find('\x1B'), std::string::npos);
    std::ostringstream out;
    const tool::Comparison comparison = tool::Compare(before, after);
    tool::PrintDiff(out, {"\x1B[2J", "\n", before, after, comparison}, false);
    EXPECT_TRUE(out.str().starts_with("\\x1B[2J -> \\n: 1 message changed\n")) << out.str();
}

TEST(PrintDiff, PutsLongTextsOnLinesOfTheirOwn) {
    Experiment experiment;
    const std::string text(100, 'x');
    const Snapshot before = experiment.Read("BO_ 1 A: 8 N\nCM_ BO_ 1 \"" + text + "\";\n");
    const Snapshot after = experiment.Read("BO_ 1 A: 8 N\nCM_ BO_ 1 \"two\nlines\";\n");
    EXPECT_EQ(Print(before, after),
              "a.dbc -> b.dbc: 1 message changed\n"
              "~ 1 (0x1) A\n"
              "    ~ comment:\n"
              "        - \"" +
                  text +
                  "\"\n"
                  "        + \"two\\nlines\"\n");
}

TEST(PrintDiff, NamesAtMostTenOfWhatHasMoved) {
    Experiment experiment;
    std::string forwards;
    std::string backwards;
    for (int id = 1; id <= 13; ++id) {
        const std::string line =
            "BO_ " + std::to_string(id) + " M" + std::to_string(id) + ": 8 N\n";
        forwards += line;
        backwards.insert(0, line);
    }
    const Snapshot before = experiment.Read(forwards);
    const Snapshot after = experiment.Read(backwards);
    EXPECT_EQ(Print(before, after),
              "a.dbc -> b.dbc: 12 messages moved\n"
              "~ order of messages: M13, M12, M11, M10, M9, M8, M7, M6, M5, M4 and 2 more moved\n");
}

TEST(SignalLine, HasTheLargestNumbers) {
    Snapshot snapshot;
    tool::SignalFacts signal;
    signal.startBit = signal.bitLength = signal.byteOrder = 4294967295U;
    signal.multiplexType = MultiplexSelected;
    signal.multiplexValue = 4294967295U;
    signal.valueType = 7;
    signal.factor = std::numeric_limits<double>::max();
    signal.offset = 0.1;
    signal.minimum = -std::numeric_limits<double>::infinity();
    signal.maximum = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(SignalLine(snapshot, signal),
              " m4294967295: 4294967295|4294967295@4294967295- "
              "(1.7976931348623157e+308,0.1) [-inf|nan] \"\" none");
    EXPECT_EQ(SignalText(snapshot, signal, tool::Aspect::Type), "unknown");
    EXPECT_EQ(SignalText(snapshot, signal, tool::Aspect::Bits), "4294967295|4294967295 unknown");
}

TEST(MessageTitle, ShowsExtendedIdsWithoutTheirBit) {
    Snapshot snapshot;
    tool::MessageFacts message;
    message.id = 0x98FEF100U;
    EXPECT_EQ(MessageTitle(snapshot, message), "2566844672 (0x18FEF100 extended) ");
}

TEST(Visible, EscapesControlCharactersAndBytesThatAreNoText) {
    EXPECT_EQ(tool::Visible("plain \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"),
              "plain \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80");
    EXPECT_EQ(tool::Visible("\n\r\t\x1B\x7F" + std::string(1, '\0')), "\\n\\r\\t\\x1B\\x7F\\x00");
    EXPECT_EQ(tool::Visible("\xC2\x9B"), "\\xC2\\x9B");
    EXPECT_EQ(tool::Visible("\xC2\xA0"), "\xC2\xA0");
    EXPECT_EQ(tool::Visible("\xE2\x80\x90\xE2\x81\xAA"), "\xE2\x80\x90\xE2\x81\xAA");
    EXPECT_EQ(tool::Visible("a\xE2\x80\xAE"), "a\\xE2\\x80\\xAE");
    EXPECT_EQ(tool::Visible("\xE2\x81\xA6\xE2\x80\x8B"), "\\xE2\\x81\\xA6\\xE2\\x80\\x8B");
    EXPECT_EQ(tool::Visible("\xB0\xC3"), "\\xB0\\xC3");
}

}  // namespace
}  // namespace vexil::test
