// The version resource of the library has the version of the project.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

namespace vexil::test {
namespace {

class VersionResource : public testing::Test {
  protected:
    void SetUp() override {
        DWORD ignored = 0;
        resource.resize(GetFileVersionInfoSizeA("vexil64.dll", &ignored));
        ASSERT_FALSE(resource.empty());
        ASSERT_TRUE(GetFileVersionInfoA("vexil64.dll", 0, static_cast<DWORD>(resource.size()),
                                        resource.data()));
    }

    void* Value(const std::string& name) {
        void* value = nullptr;
        UINT size = 0;
        EXPECT_TRUE(VerQueryValueA(resource.data(), name.c_str(), &value, &size)) << name;
        return value;
    }

    // Returns a text of the only language in the resource, or a message that there is none.
    std::string Text(const std::string& name) {
        const void* text = Value("\\StringFileInfo\\040904b0\\" + name);
        return text == nullptr ? "none" : static_cast<const char*>(text);
    }

    std::vector<char> resource;
};

TEST_F(VersionResource, HasTheVersionOfTheProjectAsNumbers) {
    const auto* info = static_cast<const VS_FIXEDFILEINFO*>(Value("\\"));
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(info->dwFileVersionMS, info->dwProductVersionMS);
    EXPECT_EQ(info->dwFileVersionLS, info->dwProductVersionLS);
    EXPECT_EQ(std::to_string(HIWORD(info->dwFileVersionMS)) + "." +
                  std::to_string(LOWORD(info->dwFileVersionMS)) + "." +
                  std::to_string(HIWORD(info->dwFileVersionLS)),
              VEXIL64_PROJECT_VERSION);
    EXPECT_EQ(LOWORD(info->dwFileVersionLS), 0);
    EXPECT_EQ(info->dwFileType, DWORD{VFT_DLL});
}

TEST_F(VersionResource, HasTheVersionOfTheProjectAsText) {
    EXPECT_EQ(Text("FileVersion"), VEXIL64_PROJECT_VERSION);
    EXPECT_EQ(Text("ProductVersion"), VEXIL64_PROJECT_VERSION);
    EXPECT_EQ(Text("OriginalFilename"), "vexil64.dll");
    EXPECT_EQ(Text("ProductName"), "vexil64");
}

}  // namespace
}  // namespace vexil::test
