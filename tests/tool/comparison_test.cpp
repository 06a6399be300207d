// What differs between two networks: each aspect, and which messages and signals are pairs.
// SPDX-License-Identifier: MIT
#include "comparison/comparison.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "tool/comparison_text.h"
#include "tool/experiment.h"

namespace vexil::test {
namespace {

using tool::Aspect;

constexpr std::string_view Network =
    "BO_ 1 Engine: 8 ECU\n"
    " SG_ Gear M : 0|4@1+ (1,0) [0|5] \"\" Dash,Gate\n"
    " SG_ Speed m1 : 8|32@1- (0.5,0) [0|100] \"km/h\" Dash\n"
    "CM_ BO_ 1 \"The engine\";\n"
    "CM_ SG_ 1 Speed \"Of the shaft\";\n"
    "VAL_ 1 Gear 0 \"off\" 1 \"on\" ;\n"
    "BA_DEF_ \"BusType\" STRING ;\n"
    "BA_ \"BusType\" \"CAN\";\n"
    "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 1000;\n"
    "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"
    "BA_DEF_ BO_ \"GenMsgSendType\" ENUM \"Cyclic\",\"Event\";\n"
    "BA_ \"GenMsgSendType\" BO_ 1 0;\n"
    "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 9;\n"
    "BA_ \"GenSigStartValue\" SG_ 1 Gear 3;\n"
    "BA_DEF_ SG_ \"GenSigInactiveValue\" INT 0 9;\n"
    "BA_ \"GenSigInactiveValue\" SG_ 1 Gear 4;\n";

class CompareNetworks : public testing::Test {
  protected:
    // What differs between the network and itself with one text in place of another one.
    std::string Replace(std::string_view text, std::string_view other,
                        tool::AspectSet ignored = {}) {
        std::string changed(Network);
        const std::size_t at = changed.find(text);
        EXPECT_NE(at, std::string::npos) << text;
        changed.replace(at, text.size(), other);
        return Differences(Network, changed, ignored);
    }

    // A line for each difference.
    std::string Differences(std::string_view before, std::string_view after,
                            tool::AspectSet ignored = {}) {
        const tool::Snapshot first = experiment.Read(before);
        const tool::Snapshot second = experiment.Read(after);
        return TextOf(Compare(first, second, ignored), first, second);
    }

