// Tests of the step that takes the name and the multiplex indicator from an SG_ statement.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_signal.h"
#include "support/dump.h"

namespace vexil {
namespace {

std::string DumpParsed(std::string_view statement) {
    CANSignal signal;
    signal.Parse(statement);
    return test::Dump(signal);
}

// The part in front of the colon, and what of the dump it decides: name with indicator, and the
// other forms of the name.
struct HeadRow {
    std::string_view head;
    std::string_view name;
    std::string_view otherNames;
};

void CheckHeads(const std::vector<HeadRow>& rows) {
    for (const HeadRow& row : rows) {
        const std::string statement =
            test::Concat("SG_", row.head, ": 0|8@1+ (1,0) [0|1] \"\" N\n");
        const std::string expected =
            test::Concat(row.name, " 0|8@1+ (1,0) [0|1] '' N", row.otherNames);
        EXPECT_EQ(DumpParsed(statement), expected) << statement;
    }
}

TEST(SignalName, IsAllInFrontOfTheColon) {
    CheckHeads({
        {" S ", "'S'", ""},
        {" S", "'S'", ""},
        {"\n\t S\r\n", "'S'", ""},
        {" Two Words ", "'Two_Words'", " long='Two Words'"},
        {" a \n\tb ", "'a___b'", R"( long='a   b' raw='a \n\tb')"},
        {" 3rd ", "'_rd'", " long='3rd'"},
        {" \"S\" ", "'_S_'", " long='\"S\"'"},
        {" \xC3\x84x ", "'_x'", " long='\xC3\x84x'"},
        {" abcdefghijklnopqrstuvwxyz0123456 ", "'abcdefghijklnopqrstuvwxyz0123456'", ""},
        {" abcdefghijklnopqrstuvwxyz01234567 ", "'abcdefghijklnopqrstuvwxyz0123456'",
         " long='abcdefghijklnopqrstuvwxyz01234567'"},
        {" ", "''", ""},
        {" \n\t ", "''", ""},
    });
}

TEST(SignalName, NeedsAColonThatSomethingFollows) {
    struct Row {
        std::string_view statement;
        std::string_view signal;
    };
    const std::vector<Row> rows = {
        {"SG_ S :", "empty errors=3"},
        {"SG_ S :\n", "empty errors=4"},
        {"SG_ S\n", "empty errors=3"},
        {"SG_\n", "empty errors=3"},
        {"SG_ S 0|8@1+ (1,0) [0|1] \"\" N\n", "empty errors=3"},
        {"SG_ S 0|8@1+ (1,0) [0|1] \"a:b\" N\n", "empty errors=4"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(DumpParsed(row.statement), row.signal) << row.statement;
    }
}

TEST(MultiplexIndicator, IsALoneMBehindTheName) {
    CheckHeads({
        {" S M ", "'S' M", ""},
        {" S M", "'S' M", ""},
        {" S M \n\t", "'S' M", ""},
        {" S\nM ", "'S' M", ""},
        {" Two Words M ", "'Two_Words' M", " long='Two Words'"},
        {" S m1 M ", "'S_m1' M", " long='S m1'"},
        {" S Mx ", "'S_Mx'", " long='S Mx'"},
        {" S M1 ", "'S_M1'", " long='S M1'"},
        {" S M x ", "'S_M_x'", " long='S M x'"},
        {" SM ", "'SM'", ""},
        {" S_M ", "'S_M'", ""},
    });
}

TEST(MultiplexIndicator, IsAnMWithANumberBehindTheName) {
    CheckHeads({
        {" S m12 ", "'S' m12", ""},
        {" S m12", "'S' m12", ""},
        {" S m0 ", "'S' m0", ""},
        {" S m007 ", "'S' m7", ""},
        {" S m 5 ", "'S' m5", ""},
        {" S m\t5\t", "'S' m5", ""},
        {" S m5 6 ", "'S' m5", ""},
        {" S M m1 ", "'S_M' m1", " long='S M'"},
        {" S m1 m2 ", "'S_m1' m2", " long='S m1'"},
        {" S m4294967295 ", "'S' m4294967295", ""},
        {" S m4294967296 ", "'S_m4294967296'", " long='S m4294967296'"},
        {" S m ", "'S_m'", " long='S m'"},
        {" S m", "'S_m'", " long='S m'"},
        {" S m-1 ", "'S_m_1'", " long='S m-1'"},
        {" S m1g ", "'S_m1g'", " long='S m1g'"},
        {" S m1\n", "'S_m1'", " long='S m1'"},
        {" Sm1 ", "'Sm1'", ""},
    });
}

TEST(MultiplexIndicator, LetsHexadecimalLettersPassButReadsADecimalNumber) {
    CheckHeads({
        {" S m1a ", "'S' m1", ""},
        {" S m1F ", "'S' m1", ""},
        {" S m0x10 ", "'S' m0", ""},
        {" S mff ", "'S_mff'", " long='S mff'"},
        {" S mx1 ", "'S_mx1'", " long='S mx1'"},
    });
}

TEST(MultiplexIndicator, IsNotUnderstoodWhenCombined) {
    CheckHeads({{" Sel m0M ", "'Sel_m0M'", " long='Sel m0M'"}});
}

TEST(MultiplexIndicator, IsTakenFromANameThatLooksLikeOne) {
    CheckHeads({
        {" M ", "'' M", ""},
        {" m1 ", "'' m1", ""},
        {" m ", "'m'", ""},
        {" M1 ", "'M1'", ""},
        {" Mode ", "'Mode'", ""},
        {" Temp ", "'Temp'", ""},
        {" Team ", "'Team'", ""},
    });
}

}  // namespace
}  // namespace vexil
