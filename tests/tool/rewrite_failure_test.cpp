// vexil-dbc rewrite when something goes wrong at any of its calls to the system: the output is then
// the file that was there or the new one, each of them whole, and no temporary file is left.
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

constexpr std::string_view Text = "BO_ 5 Beta: 8 ECU1\n SG_ A : 0|8@1+ (1,0) [0|9] \"\" ECU2\n";
constexpr std::string_view Old = "precious";

class DisturbedRewrite : public LinuxToolTest {
  protected:
    void SetUp() override {
        LinuxToolTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        std::filesystem::create_directory(folder.File("out"));
        std::filesystem::create_directory(folder.File("tmp"));
        ASSERT_EQ(RunTool({"rewrite", input, output}).exitCode, Success);
        written = ReadBytes(output);
    }

    // Runs the rewrite over an old file with an intruder.
    Outcome Run(Intruder& intruder) {
        WriteBytes(output, Old);
        return RunTool({"rewrite", input, output},
                       {.intruder = &intruder, .temporaryFolder = folder.File("tmp")});
    }

    // Whether the output is a whole file, and there is none beside it.
    void ExpectWhole(const Outcome& outcome) {
        const std::string now = ReadBytes(output);
        EXPECT_TRUE(now == written || now == Old) << now;
        if (outcome.exitCode == Success) {
            EXPECT_EQ(now, written);
        }
        const auto entries = std::filesystem::directory_iterator(folder.File("out"));
        EXPECT_EQ(std::distance(entries, std::filesystem::directory_iterator()), 1);
        EXPECT_TRUE(std::filesystem::is_empty(folder.File("tmp")));
    }

    std::string input = MakeFile("in.dbc", Text);
    std::string output = folder.File("out/out.dbc");
    std::string written;
};

// The handler is the same for all signals, so one of them after each call is enough.
TEST_F(DisturbedRewrite, LeavesAWholeFileWhenItIsInterrupted) {
    constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP, SIGQUIT};
    bool hasIntruded = true;
    std::size_t oldFiles = 0;
    std::size_t newFiles = 0;
    for (std::size_t call = 1; hasIntruded && !HasFailure(); ++call) {
        const int signal = Signals[call % Signals.size()];
        SCOPED_TRACE("signal " + std::to_string(signal) + " after call " + std::to_string(call));
        Intruder intruder("in.dbc");
        intruder.SendSignal(call, signal);
        const Outcome outcome = Run(intruder);
        hasIntruded = intruder.HasIntruded();
        ExpectWhole(outcome);
        EXPECT_EQ(outcome.exitCode, hasIntruded ? -signal : Success);
        ++(ReadBytes(output) == written ? newFiles : oldFiles);
    }
    EXPECT_GT(oldFiles, 50U);
    EXPECT_GT(newFiles, 1U);
}

// A signal that the tool was started to ignore, as nohup does it.
TEST_F(DisturbedRewrite, GoesOnAfterASignalThatIsIgnored) {
    std::signal(SIGHUP, SIG_IGN);
    Intruder intruder("in.dbc");
    intruder.SendSignal(10, SIGHUP);
    const Outcome outcome = Run(intruder);
    std::signal(SIGHUP, SIG_DFL);
    EXPECT_TRUE(intruder.HasIntruded());
    ExpectWhole(outcome);
    EXPECT_EQ(outcome.exitCode, Success);
}

// All calls but the one that removes the private copy, which must then stay.
TEST_F(DisturbedRewrite, LeavesAWholeFileWhenACallFails) {
    bool wasReached = true;
    std::size_t failures = 0;
    for (std::size_t call = 1; wasReached && !HasFailure(); ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        Intruder intruder("in.dbc");
        intruder.FailCall(call, EIO);
        const Outcome outcome = Run(intruder);
        wasReached = intruder.WasReached();
        ExpectWhole(outcome);
        if (outcome.exitCode == Success) {
            EXPECT_EQ(outcome.err, "");
            continue;
        }
        ++failures;
        EXPECT_TRUE(outcome.exitCode == CannotRead || outcome.exitCode == CannotWrite);
        EXPECT_EQ(ReadBytes(output), Old);
        EXPECT_TRUE(outcome.err.starts_with("vexil-dbc: cannot ")) << outcome.err;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    }
    EXPECT_GT(failures, 20U);
}

TEST_F(DisturbedRewrite, LeavesTheOldFileWhenTheDiskIsFull) {
    bool wasReached = true;
    std::size_t writes = 0;
    for (std::size_t call = 1; wasReached && !HasFailure(); ++call) {
        SCOPED_TRACE("write " + std::to_string(call));
        Intruder intruder("in.dbc");
        intruder.FailWrites(call, ENOSPC);
        const Outcome outcome = Run(intruder);
        wasReached = intruder.WasReached();
        ExpectWhole(outcome);
        EXPECT_EQ(outcome.exitCode, wasReached ? CannotWrite : Success) << outcome.err;
        EXPECT_EQ(ReadBytes(output) == Old, wasReached);
        writes = call;
    }
    EXPECT_GT(writes, 20U);
}

}  // namespace
}  // namespace vexil::test