    Experiment experiment;
};

TEST_F(CompareNetworks, FindsNothingInEqualNetworks) {
    EXPECT_EQ(Differences(Network, Network), "");
    EXPECT_EQ(Differences("", ""), "");
}

TEST_F(CompareNetworks, FindsEachAspect) {
    EXPECT_EQ(Replace("\"CAN\"", "\"CAN FD\""), "network: busType\n");
    EXPECT_EQ(Replace("Engine: 8", "Engine: 6"), "~Engine: size\n");
    EXPECT_EQ(Replace("8 ECU", "8 Gate"), "~Engine: sender\n");
    EXPECT_EQ(Replace("BO_ 1 100", "BO_ 1 50"), "~Engine: cycleTime\n");
    EXPECT_EQ(Replace("BO_ 1 0", "BO_ 1 1"), "~Engine: sendType\n");
    EXPECT_EQ(Replace("1 Engine", "1 Motor"), "~Motor: name\n");
    EXPECT_EQ(Replace("The engine", "The motor"), "~Engine: comment\n");
    EXPECT_EQ(Replace("Of the shaft", "Of the wheel"), "~Engine:\n  ~Speed: comment\n");
    EXPECT_EQ(Replace("8|32@1", "9|32@1"), "~Engine:\n  ~Speed: bits\n");
    EXPECT_EQ(Replace("8|32@1", "8|31@1"), "~Engine:\n  ~Speed: bits\n");
    EXPECT_EQ(Replace("8|32@1", "8|32@0"), "~Engine:\n  ~Speed: bits\n");
    EXPECT_EQ(Replace("32@1-", "32@1+"), "~Engine:\n  ~Speed: type\n");
    EXPECT_EQ(Replace("(0.5,0)", "(0.25,0)"), "~Engine:\n  ~Speed: scaling\n");
    EXPECT_EQ(Replace("(0.5,0)", "(0.5,-1)"), "~Engine:\n  ~Speed: scaling\n");
    EXPECT_EQ(Replace("[0|100]", "[1|100]"), "~Engine:\n  ~Speed: range\n");
    EXPECT_EQ(Replace("[0|100]", "[0|101]"), "~Engine:\n  ~Speed: range\n");
    EXPECT_EQ(Replace("km/h", "mph"), "~Engine:\n  ~Speed: unit\n");
    EXPECT_EQ(Replace("Speed m1", "Speed m2"), "~Engine:\n  ~Speed: multiplexing\n");
    EXPECT_EQ(Replace("Speed m1", "Speed"), "~Engine:\n  ~Speed: multiplexing\n");
    EXPECT_EQ(Replace("Dash,Gate", "Dash"), "~Engine:\n  ~Gear: receivers\n");
    EXPECT_EQ(Replace("\"off\"", "\"idle\""), "~Engine:\n  ~Gear: values\n");
    EXPECT_EQ(Replace("1 \"on\"", ""), "~Engine:\n  ~Gear: values\n");
    EXPECT_EQ(Replace("Gear 3", "Gear 2"), "~Engine:\n  ~Gear: startValue\n");
    EXPECT_EQ(Replace("Gear 4", "Gear 2"), "~Engine:\n  ~Gear: inactiveValue\n");
}

TEST_F(CompareNetworks, FindsAnotherProtocolAndLongName) {
    const tool::Snapshot before = experiment.Read(Network);
    tool::Snapshot after = before;
    after.info.protocolType = ProtocolJ1939;
    after.messages[0].longName = after.messages[0].comment;
    EXPECT_EQ(TextOf(Compare(before, after), before, after),
              "network: protocol\n~Engine: longName\n");
}

TEST_F(CompareNetworks, TakesReceiversAsASet) {
    EXPECT_EQ(Replace("Dash,Gate", "Gate,Dash"), "");
    EXPECT_EQ(Replace("Dash,Gate", "Gate,Dash,Gate"), "");
    EXPECT_EQ(Replace("Dash,Gate", "Dash,Gate,Dashboard"), "~Engine:\n  ~Gear: receivers\n");
}

TEST_F(CompareNetworks, TakesNumbersThatAreNoneAsEqual) {
    tool::Snapshot before = experiment.Read(Network);
    tool::Snapshot after = before;
    before.signals[0].factor = after.signals[0].factor = std::numeric_limits<double>::quiet_NaN();
    before.signals[0].minimum = 0.0;
    after.signals[0].minimum = -0.0;
    EXPECT_EQ(TextOf(Compare(before, after), before, after), "");
    after.signals[0].factor = 1;
    EXPECT_EQ(TextOf(Compare(before, after), before, after), "~Engine:\n  ~Gear: scaling\n");
}

TEST_F(CompareNetworks, FindsWhatWasAddedAndRemoved) {
    EXPECT_EQ(Replace("CM_ BO_ 1", "BO_ 2 New: 8 N\nCM_ BO_ 1"), "+New\n");
    EXPECT_EQ(Replace("CM_ BO_ 1", " SG_ New : 4|1@1+ (1,0) [0|1] \"\" N\nCM_ BO_ 1"),
              "~Engine:\n  +New\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\n\nBO_ 2 B: 8 N\n", "BO_ 2 B: 8 N\n\nBO_ 3 C: 8 N\n"),
              "-A\n+C\n");
    EXPECT_EQ(Differences("", Network), "+Engine\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n", "BO_ 1 A: 8 N\n"),
              "~A:\n  -S\n");
}

TEST_F(CompareNetworks, PairsMessagesByIdFirstAndThenByName) {
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\n", "BO_ 1 B: 8 N\n"), "~B: name\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\n", "BO_ 2 A: 8 N\n"), "~A: id\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 2 B: 8 N\n", "BO_ 1 B: 8 N\nBO_ 2 A: 8 N\n"),
              "~B: name\n~A: name\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\n", "BO_ 2 B: 8 N\n"), "-A\n+B\n");
}

TEST_F(CompareNetworks, PairsMessagesOfOneIdByNameAndThenInTheirOrder) {
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 1 B: 8 N\n", "BO_ 1 B: 8 N\n"), "-A\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 1 A: 4 N\n", "BO_ 1 A: 8 N\n"), "-A\n");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 1 B: 4 N\n", "BO_ 1 C: 8 N\nBO_ 1 D: 4 N\n"),
              "~C: name\n~D: name\n");
}

std::string Signals(const std::vector<std::string>& names) {
    std::string text = "BO_ 1 A: 8 N\n";
    for (const std::string& name : names) {
        text += " SG_ " + name + "@1+ (1,0) [0|1] \"\" N\n";
    }
    return text;
}

