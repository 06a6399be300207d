// Tests of VexilReadDbcFile: its result and code, and what is in the database then.
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "api/api_test.h"

namespace vexil::test {
namespace {

using namespace std::string_literals;

const char* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});

class VexilReadDbcFileTest : public ApiTest {
  protected:
    // Leaves messages, errors and info in the database, for a read to take away.
    void Fill() {
        ASSERT_EQ(ReadText("BO_ x C: 8 N\nBO_ 1 A: 8 N\n"), Success);
        AppendMessage({.id = 2});
        SetInfo({ProtocolJ1939, BusCanFd});
        std::filesystem::remove(path);
    }

    // A failure to open empties the database, but for the bus type.
    void ExpectRefusal(const char* name, std::uint32_t size, std::uint32_t code) {
        Fill();
        EXPECT_EQ(Read(name, size), (Outcome{0, code}));
        ExpectEmptyDatabase();
        EXPECT_EQ(Info().busType, BusCanFd);
    }
};

// -- Files that are read ----------------------------------------------------------------------

TEST_F(VexilReadDbcFileTest, ReadsAFile) {
    EXPECT_EQ(ReadText("VERSION \"\"\n\n"
                       "BU_: ECU1 ABS\n\n"
                       "BO_ 291 Engine: 8 ECU1\n"
                       " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n\n"
                       "CM_ BO_ 291 \"Main data\";\n"
                       "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 65535;\n"
                       "BA_DEF_DEF_ \"GenMsgCycleTime\" 0;\n"
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

TEST_F(VexilReadDbcFileTest, ReadsFilesWithoutAStatement) {
    for (const std::string bytes : {"", "\n", " \n\t\r\n", "no keyword here\n", "\xff\xfe\0\0"}) {
        Fill();
        EXPECT_EQ(ReadText(bytes), Success) << testing::PrintToString(bytes);
        ExpectEmptyDatabase();
        EXPECT_EQ(Info().busType, BusCanFd);
    }
}

TEST_F(VexilReadDbcFileTest, ReadsAFileOfBadStatements) {
    EXPECT_EQ(ReadText("BO_ x A: 8 N\nBO_ 1 A: 8 N\nSG_ S\nVAL_ 1\nBA_ x;\nCM_ BO_ 9 \"x\";\n"),
              Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    EXPECT_EQ(VexilGetNumCanErrors(), 2U);
}

TEST_F(VexilReadDbcFileTest, ReadsAFileThatIsNotUtf8) {
    EXPECT_EQ(ReadText("BO_ 1 T\xfcr: 8 N\xff\n"), Success);
    ExpectMessage(0, {.id = 1, .name = "T_r", .dlc = 8, .longName = "T_r", .transmitter = "N_"});
}

TEST_F(VexilReadDbcFileTest, ReadsTheLastStatementWithoutALineEnd) {
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\nBO_ 2 B: 8 N"), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 2U);
}

TEST_F(VexilReadDbcFileTest, ReadsTheSameWithCarriageReturns) {
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\r\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" R\r\n"), Success);
    ExpectMessage(
        0, {.id = 1, .name = "A", .dlc = 8, .longName = "A", .transmitter = "N", .signalCount = 1});
    ExpectSignal(0, 0,
                 {.name = "S",
                  .longName = "S",
                  .receiverList = "R",
                  .bitLength = 8,
                  .factor = 1,
                  .maximum = 1});
}

TEST_F(VexilReadDbcFileTest, ReplacesWhatWasRead) {
    Fill();
    EXPECT_EQ(ReadText("BO_ 7 G: 1 N\n"), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
    ExpectMessage(0, {.id = 7, .name = "G", .dlc = 1, .longName = "G", .transmitter = "N"});
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolPlainCan, BusCanFd}));
}

TEST_F(VexilReadDbcFileTest, ForgetsTheAttributesOfTheFileBefore) {
    EXPECT_EQ(ReadText("BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n"
                       "BA_DEF_DEF_ \"GenMsgCycleTime\" 5;\nBO_ 1 A: 8 N\n"),
              Success);
    ExpectMessage(
        0, {.id = 1, .name = "A", .dlc = 8, .longName = "A", .transmitter = "N", .cycleTime = 5});
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\nBA_ \"GenMsgCycleTime\" BO_ 1 7;\n"), Success);
    ExpectMessage(0, {.id = 1, .name = "A", .dlc = 8, .longName = "A", .transmitter = "N"});
}

// Both files have the same layout, so that the second one may get the memory of the first.
TEST_F(VexilReadDbcFileTest, ForgetsTheDescriptionsOfTheFileBefore) {
    constexpr std::uint32_t SignalTotal = 5;
    const auto read = [&](const std::string& pairs) {
        std::string text = "BO_ 1 M: 8 N\n";
        for (const char name : {'A', 'B', 'C', 'D', 'E'}) {
            text += std::string(" SG_ ") + name + " : 0|8@1+ (1,0) [0|1] \"\" R\n";
        }
        for (const char name : {'A', 'B', 'C', 'D', 'E'}) {
            text += std::string("VAL_ 1 ") + name + pairs;
        }
        EXPECT_EQ(ReadText(text), Success);
    };
    for (int round = 0; round < 2; ++round) {
        read(" 1 \"four\" ;\n");
        for (std::uint32_t signal = 0; signal < SignalTotal; ++signal) {
            EXPECT_EQ(EnumCount(0, signal), 1U);
            ExpectEnum(0, signal, 0, {1, "four"});
        }
        read(" 2 \"\" 3 \"\";\n");
        for (std::uint32_t signal = SignalTotal; signal-- > 0;) {
            EXPECT_EQ(EnumCount(0, signal), 2U);
            ExpectEnum(0, signal, 0, {2, ""});
            ExpectEnum(0, signal, 1, {3, ""});
        }
    }
}

