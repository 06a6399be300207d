// Tests of RecordParseErrors: what a refused statement leaves.
// SPDX-License-Identifier: MIT
#include "frame/parse_errors.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/can_database.h"
#include "support/read_text.h"
#include "support/records.h"

namespace vexil {
namespace {

using test::ErrorFields;
using test::RecordOf;
using test::SameBytes;

class RecordParseErrorsTest : public test::DatabaseTest {
  protected:
    // The text that a statement leaves.
    static std::string TextOf(const std::string& statement) {
        database.parseErrors.clear();
        RecordParseErrors(statement, 7, {3});
        EXPECT_EQ(database.parseErrors.size(), 1U);
        return database.parseErrors.front().text;
    }
};

TEST_F(RecordParseErrorsTest, LeavesARecordWithZerosBehindItsText) {
    RecordParseErrors("BO_ x Engine: 8 ECU\n", 291, {0});
    ASSERT_EQ(database.parseErrors.size(), 1U);
    EXPECT_TRUE(SameBytes(database.parseErrors[0],
                          RecordOf(ErrorFields{0, 291, "BO_ x Engine: 8 ECU"}, 0)));
}

TEST_F(RecordParseErrorsTest, LeavesOneRecordForEachCodeInTheirOrder) {
    RecordParseErrors("one\n", 1, {6, 2, 6});
    RecordParseErrors("none\n", 2, {});
    RecordParseErrors("two\n", 0xFFFFFFFFU, {99});
    ASSERT_EQ(database.parseErrors.size(), 4U);
    EXPECT_TRUE(SameBytes(database.parseErrors[0], RecordOf(ErrorFields{6, 1, "one"}, 0)));
    EXPECT_TRUE(SameBytes(database.parseErrors[1], RecordOf(ErrorFields{2, 1, "one"}, 0)));
    EXPECT_TRUE(SameBytes(database.parseErrors[2], RecordOf(ErrorFields{6, 1, "one"}, 0)));
    EXPECT_TRUE(
        SameBytes(database.parseErrors[3], RecordOf(ErrorFields{99, 0xFFFFFFFFU, "two"}, 0)));
}

TEST_F(RecordParseErrorsTest, AlwaysDropsTheLastByte) {
    EXPECT_EQ(TextOf("01234567890123456789"), "0123456789012345678");
    EXPECT_EQ(TextOf("abc"), "ab");
    EXPECT_EQ(TextOf("ab"), "a");
    EXPECT_EQ(TextOf("a"), "");
    EXPECT_EQ(TextOf(""), "");
}

TEST_F(RecordParseErrorsTest, KeepsAtMost254Bytes) {
    for (const std::size_t size : {253U, 254U, 255U}) {
        EXPECT_EQ(TextOf(std::string(size, 'x')), std::string(size - 1, 'x'));
    }
    for (const std::size_t size : {256U, 257U, 300U, 5000U}) {
        EXPECT_EQ(TextOf(std::string(size, 'x')), std::string(254, 'x')) << size;
    }
}

TEST_F(RecordParseErrorsTest, CutsNoCharacter) {
    for (const std::string character : {"e", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 249; front <= 256; ++front) {
            const std::string statement = std::string(front, 'x') + character + "more\n";
            std::string expected = statement.substr(0, 254);
            if (front < 254 && front + character.size() > 254) {
                expected.resize(front);
            }
            EXPECT_EQ(TextOf(statement), expected) << character << " behind " << front;
        }
    }
    // The byte that always goes may be the last of a character.
    EXPECT_EQ(TextOf("abc\xc3\xa9"), "abc");
    EXPECT_EQ(TextOf("abc\xf0\x9f\x9a\x97"), "abc");
    EXPECT_EQ(TextOf("\xf0\x9f\x9a\x97"), "");
}

TEST_F(RecordParseErrorsTest, LeavesNoTextOfWhatCannotBeCut) {
    RecordParseErrors(
        "abc\x80"
        "def",
        5, {1});
    ASSERT_EQ(database.parseErrors.size(), 1U);
    EXPECT_TRUE(SameBytes(database.parseErrors[0], RecordOf(ErrorFields{1, 5, ""}, 0)));
}

}  // namespace
}  // namespace vexil
