// Tests of the functions on the database as a whole: version, clearing, its info, its size.
// SPDX-License-Identifier: MIT
#include <limits>

#include "api/api_test.h"

namespace vexil::test {
namespace {

// Taken before any test runs, thus from the library as it was loaded.
const std::uint64_t messagesAtLoad = VexilGetNumCanMessages();
const std::uint64_t errorsAtLoad = VexilGetNumCanErrors();
const DatabaseInfo infoAtLoad = [] {
    DatabaseInfo info{77, 77};
    VexilGetDatabaseInfo(&info, sizeof info);
    return info;
}();

// Fills the database with info, messages and errors from a file.
class FrameFunctionsTest : public ApiTest {
  protected:
    void Fill() {
        ASSERT_EQ(ReadText("BA_DEF_ \"BusType\" STRING ;\n"
                           "BA_DEF_ \"IsNMEA\" INT 0 1;\n"
                           "BA_ \"BusType\" \"CAN FD\";\n"
                           "BA_ \"IsNMEA\" 1;\n"
                           "BO_ 1 A: 8 N\n"
                           "BO_ 2 B: 8 N\n"
                           "BO_ x C: 8 N\n"),
                  Success);
    }
};

TEST(Library, IsEmptyWhenLoaded) {
    EXPECT_EQ(messagesAtLoad, 0U);
    EXPECT_EQ(errorsAtLoad, 0U);
    EXPECT_EQ(infoAtLoad, (DatabaseInfo{0, 0}));
}

TEST(VexilGetLibraryVersion, Is133) {
    EXPECT_EQ(VexilGetLibraryVersion(), 1.33F);
}

// -- VexilClearData ---------------------------------------------------------------------------

TEST_F(FrameFunctionsTest, ClearDataEmptiesAllButTheBusType) {
    Fill();
    EXPECT_EQ(VexilGetNumCanMessages(), 2U);
    EXPECT_EQ(VexilGetNumCanErrors(), 1U);
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolNmea, BusCanFd}));
    VexilClearData();
    EXPECT_EQ(VexilGetNumCanMessages(), 0U);
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
    EXPECT_EQ(Info(), (DatabaseInfo{ProtocolPlainCan, BusCanFd}));
    auto record = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &record), 0);
    EXPECT_TRUE(IsUntouched(record));
}

TEST_F(FrameFunctionsTest, ClearDataIsFollowedByAppendsFromIndexZero) {
    Fill();
    VexilClearData();
    AppendMessage({.id = 9});
    EXPECT_EQ(VexilGetNumCanMessages(), 1U);
    ExpectMessage(0, {.id = 9});
}

// -- VexilGetDatabaseInfo and VexilSetDatabaseInfo ---------------------------------------------

TEST_F(FrameFunctionsTest, GetDatabaseInfoCopiesTheFirstBytes) {
    SetInfo({0x04030201U, 0x08070605U});
    for (const std::uint64_t size :
         {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{3}, std::uint64_t{4}, std::uint64_t{7},
          std::uint64_t{8}, std::uint64_t{9}, std::uint64_t{100},
          std::numeric_limits<std::uint64_t>::max()}) {
        std::string bytes(100, '?');
        VexilGetDatabaseInfo(bytes.data(), size);
        std::string expected(100, '?');
        const DatabaseInfo info{0x04030201U, 0x08070605U};
        std::memcpy(expected.data(), &info, std::min<std::uint64_t>(size, 8));
        EXPECT_EQ(bytes, expected) << size;
    }
}

TEST_F(FrameFunctionsTest, SetDatabaseInfoCopiesTheFirstBytes) {
    const DatabaseInfo before{0xAAAAAAAAU, 0xBBBBBBBBU};
    const std::string bytes = "\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a";
    for (const std::uint64_t size :
         {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{4}, std::uint64_t{5}, std::uint64_t{8},
          std::uint64_t{9}, std::numeric_limits<std::uint64_t>::max()}) {
        SetInfo(before);
        VexilSetDatabaseInfo(bytes.data(), size);
        DatabaseInfo expected = before;
        std::memcpy(&expected, bytes.data(), std::min<std::uint64_t>(size, 8));
        EXPECT_EQ(Info(), expected) << size;
    }
}

TEST_F(FrameFunctionsTest, DatabaseInfoIsNotCopiedFromOrToNull) {
    SetInfo({1, 2});
    VexilGetDatabaseInfo(nullptr, 8);
    VexilSetDatabaseInfo(nullptr, 8);
    EXPECT_EQ(Info(), (DatabaseInfo{1, 2}));
}

}  // namespace
}  // namespace vexil::test
