// Tests of VexilReadDbcFile and VexilWriteDbcFile: arguments, results and codes. tests/read and
// tests/write test what is read and written, tests/text and tests/faults paths and failing files.
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "api/api_test.h"

namespace vexil::test {
namespace {

class FileFunctionsTest : public ApiTest {
  protected:
    // Expects that neither a read nor a write opens the file: a read empties the database but for
    // the bus type, a write changes nothing, not even duplicate names.
    static void ExpectRefusal(const char* name, std::uint32_t size, std::uint32_t code) {
        VexilClearData();
        AppendMessageOf(1, {"A", "A"});
        SetInfo({ProtocolJ1939, BusCanFd});
        EXPECT_EQ(Write(name, size), (Outcome{0, code}));
        EXPECT_EQ(NamesOf(0), (Lines{"A", "A"}));
        EXPECT_EQ(Info(), (DatabaseInfo{ProtocolJ1939, BusCanFd}));
        EXPECT_EQ(Read(name, size), (Outcome{0, code}));
        ExpectEmptyDatabase();
        EXPECT_EQ(Info(), (DatabaseInfo{ProtocolPlainCan, BusCanFd}));
    }
};

TEST_F(FileFunctionsTest, ReadFillsTheDatabaseFromTheFile) {
    EXPECT_EQ(ReadText("VERSION \"\"\n\n"
                       "BU_: ECU1 ABS\n\n"
                       "BO_ 291 Engine: 8 ECU1\n"
                       " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n\n"
                       "CM_ BO_ 291 \"Main data\";\n"
                       "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
                       "BA_ \"GenMsgCycleTime\" BO_ 291 100;\n"
                       "VAL_ 291 Speed 1 \"On\" 0 \"Off\" ;\n"),
              Success);
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    ExpectMessage(0, {.id = 291,
                      .name = "Engine",
                      .dlc = 8,
                      .longName = "Engine",
                      .transmitter = "ECU1",
                      .signalCount = 1,
                      .comment = "Main data",
                      .cycleTime = 100});
    ExpectSignal(0, 0,
                 {.name = "Speed",
                  .longName = "Speed",
                  .unit = "km/h",
                  .receiverList = "ABS",
                  .bitLength = 16,
                  .factor = 0.1,
                  .maximum = 6553.5,
                  .enumCount = 2,
                  .unitUtf8 = "km/h"});
    ExpectEnum(0, 0, 0, {0, "Off"});
    ExpectEnum(0, 0, 1, {1, "On"});
}

TEST_F(FileFunctionsTest, WriteUsesTheGivenOrder) {
    const std::string b = "BO_ 5 b: 0 Marrowby\n\n";
    const std::string c = "BO_ 100 c: 0 Marrowby\n\n";
    const std::string a = "BO_ 7 a: 0 Marrowby\n\n";
    AppendMessage({.id = 5, .longName = "b"});
    AppendMessage({.id = 100, .longName = "c"});
    AppendMessage({.id = 7, .longName = "a"});
    for (const auto& [order, messages] : {std::pair{std::uint32_t{OrderByIdDescending}, c + a + b},
                                          std::pair{std::uint32_t{OrderByNameAscending}, a + b + c},
                                          std::pair{std::uint32_t{OrderAsStored}, b + c + a}}) {
        EXPECT_EQ(Write(path, order), Success);
        const std::string text = ReadTextFile(path);
        EXPECT_EQ(text.substr(text.find("BO_ ", text.find("BU_ :"))), messages) << order;
    }
}

TEST_F(FileFunctionsTest, BothTakeABufferOf260Bytes) {
    AppendMessage({.id = 1, .longName = "A"});
    std::string buffer = path + std::string(260 - path.size(), '\0');
    EXPECT_EQ(Write(buffer.data(), 260), Success);
    // Nothing after the NUL is read.
    buffer.replace(path.size() + 1, std::string::npos, 260 - path.size() - 1, '\xff');
    EXPECT_EQ(Read(buffer.data(), 260), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(FileFunctionsTest, BothRefuseTheSamePaths) {
    const char* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});
    const std::string missing = folder.File("missing/net.dbc");
    ExpectRefusal(path.c_str(), 261, StatePathTooLong);
    ExpectRefusal(nullptr, 261, StatePathTooLong);
    ExpectRefusal(notAPath, 0xFFFFFFFFU, StatePathTooLong);
    ExpectRefusal("a", 1, StatePathInvalid);
    ExpectRefusal("\x80/net.dbc", 10, StatePathInvalid);
    ExpectRefusal("", 1, StatePathEmpty);
    ExpectRefusal(notAPath, 0, StatePathEmpty);
    ExpectRefusal(nullptr, 260, StatePathEmpty);
    ExpectRefusal(missing.c_str(), SizeOf(missing), StateOpenFailed);
    EXPECT_FALSE(std::filesystem::exists(path));
}

}  // namespace
}  // namespace vexil::test
