// vexil-dbc rewrite on a file system that is really full: one in memory, of a few pages, in which
// ever more room is left. Only an administrator may mount one.
// SPDX-License-Identifier: MIT
#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

constexpr std::size_t Page = 4096;
constexpr std::size_t Pages = 16;

class FullFileSystem : public LinuxToolTest {
  protected:
    void SetUp() override {
        LinuxToolTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        std::filesystem::create_directory(disk);
        const std::string options = "size=" + std::to_string(Pages * Page);
        if (mount("none", disk.c_str(), "tmpfs", 0, options.c_str()) != 0) {
            GTEST_SKIP() << "no file system can be mounted here: " << std::strerror(errno);
        }
        isMounted = true;
    }
    void TearDown() override {
        if (isMounted) {
            EXPECT_EQ(umount(disk.c_str()), 0);
        }
    }

    // Takes all room but that of so many pages.
    void FillUpTo(std::size_t pagesLeft) const {
        std::filesystem::remove(disk + "/filler");
        const std::size_t free = std::filesystem::space(disk).available / Page;
        if (free > pagesLeft) {
            WriteBytes(disk + "/filler", std::string((free - pagesLeft) * Page, 'x'));
        }
    }

    std::string disk = folder.File("disk");
    bool isMounted = false;
};

TEST_F(FullFileSystem, KeepsTheOldFileUntilThereIsRoomForTheNewOne) {
    std::string text;
    for (int id = 1; id <= 500; ++id) {
        text += "BO_ " + std::to_string(id) + " Message_" + std::to_string(id) + ": 8 ECU1\n";
    }
    const std::string input = MakeFile("in.dbc", text);
    const std::string output = disk + "/out.dbc";
    WriteBytes(output, "precious");
    std::size_t failures = 0;
    Outcome outcome{.exitCode = CannotWrite, .out = "", .err = ""};
    for (std::size_t room = 0; room < Pages && outcome.exitCode != Success; ++room) {
        SCOPED_TRACE(std::to_string(room) + " pages left");
        FillUpTo(room);
        outcome = RunTool({"rewrite", input, output});
        if (outcome.exitCode == Success) {
            continue;
        }
        ++failures;
        EXPECT_EQ(outcome,
                  (Outcome{CannotWrite, "",
                           "vexil-dbc: cannot write '" + output + "': No space left on device\n"}));
        EXPECT_EQ(ReadBytes(output), "precious");
        std::filesystem::remove(disk + "/filler");
        const auto entries = std::filesystem::directory_iterator(disk);
        EXPECT_EQ(std::distance(entries, std::filesystem::directory_iterator()), 1);
    }
    EXPECT_EQ(outcome.exitCode, Success);
    const std::string written = ReadBytes(output);
    EXPECT_EQ(failures, (written.size() + Page - 1) / Page);
    EXPECT_NE(written.find("BO_ 500 Message_500: 8 ECU1\n"), std::string::npos);
}

}  // namespace
}  // namespace vexil::test
