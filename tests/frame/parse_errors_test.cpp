// Tests of RecordParseError: what the list holds of a refused statement.
// SPDX-License-Identifier: MIT
#include "frame/parse_errors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "frame/can_database.h"
#include "support/read_text.h"

namespace vexil {
namespace {

class RecordParseErrorTest : public test::DatabaseTest {
  protected:
    // What the list holds of the statement.
    static std::string TextOf(std::string_view statement) {
        RecordParseError(statement, 7, 3);
        return std::string(database.parseErrors[database.parseErrors.Size() - 1].text);
    }
};

TEST_F(RecordParseErrorTest, AddsOneEntryForEachCall) {
    std::string statement = "BO_ x Engine: 8 ECU\n";
    RecordParseError(statement, 291, 0);
    statement.assign(statement.size(), 'x');
    RecordParseError(statement, 0xFFFFFFFFU, 6);
    ASSERT_EQ(database.parseErrors.Size(), 2U);
    const RefusedStatement& first = database.parseErrors[0];
    EXPECT_EQ(first.code, 0U);
    EXPECT_EQ(first.line, 291U);
    EXPECT_EQ(first.text, "BO_ x Engine: 8 ECU");
    const RefusedStatement& second = database.parseErrors[1];
    EXPECT_EQ(second.code, 6U);
    EXPECT_EQ(second.line, 0xFFFFFFFFU);
    EXPECT_EQ(second.text, std::string(19, 'x'));
}

TEST_F(RecordParseErrorTest, AlwaysDropsTheLastByte) {
    EXPECT_EQ(TextOf("01234567890123456789"), "0123456789012345678");
    EXPECT_EQ(TextOf("abc"), "ab");
    EXPECT_EQ(TextOf("ab"), "a");
    EXPECT_EQ(TextOf("a"), "");
    EXPECT_EQ(TextOf(""), "");
}

TEST_F(RecordParseErrorTest, KeepsAtMost254Bytes) {
    for (const std::size_t size : {253U, 254U, 255U}) {
        EXPECT_EQ(TextOf(std::string(size, 'x')), std::string(size - 1, 'x'));
    }
    for (const std::size_t size : {256U, 257U, 300U, 5000U}) {
        EXPECT_EQ(TextOf(std::string(size, 'x')), std::string(254, 'x')) << size;
    }
}

TEST_F(RecordParseErrorTest, TruncatesAtACharacter) {
    for (const std::string character : {"e", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 249; front <= 256; ++front) {
            const std::string statement = std::string(front, 'x') + character + "more\n";
            std::string expected = statement.substr(0, 254);
            if (front < 254 && front + character.size() > 254) {
                expected.resize(front);
            }
            EXPECT_EQ(TextOf(statement), expected) << character << " after " << front;
        }
    }
    // The byte that always goes may be the last of a character.
    EXPECT_EQ(TextOf("abc\xc3\xa9"), "abc");
    EXPECT_EQ(TextOf("abc\xf0\x9f\x9a\x97"), "abc");
    EXPECT_EQ(TextOf("\xf0\x9f\x9a\x97"), "");
}

TEST_F(RecordParseErrorTest, StoresNoInvalidText) {
    EXPECT_EQ(TextOf("abc\x80xyz"), "");
}

}  // namespace
}  // namespace vexil
