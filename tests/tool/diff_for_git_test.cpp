// vexil-dbc diff --git: a real git calls it, in a folder and with settings of its own.
// SPDX-License-Identifier: MIT
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#include "tool/tool_process.h"

namespace vexil::test {
namespace {

// In single quotes for a shell.
std::string ForShell(const std::string& text) {
    std::string quoted = "'";
    for (const char ch : text) {
        quoted += ch == '\'' ? "'\\''" : std::string(1, ch);
    }
    return quoted + "'";
}

// A repository, and a git that reads no settings but its own.
class DiffForGit : public LinuxToolTest {
  protected:
    void SetUp() override {
        LinuxToolTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        if (std::system("git --version >/dev/null 2>&1") != 0) {
            GTEST_SKIP() << "there is no git: install the Debian package git";
        }
        std::filesystem::create_directory(repository);
        ASSERT_EQ(Git("init -q ."), 0);
        ASSERT_EQ(Git("config user.name Tester && git config user.email tester@localhost"), 0);
        const std::string driver = ForShell(ToolPath()) + " diff --git --";
        ASSERT_EQ(Git("config diff.dbc.command " + ForShell(driver)), 0);
        Write(".gitattributes", "*.dbc diff=dbc\n");
        Write("a.dbc", "BO_ 1 A: 8 N\n");
        Commit();
    }

    // Runs git in the repository and keeps what it prints.
    int Git(const std::string& arguments) {
        const std::string command =
            "cd " + ForShell(repository) +
            " && unset $(env | sed -n 's/^\\(GIT_[A-Z_]*\\)=.*/\\1/p')" +
            " && export GIT_CONFIG_NOSYSTEM=1 GIT_CONFIG_GLOBAL=/dev/null LC_ALL=C.UTF-8 HOME=" +
            ForShell(repository) + " && { git " + arguments + "; } >" + ForShell(out) +
            " 2>&1 </dev/null";
        const int status = std::system(command.c_str());
        printed = ReadBytes(out);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    void Write(const std::string& name, std::string_view text) const {
        WriteBytes(repository + "/" + name, text);
    }

    void Commit() { ASSERT_EQ(Git("add -A && git commit -q -m change"), 0) << printed; }

    std::string repository = folder.File("repository");
    std::string out = folder.File("out");
    std::string printed;
};

TEST_F(DiffForGit, ShowsWhatWasChanged) {
    Write("a.dbc", "BO_ 1 A: 4 N\n");
    EXPECT_EQ(Git("diff"), 0);
    const std::string expected = "a.dbc: 1 message changed\n~ 1 (0x1) A\n    ~ size: 8 -> 4\n";
    EXPECT_EQ(printed, expected);
    EXPECT_EQ(Git("diff --exit-code"), 1);
    EXPECT_EQ(printed, expected);
    Commit();
    EXPECT_EQ(Git("log -p -1 --format=%s --ext-diff"), 0);
    EXPECT_EQ(printed, "change\n\n" + expected);
    EXPECT_EQ(Git("show --format=%s --ext-diff HEAD"), 0);
    EXPECT_EQ(printed, "change\n\n" + expected);
}

TEST_F(DiffForGit, ShowsFilesThatWereAddedAndDeleted) {
    Write("b.dbc", "BO_ 2 B: 8 N\n");
    std::filesystem::remove(repository + "/a.dbc");
    EXPECT_EQ(Git("add -A"), 0);
    EXPECT_EQ(Git("diff --cached --no-renames"), 0);
    EXPECT_EQ(printed,
              "a.dbc: 1 message removed\n- 1 (0x1) A: 8 bytes from N, 0 signals\n"
              "b.dbc: 1 message added\n+ 2 (0x2) B: 8 bytes from N, 0 signals\n");
}

TEST_F(DiffForGit, ShowsBothNamesOfARenamedFile) {
    Write("a.dbc", "BO_ 1 A: 8 N\nBO_ 2 B: 8 N\nBO_ 3 C: 8 N\n");
    Commit();
    EXPECT_EQ(Git("mv a.dbc 'new name.dbc'"), 0);
    EXPECT_EQ(Git("diff --cached -M"), 0);
    EXPECT_EQ(printed, "a.dbc -> new name.dbc: equal in meaning\n");
    Write("new name.dbc", "BO_ 1 A: 8 N\nBO_ 2 B: 8 N\nBO_ 3 C: 1 N\n");
    EXPECT_EQ(Git("add -A && git diff --cached -M"), 0);
    EXPECT_EQ(printed,
              "a.dbc -> new name.dbc: 1 message changed\n~ 3 (0x3) C\n    ~ size: 8 -> 1\n");
}

TEST_F(DiffForGit, ReportsFilesOfWhichOnlyTheTextDiffers) {
    Write("a.dbc", "VERSION \"2\"\n\nBO_ 1 A: 8 N\n");
    EXPECT_EQ(Git("diff"), 0);
    EXPECT_EQ(printed, "a.dbc: equal in meaning\n");
}

TEST_F(DiffForGit, ReportsFilesThatAreNotMerged) {
    ASSERT_EQ(Git("checkout -q -b other"), 0);
    Write("a.dbc", "BO_ 1 A: 4 N\n");
    Commit();
    ASSERT_EQ(Git("checkout -q - && git checkout -q -b third HEAD"), 0);
    Write("a.dbc", "BO_ 1 A: 2 N\n");
    Commit();
    EXPECT_NE(Git("merge -q other"), 0);
    EXPECT_EQ(Git("diff --cached"), 0);
    EXPECT_EQ(printed, "a.dbc: not merged\n");
}

TEST_F(DiffForGit, TakesNamesThatLookLikeOptions) {
    Write("--json.dbc", "BO_ 2 B: 8 N\n");
    EXPECT_EQ(Git("add -A && git diff --cached"), 0);
    EXPECT_EQ(printed, "--json.dbc: 1 message added\n+ 2 (0x2) B: 8 bytes from N, 0 signals\n");
}

TEST_F(DiffForGit, EndsTheDiffWhereAFileIsNoDbcFile) {
    Write("a.dbc", "no statement\n");
    EXPECT_NE(Git("diff"), 0);
    EXPECT_TRUE(printed.starts_with(
        "vexil-dbc: cannot read 'a.dbc': it has no statement, so it is not a DBC file\n"))
        << printed;
}

}  // namespace
}  // namespace vexil::test
