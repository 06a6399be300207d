// Runs the built vexil-dbc as a process of its own. All that is special about how it is started, on
// another system or by an emulator, stands in tool_process.cpp.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/files.h"
#include "tool/intruder.h"

namespace vexil::test {

// Exit codes of the tool, as its users know them.
enum ToolExit : int {
    Success = 0,
    Findings = 1,
    Usage = 2,
    CannotRead = 3,
    NotAccepted = 4,
    CannotWrite = 5
};

// What a process left behind.
struct Outcome {
    int exitCode = 0;  // minus the number of the signal that ended the process
    std::string out;
    std::string err;

    bool operator==(const Outcome&) const = default;
};
void PrintTo(const Outcome& outcome, std::ostream* stream);

// The world that a process runs in.
struct Surroundings {
    std::string standardInput = "/dev/null";
    std::string standardOutput = {};    // a file to write it to, in place of Outcome::out
    bool standardOutputClosed = false;  // there is none
    int standardOutputDescriptor = -1;  // an open file to write it to
    std::optional<std::uint64_t> fileSizeLimit = {};  // writes that go beyond it fail
    Intruder* intruder = nullptr;                     // disturbs the process
    std::string temporaryFolder = {};                 // empty: that of this process
};

// Runs the tool to its end.
Outcome RunTool(const std::vector<std::string>& arguments, const Surroundings& surroundings = {});

// The path of the tool.
std::string ToolPath();

// Whether the tool is a program of this very system, and so meets its devices and limits.
bool ToolIsNative();

// A file that the tool wrote, its line ends as line feeds.
std::string ReadLines(const std::string& file);

// A test with a folder of its own.
class ToolTest : public testing::Test {
  protected:
    // Makes a file in the folder and returns its path.
    std::string MakeFile(std::string_view name, std::string_view text) const;

    TempFolder folder;
};

// A test that needs the devices and limits of Linux.
class LinuxToolTest : public ToolTest {
  protected:
    void SetUp() override;
};

}  // namespace vexil::test
