// A network in numbers.
// SPDX-License-Identifier: MIT
#include "view/network_facts.h"

#include <gtest/gtest.h>

#include "tool/experiment.h"

namespace vexil::test {
namespace {

constexpr std::string_view Cycles =
    "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
    "BA_DEF_DEF_ \"GenMsgCycleTime\" 0;\n"
    "BA_ \"GenMsgCycleTime\" BO_ 1 100;\n"
    "BA_ \"GenMsgCycleTime\" BO_ 3 20;\n";

TEST(FindSenders, CountsAndAddsUpTheCyclicMessages) {
    Experiment experiment;
    const tool::Snapshot snapshot = experiment.Read(
        "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" R\n SG_ T : 8|8@1+ (1,0) [0|1] \"\" R\n"
        "BO_ 2 B: 2 P\nBO_ 3 C: 4 N\nBO_ 4 D: 8 N\n" +
        std::string(Cycles));
    const std::vector<tool::SenderFacts> senders = FindSenders(snapshot);
    ASSERT_EQ(senders.size(), 2U);
    EXPECT_EQ(senders[0].name, "N");
    EXPECT_EQ(senders[0].messages, 3U);
    EXPECT_EQ(senders[0].signals, 2U);
    EXPECT_EQ(senders[0].framesPerSecond, 60);
    EXPECT_EQ(senders[0].bytesPerSecond, 280);
    EXPECT_EQ(senders[1].name, "P");
    EXPECT_EQ(senders[1].messages, 1U);
    EXPECT_EQ(senders[1].signals, 0U);
    EXPECT_EQ(senders[1].framesPerSecond, 0);
    EXPECT_EQ(senders[1].bytesPerSecond, 0);
}

TEST(CountBits, CountsEachBitOfAMessageOnce) {
    Experiment experiment;
    const tool::BitUse use = CountBits(
        experiment.Read("BO_ 1 A: 2 N\n SG_ S : 0|6@1+ (1,0) [0|1] \"\" R\n"
                        " SG_ T : 4|4@1+ (1,0) [0|1] \"\" R\n SG_ U : 15|32@1+ (1,0) [0|1] \"\" R\n"
                        "BO_ 2 B: 1 N\nBO_ 3221225472 X: 8 N\n"));
    EXPECT_EQ(use.bits, 24U);
    EXPECT_EQ(use.used, 9U);
}

TEST(CountBits, CountsNoMoreThanTheBitsThatHaveALayout) {
    Experiment experiment;
    const tool::BitUse use = CountBits(
        experiment.Read("BO_ 1 A: 4294967295 N\n SG_ S : 0|4294967295@1+ (1,0) [0|1] \"\" R\n"
                        " SG_ T : 4294967295|4294967295@0+ (1,0) [0|1] \"\" R\n"));
    EXPECT_EQ(use.bits, 4096U);
    EXPECT_EQ(use.used, 4096U);
}

}  // namespace
}  // namespace vexil::test
