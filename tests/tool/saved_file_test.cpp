// SaveFile: what is replaced, with which permissions, and that an error changes nothing.
// SPDX-License-Identifier: MIT
#include "file/saved_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "file/descriptor.h"
#include "support/files.h"

namespace vexil::tool {
namespace {

namespace fs = std::filesystem;

class SaveFileTest : public testing::Test {
  protected:
    SaveFileTest() : folder(files.File("folder")) { fs::create_directory(folder); }

    std::string File(const std::string& name) const { return folder + "/" + name; }

    // The names of all that is in the folder.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static mode_t Mode(const std::string& file) {
        struct stat status {};
        EXPECT_EQ(stat(file.c_str(), &status), 0);
        return status.st_mode & 07777U;
    }

    test::TempFolder files;
    std::string folder;
};

TEST_F(SaveFileTest, MakesAFile) {
    EXPECT_EQ(SaveFile(File("a"), "text"), std::error_code());
    EXPECT_EQ(test::ReadBytes(File("a")), "text");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(SaveFileTest, MakesAFileInTheWorkingFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder);
    EXPECT_EQ(SaveFile("a", "text"), std::error_code());
    fs::current_path(before);
    EXPECT_EQ(test::ReadBytes(File("a")), "text");
}

TEST_F(SaveFileTest, MakesAFileWithThePermissionsThatTheMaskLeaves) {
    const mode_t before = umask(027);
    EXPECT_EQ(SaveFile(File("a"), "text"), std::error_code());
    umask(before);
    EXPECT_EQ(Mode(File("a")), 0640U);
}

TEST_F(SaveFileTest, KeepsThePermissionsOfTheFileThatItReplaces) {
    test::WriteBytes(File("a"), "old");
    for (const mode_t mode : {0600U, 0666U, 0764U}) {
        ASSERT_EQ(chmod(File("a").c_str(), mode), 0);
        EXPECT_EQ(SaveFile(File("a"), "new"), std::error_code());
        EXPECT_EQ(Mode(File("a")), mode);
    }
    EXPECT_EQ(test::ReadBytes(File("a")), "new");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(SaveFileTest, KeepsTheOwnerOfTheFileThatItReplaces) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only an administrator can give a file away";
    }
    test::WriteBytes(File("a"), "old");
    ASSERT_EQ(chown(File("a").c_str(), 12, 34), 0);
    EXPECT_EQ(SaveFile(File("a"), "new"), std::error_code());
    struct stat status {};
    ASSERT_EQ(stat(File("a").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12U);
    EXPECT_EQ(status.st_gid, 34U);
}

TEST_F(SaveFileTest, ReplacesTheFileThatLinksPointTo) {
    fs::create_directory(files.File("other"));
    test::WriteBytes(files.File("other/a"), "old");
    fs::create_symlink("../other/a", File("second"));
    fs::create_symlink(File("second"), File("first"));
    EXPECT_EQ(SaveFile(File("first"), "new"), std::error_code());
    EXPECT_TRUE(fs::is_symlink(File("first")));
    EXPECT_TRUE(fs::is_symlink(File("second")));
    EXPECT_EQ(test::ReadBytes(files.File("other/a")), "new");
    EXPECT_EQ(Names(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(SaveFileTest, MakesTheFileThatALinkNames) {
    fs::create_symlink("a", File("link"));
    EXPECT_EQ(SaveFile(File("link"), "new"), std::error_code());
    EXPECT_TRUE(fs::is_symlink(File("link")));
    EXPECT_EQ(test::ReadBytes(File("a")), "new");
}

TEST_F(SaveFileTest, RefusesLinksInACircle) {
    fs::create_symlink("b", File("a"));
    fs::create_symlink("a", File("b"));
    EXPECT_EQ(SaveFile(File("a"), "new"), std::errc::too_many_symbolic_link_levels);
}

// Two links of one file are two names: the save replaces one of them.
TEST_F(SaveFileTest, LeavesOtherNamesOfAFileAlone) {
    test::WriteBytes(File("a"), "old");
    fs::create_hard_link(File("a"), File("b"));
    EXPECT_EQ(SaveFile(File("a"), "new"), std::error_code());
    EXPECT_EQ(test::ReadBytes(File("b")), "old");
}

TEST_F(SaveFileTest, TakesPathsOfAnyLength) {
    const std::string name(255, 'n');
    fs::create_directory(File(name));
    // In and out again, up to 10,000 bytes.
    std::string around = folder + "/" + name + "/";
    while (around.size() < 10'000) {
        around += "../" + name + "/";
    }
    EXPECT_EQ(SaveFile(around + name, "text"), std::error_code());
    EXPECT_EQ(test::ReadBytes(folder + "/" + name + "/" + name), "text");
    EXPECT_EQ(SaveFile(around + name + "n", "text"), std::errc::filename_too_long);
}

TEST_F(SaveFileTest, TakesPathsThatAreNotUtf8) {
    EXPECT_EQ(SaveFile(File("\xFF"), "text"), std::error_code());
    EXPECT_EQ(Names(), std::vector<std::string>{"\xFF"});
}

TEST_F(SaveFileTest, WritesToDevicesAndPipes) {
    EXPECT_EQ(SaveFile("/dev/null", "text"), std::error_code());
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(SaveFile("/dev/full", "text"), std::errc::no_space_on_device);

    ASSERT_EQ(mkfifo(File("pipe").c_str(), 0600), 0);
    const Descriptor reader(open(File("pipe").c_str(), O_RDONLY | O_NONBLOCK));
    EXPECT_EQ(SaveFile(File("pipe"), "text"), std::error_code());
    std::string bytes;
    EXPECT_EQ(ReadAll(reader.Value(), bytes), std::error_code());
    EXPECT_EQ(bytes, "text");
    EXPECT_EQ(Names(), std::vector<std::string>{"pipe"});
}

TEST_F(SaveFileTest, RefusesAFolder) {
    EXPECT_EQ(SaveFile(folder, "text"), std::errc::is_a_directory);
    EXPECT_EQ(SaveFile(folder + "/", "text"), std::errc::is_a_directory);
    EXPECT_EQ(SaveFile("/", "text"), std::errc::is_a_directory);
    EXPECT_EQ(Names(), std::vector<std::string>{});
}

TEST_F(SaveFileTest, RefusesAMissingFolder) {
    EXPECT_EQ(SaveFile(File("none/a"), "text"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(SaveFile("", "text"), std::errc::no_such_file_or_directory);
    test::WriteBytes(File("a"), "old");
    EXPECT_EQ(SaveFile(File("a/b"), "text"), std::errc::not_a_directory);
    EXPECT_EQ(SaveFile(File("a/"), "text"), std::errc::not_a_directory);
}

// Rights that an administrator has do not count in a child that gives them away.
TEST_F(SaveFileTest, RefusesAFileThatTheUserMayNotWrite) {
    test::WriteBytes(File("a"), "old");
    ASSERT_EQ(chmod(File("a").c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
    ASSERT_EQ(chmod(files.File("").c_str(), 0755), 0);
    const auto save = [&] {
        if (geteuid() == 0 && setuid(65534) != 0) {
            _exit(2);
        }
        _exit(SaveFile(File("a"), "new") == std::errc::permission_denied ? 0 : 1);
    };
    EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(test::ReadBytes(File("a")), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(SaveFileTest, RefusesAFolderThatTheUserMayNotWrite) {
    test::WriteBytes(File("a"), "old");
    ASSERT_EQ(chmod(File("a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.c_str(), 0555), 0);
    ASSERT_EQ(chmod(files.File("").c_str(), 0755), 0);
    const auto save = [&] {
        if (geteuid() == 0 && setuid(65534) != 0) {
            _exit(2);
        }
        _exit(SaveFile(File("a"), "new") == std::errc::permission_denied ? 0 : 1);
    };
    EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
    ASSERT_EQ(chmod(folder.c_str(), 0755), 0);
    EXPECT_EQ(test::ReadBytes(File("a")), "old");
}

TEST_F(SaveFileTest, LeavesTheFileAloneWhenTheDiskTakesOnlyAPart) {
    test::WriteBytes(File("a"), "old");
    const auto save = [&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{1000, 1000};
        setrlimit(RLIMIT_FSIZE, &limit);
        const bool fails = SaveFile(File("a"), std::string(1001, 'x')) == std::errc::file_too_large;
        const bool fits = !SaveFile(File("b"), std::string(1000, 'x'));
        _exit(fails && fits ? 0 : 1);
    };
    EXPECT_EXIT(save(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(test::ReadBytes(File("a")), "old");
    EXPECT_EQ(Names(), (std::vector<std::string>{"a", "b"}));
}

TEST_F(SaveFileTest, LeavesNoDescriptorOpen) {
    const auto open = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = open();
    EXPECT_EQ(SaveFile(File("a"), "text"), std::error_code());
    EXPECT_EQ(SaveFile(File("none/a"), "text"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(open(), before);
}

TEST_F(SaveFileTest, RecognizesTheSameFile) {
    test::WriteBytes(File("a"), "text");
    test::WriteBytes(File("b"), "text");
    fs::create_symlink("a", File("link"));
    const Descriptor file(open(File("a").c_str(), O_RDONLY));
    EXPECT_TRUE(IsSameFile(File("a"), file.Value()));
    EXPECT_TRUE(IsSameFile(File("link"), file.Value()));
    EXPECT_TRUE(IsSameFile(folder + "/../folder/a", file.Value()));
    EXPECT_FALSE(IsSameFile(File("b"), file.Value()));
    EXPECT_FALSE(IsSameFile(File("none"), file.Value()));
}

}  // namespace
}  // namespace vexil::tool
