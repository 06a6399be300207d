// Non-ASCII and long file names: a UTF-8 path, of the library or of the tool, opens the file with
// the corresponding UTF-16 name.
// SPDX-License-Identifier: MIT
#include <string>
#include <string_view>

#include "windows/windows_test.h"

namespace vexil::test {
namespace {

constexpr std::string_view OneMessage = "BO_ 291 Engine: 8 ECU1\n";

struct NameRow {
    std::string_view test;
    std::string_view utf8;
    std::wstring_view utf16;
};

void PrintTo(const NameRow& row, std::ostream* stream) {
    *stream << row.test;
}

class FileNames : public ApiTest, public testing::WithParamInterface<NameRow> {
  protected:
    std::wstring wideFolder = Utf8Path(folder.File("")).wstring();
    std::string utf8 = folder.File(GetParam().utf8);
    std::wstring utf16 = wideFolder + std::wstring(GetParam().utf16);

    void MakeFile() const {
        const File file = OpenFile(utf16, GENERIC_WRITE, 0, CREATE_NEW);
        ASSERT_TRUE(file);
        DWORD written = 0;
        ASSERT_TRUE(
            WriteFile(file.get(), OneMessage.data(), DWORD{OneMessage.size()}, &written, nullptr));
    }

    // Runs the tool with arguments and returns its exit code.
    static DWORD RunTool(const std::wstring& arguments) {
        std::wstring command = L"\"" VEXIL64_TOOL L"\" " + arguments;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process)) {
            return GetLastError();
        }
        const File thread(process.hThread);
        const File handle(process.hProcess);
        DWORD exitCode = 99;
        WaitForSingleObject(handle.get(), INFINITE);
        GetExitCodeProcess(handle.get(), &exitCode);
        return exitCode;
    }
};

TEST_P(FileNames, AreReadByTheirUtf8Form) {
    MakeFile();
    EXPECT_EQ(Read(utf8), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_P(FileNames, AreWrittenByTheirUtf8Form) {
    AppendMessage({.id = 1, .longName = "A"});
    EXPECT_EQ(Write(utf8), Success);
    WIN32_FIND_DATAW found{};
    HANDLE search = FindFirstFileW((wideFolder + L"*.dbc").c_str(), &found);
    ASSERT_NE(search, INVALID_HANDLE_VALUE);
    EXPECT_EQ(std::wstring_view(found.cFileName), GetParam().utf16);
    EXPECT_FALSE(FindNextFileW(search, &found));
    FindClose(search);
}

TEST_P(FileNames, ReachTheToolFromTheCommandLine) {
    MakeFile();
    EXPECT_EQ(RunTool(L"rewrite \"" + utf16 + L"\" \"" + utf16 + L".again\""), 0U);
    EXPECT_TRUE(Exists(utf16 + L".again"));
}

INSTANTIATE_TEST_SUITE_P(
    Each, FileNames,
    testing::Values(NameRow{"Ascii", "net.dbc", L"net.dbc"},
                    NameRow{"WithBlanks", " my  net .dbc", L" my  net .dbc"},
                    NameRow{"OfTwoBytes", "gr\xc3\xbcn.dbc", L"gr\u00fcn.dbc"},
                    NameRow{"OfThreeBytes", "\xe2\x82\xac \xe9\x9b\xbb.dbc", L"\u20ac \u96fb.dbc"},
                    NameRow{"OfASurrogatePair", "\xf0\x9f\x9a\x97.dbc", L"\U0001f697.dbc"},
                    NameRow{"OfEachKind", "a\xc3\xa9\xe2\x82\xac\xf0\x9f\x9a\x97z.dbc",
                            L"a\u00e9\u20ac\U0001f697z.dbc"}),
    [](const auto& row) { return std::string(row.param.test); });

class LongPaths : public ApiTest {
  protected:
    // A path of so many bytes in the folder, with a file name of one repeated character.
    std::string PathOf(std::size_t size, std::string_view character) const {
        std::string file = folder.File("");
        while (file.size() + character.size() + 4 <= size) {
            file += character;
        }
        file.resize(size - 4, 'x');
        return file + ".dbc";
    }
};

TEST_F(LongPaths, Of259BytesAreAccepted) {
    for (const char* const character : {"x", "\xe2\x82\xac"}) {
        const std::string file = PathOf(259, character);
        VexilClearData();
        AppendMessage({.id = 1, .longName = "A"});
        EXPECT_EQ(Write(file.c_str(), 260), Success);
        EXPECT_TRUE(Exists(Utf8Path(file).wstring()));
        EXPECT_EQ(Read(file.c_str(), 260), Success);
        EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    }
}

TEST_F(LongPaths, Of260BytesAreRefusedEvenIfTheyAreShortInUtf16) {
    for (const char* const character : {"x", "\xe2\x82\xac"}) {
        const std::string file = PathOf(260, character);
        VexilClearData();
        AppendMessage({.id = 1, .longName = "A"});
        EXPECT_EQ(Write(file.c_str(), 261), (Outcome{0, StatePathTooLong}));
        EXPECT_FALSE(Exists(Utf8Path(file).wstring()));
        EXPECT_EQ(Read(file.c_str(), 261), (Outcome{0, StatePathTooLong}));
    }
}

TEST_F(LongPaths, AcceptBothSlashes) {
    for (const char slash : {'/', '\\'}) {
        VexilClearData();
        AppendMessage({.id = 1, .longName = "A"});
        std::string file = path;
        for (char& character : file) {
            character = character == '/' || character == '\\' ? slash : character;
        }
        EXPECT_EQ(Write(file), Success) << file;
        EXPECT_EQ(Read(file), Success) << file;
    }
}

}  // namespace
}  // namespace vexil::test