// A comment finds the messages of its own file, not those of the file before.
TEST_F(VexilReadDbcFileTest, ForgetsTheIdsOfTheFileBefore) {
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\n"), Success);
    EXPECT_EQ(ReadText("CM_ BO_ 1 \"early\";\nBO_ 1 A: 8 N\n"), Success);
    ExpectMessage(0, {.id = 1, .name = "A", .dlc = 8, .longName = "A", .transmitter = "N"});
}

TEST_F(VexilReadDbcFileTest, SetsTheInfoFromTheFile) {
    EXPECT_EQ(ReadText("BA_DEF_ \"BusType\" STRING ;\nBA_DEF_DEF_ \"BusType\" \"CAN FD\";\n"
                       "BA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" 1;\n"),
              Success);
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolJ1939, BusCanFd}));
    EXPECT_EQ(ReadText("BA_DEF_ \"BusType\" STRING ;\nBA_DEF_DEF_ \"BusType\" \"\";\n"), Success);
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolPlainCan, BusClassicCan}));
}

// -- Files that are not -----------------------------------------------------------------------

TEST_F(VexilReadDbcFileTest, FailsOnAFileThatIsNotThere) {
    ExpectRefusal(path.c_str(), SizeOf(path), StateOpenFailed);
    const std::string nested = folder.File("missing/net.dbc");
    ExpectRefusal(nested.c_str(), SizeOf(nested), StateOpenFailed);
}

TEST_F(VexilReadDbcFileTest, RefusesAnEmptyPath) {
    ExpectRefusal("", 1, StatePathEmpty);
    ExpectRefusal("\0net.dbc", 9, StatePathEmpty);
    ExpectRefusal("net.dbc", 0, StatePathEmpty);
    ExpectRefusal(notAPath, 0, StatePathEmpty);
    ExpectRefusal(nullptr, 0, StatePathEmpty);
    ExpectRefusal(nullptr, 260, StatePathEmpty);
}

TEST_F(VexilReadDbcFileTest, RefusesAPathThatIsNotUtf8) {
    ExpectRefusal(
        "\x80"
        "abc",
        5, StatePathInvalid);
    ExpectRefusal(
        "abc\xff"
        "def",
        8, StatePathInvalid);
    ExpectRefusal(
        "abc\xed\xa0\x80"
        "def",
        10, StatePathInvalid);
    ExpectRefusal("a", 1, StatePathInvalid);
}

TEST_F(VexilReadDbcFileTest, RefusesAPathBufferOf261Bytes) {
    ExpectRefusal(path.c_str(), 261, StatePathTooLong);
    ExpectRefusal(nullptr, 261, StatePathTooLong);
    ExpectRefusal(notAPath, 261, StatePathTooLong);
    ExpectRefusal(notAPath, 0xFFFFFFFFU, StatePathTooLong);
}

// A folder opens here, but gives no line.
TEST_F(VexilReadDbcFileTest, FailsOnAFolder) {
    Fill();
    EXPECT_EQ(Read(folder.File("")), (Outcome{0, StateStreamError}));
    ExpectEmptyDatabase();
    EXPECT_EQ(Info().busType, BusCanFd);
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\n"), Success);
}

// -- The size of the path buffer --------------------------------------------------------------

TEST_F(VexilReadDbcFileTest, TakesABufferOf260Bytes) {
    WriteBytes(path, "BO_ 1 A: 8 N\n");
    std::string buffer = path + std::string(260 - path.size(), '\0');
    EXPECT_EQ(Read(buffer.data(), 260), Success);
    // What stands behind the NUL is not looked at.
    buffer.replace(path.size() + 1, std::string::npos, 260 - path.size() - 1, '\xff');
    EXPECT_EQ(Read(buffer.data(), 260), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(VexilReadDbcFileTest, TakesAPathOf259Bytes) {
    WriteBytes(path, "BO_ 1 A: 8 N\n");
    const std::string name = "/net.dbc";
    std::string longPath = path.substr(0, path.size() - name.size());
    longPath += std::string(259 - path.size(), '/') + name;
    ASSERT_EQ(longPath.size(), 259U);
    EXPECT_EQ(Read(longPath.c_str(), 260), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(VexilReadDbcFileTest, LosesTheLastCharacterOfAPathGivenByItsBareLength) {
    const std::string shorter = path.substr(0, path.size() - 1);
    WriteBytes(path, "BO_ 1 A: 8 N\n");
    EXPECT_EQ(Read(path.c_str(), SizeOf(path) - 1), (Outcome{0, StateOpenFailed}));
    WriteBytes(shorter, "BO_ 2 B: 8 N\n");
    EXPECT_EQ(Read(path.c_str(), SizeOf(path) - 1), Success);
    ExpectMessage(0, {.id = 2, .name = "B", .dlc = 8, .longName = "B", .transmitter = "N"});
}

TEST_F(VexilReadDbcFileTest, TakesAPathInUtf8) {
    path = folder.File("caf\xc3\xa9 \xf0\x9f\x9a\x97.dbc");
    EXPECT_EQ(ReadText("BO_ 1 A: 8 N\n"), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(VexilReadDbcFileTest, DropsACharacterCutOffAtTheEndOfThePath) {
    WriteBytes(path, "BO_ 1 A: 8 N\n");
    EXPECT_EQ(Read(path + "\xe2\x82"), Success);
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
}

TEST_F(VexilReadDbcFileTest, LeavesTheFileAsItWas) {
    const std::string bytes = "\xff BO_ 1 A: 8 N\r\n\n\0x"s;
    EXPECT_EQ(ReadText(bytes), Success);
    EXPECT_EQ(ReadBytes(path), bytes);
}

}  // namespace
}  // namespace vexil::test