TEST_F(CompareNetworks, PairsSignalsByNameFirstAndThenByBits) {
    EXPECT_EQ(Differences(Signals({"S : 0|8"}), Signals({"T : 0|8"})), "~A:\n  ~T: name\n");
    EXPECT_EQ(Differences(Signals({"S : 0|8"}), Signals({"S : 8|8"})), "~A:\n  ~S: bits\n");
    EXPECT_EQ(Differences(Signals({"S : 0|8"}), Signals({"T : 8|8"})), "~A:\n  -S\n  +T\n");
    EXPECT_EQ(Differences(Signals({"S : 0|8", "T : 8|8"}), Signals({"T : 0|8", "S : 8|8"})),
              "~A:\n  ~T: bits\n  ~S: bits\n  order: T\n");
    EXPECT_EQ(Differences(Signals({"S m1 : 0|8", "T m2 : 0|8"}), Signals({"U m2 : 0|8"})),
              "~A:\n  -S\n  ~U: name\n");
}

TEST_F(CompareNetworks, PairsSignalsOfOneNameByBitsAndThenInTheirOrder) {
    EXPECT_EQ(Differences(Signals({"S : 0|8", "S : 8|8"}), Signals({"S : 8|8"})), "~A:\n  -S\n");
    EXPECT_EQ(Differences(Signals({"S : 0|8", "S : 8|8"}), Signals({"S : 1|8", "S : 9|8"})),
              "~A:\n  ~S: bits\n  ~S: bits\n");
}

TEST_F(CompareNetworks, PairsWhatSharesMoreNamesFirst) {
    const tool::Snapshot messages = experiment.Read("BO_ 1 A: 8 N\nBO_ 1 B: 8 N\n");
    tool::Snapshot other = experiment.Read("BO_ 1 B: 8 N\n");
    other.messages[0].longName = other.messages[0].transmitter;
    EXPECT_EQ(TextOf(Compare(messages, other), messages, other), "-A\n~B: longName\n");

    tool::Snapshot signals = experiment.Read(Signals({"S : 0|8", "S : 8|8"}));
    other = experiment.Read(Signals({"S : 16|8"}));
    signals.signals[1].longName = signals.signals[1].receiverList;
    other.signals[0].longName = other.signals[0].receiverList;
    EXPECT_EQ(TextOf(Compare(signals, other), signals, other), "~A:\n  -S\n  ~S: bits\n");
}

TEST_F(CompareNetworks, FindsAnotherOrder) {
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 2 B: 8 N\nBO_ 3 C: 8 N\n",
                          "BO_ 3 C: 8 N\nBO_ 1 A: 8 N\nBO_ 2 B: 8 N\n"),
              "order: C\n");
    EXPECT_EQ(Differences(Signals({"S : 0|8", "T : 8|8", "U : 16|8"}),
                          Signals({"T : 8|8", "U : 16|8", "S : 0|8"})),
              "~A:\n  order: S\n");
}

TEST_F(CompareNetworks, LeavesOutWhatIsIgnored) {
    EXPECT_EQ(Replace("Engine: 8", "Engine: 6", {Aspect::Size}), "");
    EXPECT_EQ(Replace("Engine: 8", "Engine: 6", {Aspect::Bits}), "~Engine: size\n");
    EXPECT_EQ(Replace("km/h", "mph", {Aspect::Unit, Aspect::Order}), "");
    EXPECT_EQ(Replace("\"CAN\"", "\"CAN FD\"", {Aspect::BusType}), "");
    EXPECT_EQ(Differences(Signals({"S : 0|8"}), Signals({"T : 0|8"}), {Aspect::Name}), "");
    EXPECT_EQ(Differences(Signals({"S : 0|8", "T : 8|8"}), Signals({"T : 8|8", "S : 0|8"}),
                          {Aspect::Order}),
              "");
    EXPECT_EQ(Differences("BO_ 1 A: 8 N\nBO_ 2 B: 8 N\n", "BO_ 2 B: 8 N\nBO_ 1 A: 8 N\n",
                          {Aspect::Order}),
              "");
}

TEST(FindAspect, FindsEachNameOfTheTable) {
    for (std::size_t index = 0; index < tool::AspectCount; ++index) {
        const tool::AspectRow& row = tool::AspectRows()[index];
        EXPECT_EQ(static_cast<std::size_t>(row.aspect), index);
        EXPECT_EQ(tool::FindAspect(row.ignoreName), row.aspect);
    }
    EXPECT_EQ(tool::FindAspect("comment"), std::nullopt);
    EXPECT_EQ(tool::FindAspect(""), std::nullopt);
}

}  // namespace
}  // namespace vexil::test
