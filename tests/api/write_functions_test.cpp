// Tests of VexilWriteDbcFile: the file, the orders, the names that it makes unique, and paths that
// are refused. Its sections are tested in tests/write, failures on the way in
// failing_write_test.cpp.
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <sstream>
#include <vector>

#include "api/api_test.h"

namespace vexil::test {
namespace {

const char* const notAPath = reinterpret_cast<const char*>(std::uintptr_t{1});

class VexilWriteDbcFileTest : public ApiTest {
  protected:
    // The lines of the file that begin with this.
    Lines LinesWith(const std::string& start) {
        Lines lines;
        std::istringstream text(ReadTextFile(path));
        for (std::string line; std::getline(text, line);) {
            if (line.starts_with(start)) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    void ExpectRefusal(const char* name, std::uint32_t size, std::uint32_t code) {
        VexilClearData();
        AppendMessageOf(1, {"A", "A"});
        EXPECT_EQ(Write(name, size), (Outcome{0, code}));
        // The names are made unique behind the open alone.
        EXPECT_EQ(NamesOf(0), (Lines{"A", "A"}));
    }
};

// -- A file that is written -------------------------------------------------------------------

TEST_F(VexilWriteDbcFileTest, WritesAWholeFile) {
    AppendMessage(
        {.id = 291, .dlc = 8, .longName = "Engine", .transmitter = "ECU1", .comment = "Main data"});
    AppendSignal(0, {.longName = "Speed",
                     .unit = "km/h",
                     .receiverList = "ABS",
                     .comment = "Vehicle speed",
                     .bitLength = 16,
                     .factor = 0.1,
                     .maximum = 6553.5});
    AppendEnum(0, 0, {1, "On"});
    AppendEnum(0, 0, {0, "Off"});
    AppendSignal(0, {.longName = "Temp",
                     .startBit = 16,
                     .bitLength = 32,
                     .valueType = ValueFloat32,
                     .factor = 1});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(ReadTextFile(path),
              "VERSION \"\"\n"
              "\n"
              "NS_ :\n"
              "    NS_DESC_\n"
              "    CM_\n"
              "    BA_DEF_\n"
              "    BA_\n"
              "    VAL_\n"
              "    CAT_DEF_\n"
              "    CAT_\n"
              "    FILTER\n"
              "    BA_DEF_DEF_\n"
              "    EV_DATA_\n"
              "    ENVVAR_DATA_\n"
              "    SGTYPE_\n"
              "    SGTYPE_VAL_\n"
              "    BA_DEF_SGTYPE_\n"
              "    BA_SGTYPE_\n"
              "    SIG_TYPE_REF_\n"
              "    VAL_TABLE_\n"
              "    SIG_GROUP_\n"
              "    SIG_VALTYPE_\n"
              "    SIGTYPE_VALTYPE_\n"
              "    BO_TX_BU_\n"
              "    BA_DEF_REL_\n"
              "    BA_REL_\n"
              "    BA_DEF_DEF_REL_\n"
              "    BU_SG_REL_\n"
              "    BU_EV_REL_\n"
              "    BU_BO_REL_\n"
              "    SG_MUL_VAL_\n"
              "\n"
              "BS_ :\n"
              "\n"
              "BU_ :  Marrowby ECU1 ABS\n"
              "\n"
              "BO_ 291 Engine: 8 ECU1\n"
              " SG_ Speed : 0|16@1+ (0.1,0) [0|6553.5] \"km/h\" ABS\n"
              " SG_ Temp : 16|32@1- (1,0) [0|0] \"\" Marrowby\n"
              "\n"
              "CM_ BO_ 291 \"Main data\";\n"
              "CM_ SG_ 291 Speed \"Vehicle speed\";\n"
              "VAL_ 291 Speed 0 \"Off\" 1 \"On\";\n"
              "SIG_VALTYPE_ 291 Temp : 1;\n");
}

TEST_F(VexilWriteDbcFileTest, ReplacesTheFileThatWasThere) {
    WriteBytes(path, std::string(100000, 'x'));
    AppendMessage({.id = 1});
    EXPECT_EQ(Write(path), Success);
    EXPECT_LT(ReadTextFile(path).size(), 2000U);
    EXPECT_TRUE(ReadTextFile(path).starts_with("VERSION \"\"\n"));
}

TEST_F(VexilWriteDbcFileTest, WritesTheSameAfterItWasRead) {
    AppendMessageOf(1, {"A", "A", "B"});
    EXPECT_EQ(Write(path), Success);
    const std::string first = ReadTextFile(path);
    EXPECT_EQ(Read(path), Success);
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(ReadTextFile(path), first);
}

// As docs/format.md says: each of the two comment lines reaches both messages.
TEST_F(VexilWriteDbcFileTest, DoublesTheCommentsOfTwoMessagesOfOneIdWithEachTrip) {
    AppendMessage({.id = 1, .longName = "A", .comment = "x"});
    AppendMessage({.id = 1, .longName = "B", .comment = "y"});
    std::string joined = "xy";
    for (int trip = 0; trip < 5; ++trip) {
        EXPECT_EQ(Write(path, OrderAsStored), Success);
        EXPECT_EQ(Read(path), Success);
        EXPECT_EQ(Write(path), Success);
        const std::string line = "CM_ BO_ 1 \"" + joined + "\";";
        EXPECT_EQ(LinesWith("CM_"), (Lines{line, line}));
        joined += joined;
    }
}

TEST_F(VexilWriteDbcFileTest, ChangesNothingInTheDatabaseButNamesOfSignals) {
    SetInfo({ProtocolJ1939, BusCanFd});
    AppendMessage({.id = 2, .longName = "T\xc3\xbcr", .comment = "\"x\""});
    AppendMessage({.id = 1, .longName = "M"});
    const SignalFields fields = {.name = "S_1",
                                 .longName = "S 1",
                                 .unit = "_C",
                                 .receiverList = "A,B",
                                 .multiplexType = 9,
                                 .startBit = 3,
                                 .bitLength = 200,
                                 .byteOrder = 7,
                                 .valueType = 8,
                                 .factor = 0.1,
                                 .minimum = 5,
                                 .maximum = 4,
                                 .unitUtf8 = "_C"};
    AppendSignal(0, fields);
    EXPECT_EQ(Write(path, OrderByIdDescending), Success);
    EXPECT_EQ(Write(path, OrderByNameAscending), Success);
    ExpectMessage(0, {.id = 2,
                      .name = "T_r",
                      .longName = "T\xc3\xbcr",
                      .signalCount = 1,
                      .comment = "\\\"x\\\""});
    ExpectMessage(1, {.id = 1, .name = "M", .longName = "M"});
    ExpectSignal(0, 0, fields);
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolJ1939, BusCanFd}));
}

// -- The orders -------------------------------------------------------------------------------

class OrderTest : public VexilWriteDbcFileTest {
  protected:
    void ExpectOrder(std::uint32_t order, const Lines& lines) {
        EXPECT_EQ(Write(path, order), Success);
        EXPECT_EQ(LinesWith("BO_ "), lines) << "order " << order;
    }
};

TEST_F(OrderTest, IsByIdByNameOrAsStored) {
    AppendMessage({.id = 5, .longName = "b"});
    AppendMessage({.id = 100, .longName = "c"});
    AppendMessage({.id = 7, .longName = "a"});
    const std::string b = "BO_ 5 b: 0 Marrowby";
    const std::string c = "BO_ 100 c: 0 Marrowby";
    const std::string a = "BO_ 7 a: 0 Marrowby";
    ExpectOrder(OrderByIdDescending, {c, a, b});
    ExpectOrder(OrderByNameAscending, {a, b, c});
    for (const std::uint32_t order : {2U, 3U, 7U, 0xFFFFFFFFU}) {
        ExpectOrder(order, {b, c, a});
    }
    ExpectMessage(0, {.id = 5, .name = "b", .longName = "b"});
    ExpectMessage(1, {.id = 100, .name = "c", .longName = "c"});
    ExpectMessage(2, {.id = 7, .name = "a", .longName = "a"});
}

TEST_F(OrderTest, ByIdIsThatOfUnsignedNumbers) {
    AppendMessage({.id = 1, .longName = "a"});
    AppendMessage({.id = 0x80000000U, .longName = "b"});
    AppendMessage({.id = 0x7FFFFFFFU, .longName = "c"});
    ExpectOrder(OrderByIdDescending, {"BO_ 2147483648 b: 0 Marrowby",
                                      "BO_ 2147483647 c: 0 Marrowby", "BO_ 1 a: 0 Marrowby"});
}

TEST_F(OrderTest, KeepsMessagesThatAreEqualAsStored) {
    AppendMessage({.id = 5, .dlc = 1, .longName = "a"});
    AppendMessage({.id = 6, .dlc = 2, .longName = "a"});
    AppendMessage({.id = 5, .dlc = 3, .longName = "a"});
    ExpectOrder(OrderByIdDescending,
                {"BO_ 6 a: 2 Marrowby", "BO_ 5 a: 1 Marrowby", "BO_ 5 a: 3 Marrowby"});
    ExpectOrder(OrderByNameAscending,
                {"BO_ 5 a: 1 Marrowby", "BO_ 6 a: 2 Marrowby", "BO_ 5 a: 3 Marrowby"});
}

TEST_F(OrderTest, ByNameIsThatOfTheBytesOfTheIdentifier) {
    AppendMessage({.id = 1, .longName = "a"});
    AppendMessage({.id = 2, .longName = "Abc"});
    AppendMessage({.id = 3, .longName = "Z"});
    AppendMessage({.id = 4, .longName = "Ab"});
    AppendMessage({.id = 5, .longName = "\xc3\xa9"});
    AppendMessage({.id = 6, .longName = "9"});
    ExpectOrder(OrderByNameAscending,
                {"BO_ 4 Ab: 0 Marrowby", "BO_ 2 Abc: 0 Marrowby", "BO_ 3 Z: 0 Marrowby",
                 "BO_ 5 _: 0 Marrowby", "BO_ 6 _: 0 Marrowby", "BO_ 1 a: 0 Marrowby"});
}

TEST_F(OrderTest, HoldsForEverySectionBehindTheNodes) {
    for (const std::uint32_t id : {1U, 2U}) {
        AppendMessage({.id = id, .longName = "M", .comment = "x"});
        AppendSignal(id - 1,
                     {.longName = "S", .comment = "y", .bitLength = 32, .valueType = ValueFloat32});
        AppendSignal(id - 1, {.longName = "T"});
        AppendEnum(id - 1, 1, {1, "On"});
    }
    EXPECT_EQ(Write(path, OrderByIdDescending), Success);
    EXPECT_EQ(LinesWith("CM_ "), (Lines{"CM_ BO_ 2 \"x\";", "CM_ SG_ 2 S \"y\";",
                                        "CM_ BO_ 1 \"x\";", "CM_ SG_ 1 S \"y\";"}));
    EXPECT_EQ(LinesWith("VAL_ "), (Lines{"VAL_ 2 T 1 \"On\";", "VAL_ 1 T 1 \"On\";"}));
    EXPECT_EQ(LinesWith("SIG_VALTYPE_ "),
              (Lines{"SIG_VALTYPE_ 2 S : 1;", "SIG_VALTYPE_ 1 S : 1;"}));
}

// -- Unique names -----------------------------------------------------------------------------

class UniqueNamesTest : public VexilWriteDbcFileTest {};

TEST_F(UniqueNamesTest, AreMadeInTheFileAndTheDatabaseForGood) {
    AppendMessageOf(1, {"A", "B", "A", "A"});
    EXPECT_EQ(Write(path), Success);
    const std::string first = ReadTextFile(path);
    EXPECT_EQ(NamesOf(0), (Lines{"A_0000", "B", "A_0001", "A_0002"}));
    EXPECT_EQ(LinesWith(" SG_ "), (Lines{" SG_ A_0000 : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                                         " SG_ B : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                                         " SG_ A_0001 : 0|0@1+ (0,0) [0|0] \"\" Marrowby",
                                         " SG_ A_0002 : 0|0@1+ (0,0) [0|0] \"\" Marrowby"}));
    ExpectSignal(0, 2, {.name = "A_0001", .longName = "A"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(ReadTextFile(path), first);
}

TEST_F(UniqueNamesTest, AreMadeWithinAMessageAlone) {
    AppendMessageOf(1, {"A", "B"});
    AppendMessageOf(1, {"B", "A"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(NamesOf(0), (Lines{"A", "B"}));
    EXPECT_EQ(NamesOf(1), (Lines{"B", "A"}));
}

TEST_F(UniqueNamesTest, AreExactInCase) {
    AppendMessageOf(1, {"a", "A", "A_", "A_0000"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(NamesOf(0), (Lines{"a", "A", "A_", "A_0000"}));
}

TEST_F(UniqueNamesTest, KeepTo32Characters) {
    for (const std::size_t size : {26U, 27U, 28U, 31U, 32U}) {
        VexilClearData();
        const std::string name(size, 'x');
        const std::string base = name.substr(0, 27);
        AppendMessageOf(1, {name, "y", name});
        EXPECT_EQ(Write(path), Success);
        EXPECT_EQ(NamesOf(0), (Lines{base + "_0000", "y", base + "_0001"})) << size;
    }
}

TEST_F(UniqueNamesTest, GiveTheNextNumberToASignalThatWasAppendedLater) {
    AppendMessageOf(1, {"A", "A"});
    EXPECT_EQ(Write(path), Success);
    AppendSignal(0, {.longName = "A"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(NamesOf(0), (Lines{"A_0000", "A_0001", "A_0002"}));
}

// Intentional: groups that are told apart by their ends alone meet when those are cut, and are
// one group from the next write on.
TEST_F(UniqueNamesTest, MayMeetInTheFirstWriteWhenTheyAreCut) {
    const std::string base(27, 'x');
    AppendMessageOf(1, {base + "B", base + "B", base + "C", base + "C"});
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(NamesOf(0), (Lines{base + "_0000", base + "_0001", base + "_0000", base + "_0001"}));
    EXPECT_EQ(Write(path), Success);
    EXPECT_EQ(NamesOf(0), (Lines{base + "_0000", base + "_0001", base + "_0002", base + "_0003"}));
}

// -- Files that are not opened ----------------------------------------------------------------

TEST_F(VexilWriteDbcFileTest, WritesNoFileOfAnEmptyDatabase) {
    WriteBytes(path, "old text");
    EXPECT_EQ(Write(path), (Outcome{0, StateClosed}));
    EXPECT_EQ(ReadTextFile(path), "old text");
    const std::string other = folder.File("other.dbc");
    EXPECT_EQ(Write(other), (Outcome{0, StateClosed}));
    EXPECT_FALSE(std::filesystem::exists(other));
}

TEST_F(VexilWriteDbcFileTest, LooksAtNoPathForAnEmptyDatabase) {
    EXPECT_EQ(Write(notAPath, 260), (Outcome{0, StateClosed}));
    EXPECT_EQ(Write(notAPath, 261), (Outcome{0, StateClosed}));
    EXPECT_EQ(Write(nullptr, 0), (Outcome{0, StateClosed}));
    EXPECT_EQ(Write("\x80"
                    "abc",
                    5),
              (Outcome{0, StateClosed}));
    EXPECT_EQ(Write(folder.File("missing/net.dbc")), (Outcome{0, StateClosed}));
}

TEST_F(VexilWriteDbcFileTest, RefusesPaths) {
    ExpectRefusal(path.c_str(), 261, StatePathTooLong);
    ExpectRefusal(notAPath, 261, StatePathTooLong);
    ExpectRefusal(notAPath, 0xFFFFFFFFU, StatePathTooLong);
    ExpectRefusal(
        "\x80"
        "abc",
        5, StatePathInvalid);
    ExpectRefusal("a", 1, StatePathInvalid);
    ExpectRefusal("", 1, StatePathEmpty);
    ExpectRefusal(notAPath, 0, StatePathEmpty);
    ExpectRefusal(nullptr, 0, StatePathEmpty);
    ExpectRefusal(nullptr, 260, StatePathEmpty);
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST_F(VexilWriteDbcFileTest, FailsWhereNoFileCanBeMade) {
    const std::string nested = folder.File("missing/net.dbc");
    ExpectRefusal(nested.c_str(), SizeOf(nested), StateOpenFailed);
    const std::string itself = folder.File("");
    ExpectRefusal(itself.c_str(), SizeOf(itself), StateOpenFailed);
    WriteBytes(path, "old text");
    const std::string below = path + "/net.dbc";
    ExpectRefusal(below.c_str(), SizeOf(below), StateOpenFailed);
    EXPECT_EQ(ReadTextFile(path), "old text");
}

TEST_F(VexilWriteDbcFileTest, TakesABufferOf260Bytes) {
    AppendMessage({.id = 1});
    const std::string buffer = path + std::string(260 - path.size(), '\0');
    EXPECT_EQ(Write(buffer.data(), 260), Success);
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(VexilWriteDbcFileTest, LosesTheLastCharacterOfAPathGivenByItsBareLength) {
    AppendMessage({.id = 1});
    EXPECT_EQ(Write(path.c_str(), SizeOf(path) - 1), Success);
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_TRUE(std::filesystem::exists(path.substr(0, path.size() - 1)));
}

}  // namespace
}  // namespace vexil::test
