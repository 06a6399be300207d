// Tests of the list of exceptions itself, with a file that has need of every one of them.
// SPDX-License-Identifier: MIT
#include "corpus/trip_exceptions.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "support/files.h"
#include "support/record_dump.h"

namespace vexil::test {
namespace {

TEST(TripExceptions, AreAllNeededAndEnoughForAFileThatHasThemAll) {
    const TempFolder folder;
    const std::string file = folder.File("read.dbc");
    const std::string written = folder.File("written.dbc");
    WriteBytes(file,
               "BO_ 1 Long;  name, of a message: 8\n"
               " SG_ Third : 0|8@1+ (0.33333333333333,0) [0|1] \"\xC2\xB0\" N\n"
               " SG_ Same : 0|8@1+ (1,0) [0|1] \"\"\n"
               " SG_ Same : 0|8@1+ (1,0) [0|1] \"\" N\n"
               " SG_ Long, name; : 0|8@1+ (1,0) [0|1] \"\" N\n"
               " SG_ Float : 0|32@1- (1,0) [0|1] \"\" N\n"
               "VAL_ 1 Float 0 \"zero\";\n"
               "SIG_VALTYPE_ 1 Float : 1;\n"
               "BA_DEF_ BO_ \"GenMsgCycleTime\" INT 0 9;\n"
               "BA_DEF_ SG_ \"GenSigStartValue\" INT 0 9;\n"
               "BA_DEF_DEF_ \"GenMsgCycleTime\" 5;\n"
               "BA_DEF_DEF_ \"GenSigStartValue\" 6;\n");
    ASSERT_EQ(ReadFile(file), GoodCall);
    DatabaseRecords expected = FetchDatabase();
    std::map<std::string, std::size_t> counts;
    ApplyTripExceptions(expected, counts);
    ASSERT_EQ(WriteFile(written, OrderAsStored), GoodCall);
    ASSERT_EQ(ReadFile(written), GoodCall);
    EXPECT_EQ(RecordText(FetchDatabase()), RecordText(expected));
    EXPECT_EQ(counts.size(), 10U);
    for (const auto& [name, count] : counts) {
        EXPECT_GT(count, 0U) << name;
    }
}

}  // namespace
}  // namespace vexil::test
