// Files that somebody else has open at the same time: the library denies nobody anything, and is
// stopped only by who denies it.
// SPDX-License-Identifier: MIT
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

TEST_F(Sharing, IsStoppedByAnotherThatDeniesIt) {
    AppendMessage({.id = 2});
    {
        const File reader = OpenElsewhere(GENERIC_READ, FILE_SHARE_READ);
        EXPECT_EQ(Write(path), (Outcome{0, StateOpenFailed}));
        EXPECT_EQ(Read(path), Success);
    }
    const File only = OpenElsewhere(GENERIC_READ, 0);
    EXPECT_EQ(Read(path), (Outcome{0, StateOpenFailed}));
}

TEST_F(Sharing, LeavesNoFileOpenBehindACall) {
    EXPECT_EQ(Read(path), Success);
    EXPECT_TRUE(OpenElsewhere(GENERIC_WRITE, 0));
    EXPECT_EQ(Write(path), Success);
    EXPECT_TRUE(OpenElsewhere(GENERIC_WRITE, 0));
}

}  // namespace
}  // namespace vexil::test
