// Files that another process has open: the library shares its files fully, and fails only if the
// other process denies sharing.
// SPDX-License-Identifier: MIT
#include <cstdint>
#include <string>
#include <thread>

#include "windows/windows_test.h"

namespace vexil::test {
namespace {

class Sharing : public ApiTest {
  protected:
    File OpenElsewhere(DWORD access, DWORD sharing) const {
        File file = OpenFile(Utf8Path(path).wstring(), access, sharing, OPEN_EXISTING);
        EXPECT_TRUE(file);
        return file;
    }
    // Returns how many handles a child process inherits.
    static std::size_t InheritedHandles() {
        std::size_t count = 0;
        for (std::uintptr_t value = 4; value < 0x4000; value += 4) {
            DWORD flags = 0;
            const auto handle = reinterpret_cast<HANDLE>(value);
            if (GetHandleInformation(handle, &flags) && (flags & HANDLE_FLAG_INHERIT) != 0) {
                ++count;
            }
        }
        return count;
    }
    void SetUp() override { WriteBytes(path, "BO_ 1 A: 8 N\n"); }
};

TEST_F(Sharing, ReadsAFileThatIsBeingWritten) {
    const File writer = OpenElsewhere(GENERIC_WRITE, FullSharing);
    EXPECT_EQ(Read(path), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(Sharing, WritesAFileThatIsBeingReadOrWritten) {
    for (const DWORD access : {DWORD{GENERIC_READ}, DWORD{GENERIC_WRITE}}) {
        const File other = OpenElsewhere(access, FullSharing);
        VexilClearData();
        AppendMessage({.id = 2});
        EXPECT_EQ(Write(path), Success);
    }
}

TEST_F(Sharing, FailsWhenAnotherProcessDeniesSharing) {
    AppendMessage({.id = 2});
    {
        const File reader = OpenElsewhere(GENERIC_READ, FILE_SHARE_READ);
        EXPECT_EQ(Write(path), (Outcome{0, StateOpenFailed}));
        EXPECT_EQ(Read(path), Success);
    }
    const File only = OpenElsewhere(GENERIC_READ, 0);
    EXPECT_EQ(Read(path), (Outcome{0, StateOpenFailed}));
}

TEST_F(Sharing, LeavesNoFileOpenAfterACall) {
    EXPECT_EQ(Read(path), Success);
    EXPECT_TRUE(OpenElsewhere(GENERIC_WRITE, 0));
    EXPECT_EQ(Write(path), Success);
    EXPECT_TRUE(OpenElsewhere(GENERIC_WRITE, 0));
}

// Reading a pipe blocks, so the file of the library is open while the program starts.
TEST_F(Sharing, ProgramsThatTheHostStartsInheritNoFile) {
    const std::string pipe = "\\\\.\\pipe\\vexil64-" + std::to_string(GetCurrentProcessId());
    File writer(
        CreateNamedPipeA(pipe.c_str(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE, 1, 0, 0, 0, nullptr));
    ASSERT_NE(writer.get(), INVALID_HANDLE_VALUE);
    const std::size_t before = InheritedHandles();
    Outcome outcome;
    std::thread reader([&] { outcome = Read(pipe); });
    EXPECT_TRUE(ConnectNamedPipe(writer.get(), nullptr) || GetLastError() == ERROR_PIPE_CONNECTED);
    EXPECT_EQ(InheritedHandles(), before);
    writer.reset();
    reader.join();
    EXPECT_EQ(outcome, Success);
}

}  // namespace
}  // namespace vexil::test
