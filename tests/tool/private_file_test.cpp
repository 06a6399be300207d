// PrivateFile: copies under paths that the library takes.
// SPDX-License-Identifier: MIT
#include "file/private_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "support/files.h"

namespace vexil::tool {
namespace {

namespace fs = std::filesystem;

TEST(IsPathForLibrary, TakesAsciiOfAtMost259Bytes) {
    EXPECT_TRUE(IsPathForLibrary("a.dbc"));
    EXPECT_TRUE(IsPathForLibrary(std::string(259, 'a')));
    EXPECT_FALSE(IsPathForLibrary(std::string(260, 'a')));
    EXPECT_FALSE(IsPathForLibrary(""));
    EXPECT_FALSE(IsPathForLibrary("\xFF"));
}

class PrivateFileTest : public testing::Test {
  protected:
    PrivateFileTest() { setenv("TMPDIR", folder.File("").c_str(), 1); }
    ~PrivateFileTest() override {
        before.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", before.c_str(), 1);
    }

    static std::string Setting() {
        const char* const value = std::getenv("TMPDIR");
        return value == nullptr ? "" : value;
    }

    std::string before = Setting();
    test::TempFolder folder;
};

TEST_F(PrivateFileTest, HoldsTheBytesWhileItLives) {
    std::string path;
    {
        PrivateFile file;
        ASSERT_EQ(file.Make("text"), std::error_code());
        path = file.Path();
        EXPECT_TRUE(path.starts_with(folder.File("")));
        EXPECT_EQ(test::ReadBytes(path), "text");
    }
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(fs::is_empty(folder.File("")));
}

TEST_F(PrivateFileTest, IsForItsUserAlone) {
    PrivateFile file;
    ASSERT_EQ(file.Make("text"), std::error_code());
    struct stat status {};
    ASSERT_EQ(stat(file.Path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
}

TEST_F(PrivateFileTest, ReadsWhatWasWrittenToItsPath) {
    PrivateFile file;
    ASSERT_EQ(file.Make("a longer text"), std::error_code());
    test::WriteBytes(file.Path(), "written");
    std::string bytes;
    EXPECT_EQ(file.Read(bytes), std::error_code());
    EXPECT_EQ(bytes, "written");
}

TEST_F(PrivateFileTest, IsElsewhereWhereTheFolderIsMissing) {
    setenv("TMPDIR", folder.File("none").c_str(), 1);
    PrivateFile file;
    ASSERT_EQ(file.Make("text"), std::error_code());
    EXPECT_TRUE(file.Path().starts_with("/tmp/"));
}

TEST_F(PrivateFileTest, IsElsewhereWhereThePathIsNotForTheLibrary) {
    const std::string deep = folder.File(std::string(250, 'd'));
    fs::create_directory(deep);
    setenv("TMPDIR", deep.c_str(), 1);
    PrivateFile file;
    ASSERT_EQ(file.Make("text"), std::error_code());
    EXPECT_TRUE(file.Path().starts_with("/tmp/"));
    EXPECT_TRUE(fs::is_empty(deep));
}

}  // namespace
}  // namespace vexil::tool
