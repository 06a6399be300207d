// Tests of paths that lead to something else than a file, or nowhere: each ends with a code.
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include "api/api_test.h"
#include "faults/resources.h"

namespace vexil::faults {
namespace {

namespace fs = std::filesystem;
using test::Outcome;
using test::Success;

constexpr Outcome NotOpened{0, StateOpenFailed};
constexpr Outcome StreamError{0, StateStreamError};

constexpr const char* Text = "BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" R\n";

// Runs work in a child process, which may block or lose its rights. The child ends with what work
// returns, and in any case with its owner or after a while.
class Child {
  public:
    explicit Child(const std::function<int()>& work) : id(fork()) {
        if (id == 0) {
            alarm(30);
            _exit(work());
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() {
        if (id > 0) {
            kill(id, SIGKILL);
            Wait();
        }
    }

    // Returns what work returned, or -1 when the child ended otherwise.
    int Wait() {
        int status = 0;
        const bool hasEnded = id > 0 && waitpid(id, &status, 0) == id && WIFEXITED(status);
        id = -1;
        return hasEnded ? WEXITSTATUS(status) : -1;
    }

  private:
    pid_t id;
};

class HostilePathTest : public test::ApiTest {
  protected:
    HostilePathTest() { AppendMessage({.id = 7, .longName = "M"}); }
    ~HostilePathTest() override {
        EXPECT_EQ(OpenDescriptors(), descriptors);
        VexilClearData();
    }

    // A read that fails leaves an empty database.
    void ExpectNotRead(const std::string& name, const Outcome& outcome) {
        AppendMessage({.id = 7, .longName = "M"});
        EXPECT_EQ(Read(name), outcome) << name;
        ExpectEmptyDatabase();
    }

    // A write that fails leaves the database.
    void ExpectNotWritten(const std::string& name, const Outcome& outcome) {
        VexilClearData();
        AppendMessage({.id = 7, .longName = "M"});
        EXPECT_EQ(Write(name), outcome) << name;
        EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    }

    std::ptrdiff_t descriptors = OpenDescriptors();
};

// -- Links ------------------------------------------------------------------------------------

TEST_F(HostilePathTest, CircularLinkIsNotOpened) {
    fs::create_symlink("other.dbc", folder.File("one.dbc"));
    fs::create_symlink("one.dbc", folder.File("other.dbc"));
    fs::create_symlink("itself.dbc", folder.File("itself.dbc"));
    for (const char* const name : {"one.dbc", "other.dbc", "itself.dbc", "itself.dbc/x"}) {
        ExpectNotRead(folder.File(name), NotOpened);
        ExpectNotWritten(folder.File(name), NotOpened);
    }
}

TEST_F(HostilePathTest, DanglingLinkIsNotReadButItsTargetIsWritten) {
    const std::string link = folder.File("link.dbc");
    fs::create_symlink("target.dbc", link);
    ExpectNotRead(link, NotOpened);
    VexilClearData();
    AppendMessage({.id = 7, .longName = "M"});
    EXPECT_EQ(Write(link), Success);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_TRUE(fs::is_regular_file(folder.File("target.dbc")));
    EXPECT_EQ(Read(link), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);

    fs::remove(link);
    fs::create_symlink("missing/target.dbc", link);
    ExpectNotWritten(link, NotOpened);
}

// -- Rights -----------------------------------------------------------------------------------

// In a child process, since a process cannot regain dropped privileges.
TEST_F(HostilePathTest, FileWithoutPermissionIsNotOpened) {
    const std::string file = folder.File("file.dbc");
    const std::string inside = folder.File("closed/file.dbc");
    test::WriteBytes(file, Text);
    fs::create_directory(folder.File("closed"));
    test::WriteBytes(inside, Text);
    fs::permissions(file, fs::perms::none);
    fs::permissions(folder.File("closed"), fs::perms::none);
    fs::permissions(folder.File(""), fs::perms::owner_all | fs::perms::others_exec);

    constexpr int NoSuchRight = 77;
    constexpr uid_t Nobody = 65534;
    Child child([&] {
        if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) {
            return NoSuchRight;
        }
        const bool isRefused = Write(file) == NotOpened && Write(inside) == NotOpened &&
                               VexilGetNumCanMessages() == 1 && Read(file) == NotOpened &&
                               Read(inside) == NotOpened && VexilGetNumCanMessages() == 0;
        return isRefused ? 0 : 1;
    });
    const int result = child.Wait();
    fs::permissions(folder.File("closed"), fs::perms::owner_all);
    fs::permissions(file, fs::perms::owner_all);
    if (result == NoSuchRight) {
        GTEST_SKIP() << "root cannot become somebody else here";
    }
    EXPECT_EQ(result, 0);
    EXPECT_EQ(test::ReadBytes(file), Text);
}

// -- Pipes ------------------------------------------------------------------------------------

// Opening a pipe waits for its other end, as everywhere; what comes through it is a file.
TEST_F(HostilePathTest, PipeIsReadUntilItsWriterCloses) {
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string bytes : {"", "BO_ 1 A: 8 N", Text}) {
        Child writer([&] {
            const int end = open(pipe.c_str(), O_WRONLY);
            return end >= 0 && write(end, bytes.data(), bytes.size()) ==
                                   static_cast<ssize_t>(bytes.size())
                       ? 0
                       : 1;
        });
        ASSERT_EQ(Read(pipe), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), bytes.empty() ? 0U : 1U);
        EXPECT_EQ(writer.Wait(), 0);
    }
}

TEST_F(HostilePathTest, PipeIsWritten) {
    const std::string pipe = folder.File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(Write(path), Success);
    const std::string whole = test::ReadBytes(path);
    const int end = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(end, 0);
    EXPECT_EQ(Write(pipe), Success);
    std::string received(whole.size() + 1, '\0');
    const ssize_t size = read(end, received.data(), received.size());
    close(end);
    ASSERT_EQ(size, static_cast<ssize_t>(whole.size()));
    EXPECT_EQ(received.substr(0, whole.size()), whole);
}

// -- Devices ----------------------------------------------------------------------------------

TEST_F(HostilePathTest, DevicesAreReadAndWritten) {
    EXPECT_EQ(Write("/dev/null"), Success);
    EXPECT_EQ(Read("/dev/null"), Success);
    ExpectEmptyDatabase();
    // Its first page is mapped nowhere.
    ExpectNotRead("/proc/self/mem", StreamError);
    ExpectNotRead(folder.File(""), StreamError);
}

// -- Names ------------------------------------------------------------------------------------

TEST_F(HostilePathTest, NameMayHave255Bytes) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.File(""));
    const std::string longest(255, 'n');
    EXPECT_EQ(Write(longest), Success);
    EXPECT_TRUE(fs::exists(longest));
    EXPECT_EQ(Read(longest), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    for (const std::size_t size : {256U, 259U}) {
        const std::string tooLong(size, 'n');
        ExpectNotRead(tooLong, NotOpened);
        ExpectNotWritten(tooLong, NotOpened);
    }
    fs::current_path(before);
}

}  // namespace
}  // namespace vexil::faults
