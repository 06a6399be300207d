// What holds for every page and list, tried with networks that have faults: the lines fit the
// terminal, and no byte of a file controls it.
//
//   VEXIL64_CORPUS  a folder of real files
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "support/random_text.h"
#include "tool/experiment.h"
#include "tool/network_maker.h"
#include "tool/random_network.h"
#include "view/display_text.h"
#include "view/message_list.h"
#include "view/message_page.h"

namespace vexil::test {
namespace {

// Wide enough for the least widths of all columns of the table of signals.
constexpr std::size_t Width = 110;

std::vector<std::string> Lines(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

// That the lines are printable, which leaves them as they are.
void ExpectPrintable(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
        ASSERT_EQ(tool::Printable(line), line);
    }
}

void ExpectGoodViews(const tool::Snapshot& snapshot) {
    for (const bool ascii : {false, true}) {
        const tool::DrawStyle style{.width = Width, .ascii = ascii};
        for (const tool::MessageFacts& message : snapshot.messages) {
            std::ostringstream page;
            PrintMessagePage(page, snapshot, message, style);
            const std::vector<std::string> lines = Lines(page.str());
            ExpectPrintable(lines);
            for (const std::string& line : lines) {
                ASSERT_LE(tool::DisplayWidth(line), Width) << page.str();
            }
        }
        std::vector<std::uint32_t> messages(snapshot.messages.size());
        std::iota(messages.begin(), messages.end(), 0U);
        std::ostringstream list;
        PrintMessageList(list, snapshot, messages, style);
        const std::vector<std::string> lines = Lines(list.str());
        ExpectPrintable(lines);
        ASSERT_EQ(lines.size(), messages.size() + 1);
    }
}

TEST(MessageViews, AreWellFormedForFaultyNetworks) {
    constexpr std::uint32_t Networks = 200;
    Experiment experiment;
    for (std::uint32_t seed = 0; seed < Networks; ++seed) {
        SCOPED_TRACE(seed);
        ExpectGoodViews(experiment.Read(RandomNetwork(seed)));
        ASSERT_FALSE(testing::Test::HasFatalFailure());
    }
}

TEST(MessageViews, AreWellFormedForAnyTextAndNumber) {
    constexpr std::uint32_t Networks = 200;
    for (std::uint32_t seed = 0; seed < Networks; ++seed) {
        SCOPED_TRACE(seed);
        RandomText random(seed);
        const auto number = [&random] {
            return static_cast<std::uint32_t>(
                random.Below(2) == 0 ? random.Below(80) : 0xFFFFFFFFU - random.Below(80));
        };
        NetworkMaker network(number(), number());
        for (std::size_t index = random.Below(6); index != 0; --index) {
            tool::SignalFacts& signal =
                network.Add(random.AnyText(4), number(), number(), number() % 3);
            signal.multiplexType = number() % 4;
            signal.multiplexValue = number();
            signal.valueType = number() % 5;
            signal.factor = 1.0 / (1.0 + static_cast<double>(number()));
            signal.minimum = -static_cast<double>(number()) * 1e300;
            signal.unitUtf8 = network.Text(random.AnyText(9));
            signal.receiverList = network.Text(random.AnyText(30));
            signal.comment = network.Text(random.AnyText(60));
            network.Describe(static_cast<std::int32_t>(number()), random.AnyText(60));
        }
        tool::MessageFacts& message = network.snapshot.messages.front();
        message.name = network.Text(random.AnyText(8));
        message.transmitter = network.Text(random.AnyText(8));
        message.sendType = network.Text(random.AnyText(8));
        message.comment = network.Text(random.AnyText(60));
        ExpectGoodViews(network.snapshot);
        ASSERT_FALSE(testing::Test::HasFatalFailure());
    }
}

TEST(MessageViews, AreWellFormedForRealFiles) {
    const char* const folder = std::getenv("VEXIL64_CORPUS");
    if (folder == nullptr || *folder == '\0') {
        GTEST_SKIP() << "VEXIL64_CORPUS is not set: set it to a folder of .dbc files to run "
                        "the tests with real files.";
    }
    Experiment experiment;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".dbc") {
            SCOPED_TRACE(entry.path().string());
            ExpectGoodViews(experiment.Read(ReadBytes(entry.path().string())));
            ASSERT_FALSE(testing::Test::HasFatalFailure());
        }
    }
}

}  // namespace
}  // namespace vexil::test
