// Tests of text/lexical.h: tokens, ranges and identifiers. Its numbers are in numbers_test.cpp.
// SPDX-License-Identifier: MIT
#include "text/lexical.h"

#include <gtest/gtest.h>

#include <string>

namespace vexil {
namespace {

using namespace std::string_view_literals;

// -- ParseUnsignedToken -----------------------------------------------------------------------

struct TokenCase {
    std::string_view text;
    Position from;
    bool parses;
    std::uint32_t value;
    Position end;
};

void ExpectTokens(std::initializer_list<TokenCase> rows) {
    for (const TokenCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text) + " from " + std::to_string(row.from));
        std::uint32_t value = 99;
        Position end = 99;
        EXPECT_EQ(ParseUnsignedToken(row.text, value, end, row.from), row.parses);
        EXPECT_EQ(value, row.value);
        EXPECT_EQ(end, row.end);
    }
}

TEST(ParseUnsignedToken, AcceptsDigitsFollowedByWhiteSpace) {
    ExpectTokens({{"123 ", 0, true, 123, 3},
                  {"123\n", 0, true, 123, 3},
                  {" \f\n\r\t\v123\v", 0, true, 123, 9},
                  {"BO_ 291 Engine", 3, true, 291, 7},
                  {"BO_ 291 Engine", 4, true, 291, 7},
                  {"BO_ 291 Engine", 5, true, 91, 7},
                  {"0 ", 0, true, 0, 1},
                  {"000 ", 0, true, 0, 3},
                  {"007 ", 0, true, 7, 3},
                  {"00000000000000000000000007 ", 0, true, 7, 26},
                  {"4294967295 ", 0, true, 4294967295U, 10},
                  {"0004294967295 ", 0, true, 4294967295U, 13}});
}

TEST(ParseUnsignedToken, RefusesOtherTokens) {
    ExpectTokens({{"123", 0, false, 0, npos},
                  {"", 0, false, 0, npos},
                  {"  \n", 0, false, 0, npos},
                  {"1 ", 1, false, 0, npos},
                  {"1 ", 2, false, 0, npos},
                  {"1 ", npos, false, 0, npos},
                  {"4294967296 ", 0, false, 0, npos},
                  {"18446744073709551616 ", 0, false, 0, npos},
                  {"99999999999999999999999 ", 0, false, 0, npos},
                  {"+5 ", 0, false, 0, npos},
                  {"-1 ", 0, false, 0, npos},
                  {"-0 ", 0, false, 0, npos},
                  {"+0 ", 0, false, 0, npos},
                  {"12abc ", 0, false, 0, npos},
                  {"0x10 ", 0, false, 0, npos},
                  {"0abc ", 0, false, 0, npos},
                  {"abc ", 0, false, 0, npos},
                  {"100: ", 0, false, 0, npos},
                  {"1.0 ", 0, false, 0, npos},
                  {"1;\n", 0, false, 0, npos},
                  {"\"1\" ", 0, false, 0, npos},
                  {"1\xa0 ", 0, false, 0, npos},
                  {"- ", 0, false, 0, npos},
                  {"-99999999 ", 0, false, 0, npos},
                  {"-1000000000 ", 0, false, 0, npos},
                  {"-4294967295 ", 0, false, 0, npos}});
}

// Intentional: a token passes when it has as many characters as its number has digits, and a
// negative number of ten characters wraps to a number of ten digits.
TEST(ParseUnsignedToken, AcceptsANegativeNumberOfTenCharacters) {
    ExpectTokens({{"-294967297 ", 0, true, 3999999999U, 10},
                  {"-000000001 ", 0, true, 4294967295U, 10},
                  {"-999999999 ", 0, true, 3294967297U, 10},
                  {"-1abcdefgh ", 0, true, 4294967295U, 10},
                  {"-000000000 ", 0, false, 0, npos}});
}

// -- TextUpToChar -----------------------------------------------------------------------------

struct UpToCase {
    std::string_view text;
    Position from;
    char ch;
    std::string_view expected;
    Position foundPos;
};

void ExpectTexts(std::initializer_list<UpToCase> rows) {
    for (const UpToCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text) + " from " + std::to_string(row.from));
        Position foundPos = 99;
        EXPECT_EQ(TextUpToChar(row.text, row.from, row.ch, foundPos), row.expected);
        EXPECT_EQ(foundPos, row.foundPos);
    }
}

TEST(TextUpToChar, ReturnsTheTextBeforeTheCharacter) {
    ExpectTexts({{"name: 8", 0, ':', "name", 4},
                 {"name: 8", 2, ':', "me", 4},
                 {"a:b:c", 0, ':', "a", 1},
                 {"a:b:c", 2, ':', "b", 3},
                 {" a :", 0, ':', " a ", 3},
                 // The character at from: an empty text, and yet it is found.
                 {":name", 0, ':', "", 0},
                 {"a:b", 1, ':', "", 1},
                 {"a:", 1, ':', "", 1},
                 // None, or from is not before the end.
                 {"name", 0, ':', "", npos},
                 {"a:b", 2, ':', "", npos},
                 {"a:", 2, ':', "", npos},
                 {"a:", 3, ':', "", npos},
                 {"a:", npos, ':', "", npos},
                 {"", 0, ':', "", npos}});
}

// -- TrimmedRange and Trimmed -----------------------------------------------------------------

struct RangeCase {
    std::string_view text;
    Position from;
    Position to;
    std::string_view expected;
};

void ExpectRanges(std::initializer_list<RangeCase> rows) {
    for (const RangeCase& row : rows) {
        EXPECT_EQ(TrimmedRange(row.text, row.from, row.to), row.expected)
            << testing::PrintToString(row.text) << " from " << row.from << " to " << row.to;
    }
}

TEST(TrimmedRange, IncludesTheCharacterAtItsEnd) {
    ExpectRanges({{"abcdef", 0, 5, "abcdef"},
                  {"abcdef", 1, 3, "bcd"},
                  {"abcdef", 0, 1, "ab"},
                  {" \f\n\r\t\vab \f\n\r\t\v", 0, 13, "ab"},
                  {"  a b  ", 0, 6, "a b"},
                  {"  a b  ", 1, 3, "a"},
                  {"ab cd", 0, 2, "ab"},
                  {"ab cd", 2, 4, "cd"},
                  {" a", 0, 1, "a"},
                  {"a ", 0, 1, "a"},
                  // from at or after to: empty, even where there is a character.
                  {"abc", 0, 0, ""},
                  {"abc", 1, 1, ""},
                  {"abc", 2, 2, ""},
                  {"abc", 2, 1, ""},
                  // from not inside the text.
                  {"abc", 3, 4, ""},
                  {"abc", 4, 9, ""},
                  {"", 0, 1, ""},
                  {"abc", npos, npos, ""},
                  // to after the end counts as the last byte.
                  {"abc", 1, 3, "bc"},
                  {"abc ", 1, 99, "bc"},
                  {"abc", 2, 3, "c"},
                  {"abc", 0, npos, "abc"},
                  // Nothing but white space up to to.
                  {"   abc", 0, 2, ""},
                  {"   abc", 0, 3, "a"},
                  {"    ", 0, 3, ""}});
}

TEST(Trimmed, RemovesWhiteSpaceAtBothEnds) {
    EXPECT_EQ(Trimmed(""), "");
    EXPECT_EQ(Trimmed(" \f\n\r\t\v"), "");
    EXPECT_EQ(Trimmed("a"), "a");
    EXPECT_EQ(Trimmed(" \f\n\r\t\va b\tc \f\n\r\t\v"), "a b\tc");
    EXPECT_EQ(Trimmed("\xa0 x \x85"), "\xa0 x \x85");
}

TEST(DigitCount, CountsDecimalDigits) {
    EXPECT_EQ(DigitCount(0), 1U);
    EXPECT_EQ(DigitCount(9), 1U);
    EXPECT_EQ(DigitCount(10), 2U);
    EXPECT_EQ(DigitCount(99), 2U);
    EXPECT_EQ(DigitCount(100), 3U);
    EXPECT_EQ(DigitCount(999999999), 9U);
    EXPECT_EQ(DigitCount(1000000000), 10U);
    EXPECT_EQ(DigitCount(4294967295U), 10U);
}

// A view may end inside a longer text, which is not the text's.
TEST(Positions, ReadNothingAfterTheText) {
    const std::string_view text = "12 :x ";
    std::uint32_t value = 99;
    Position position = 99;
    EXPECT_FALSE(ParseUnsignedToken(text.substr(0, 2), value, position, 0));
    EXPECT_EQ(position, npos);
    EXPECT_EQ(TextUpToChar(text.substr(0, 3), 0, ':', position), "");
    EXPECT_EQ(position, npos);
    EXPECT_EQ(TrimmedRange(text.substr(0, 3), 0, 4), "12");
    EXPECT_EQ(Trimmed(text.substr(0, 4)), "12 :");
}

// -- Identifiers ------------------------------------------------------------------------------

TEST(IsValidCIdentifier, TakesOneToThirtyTwoLettersDigitsAndUnderscores) {
    EXPECT_TRUE(IsValidCIdentifier("a"));
    EXPECT_TRUE(IsValidCIdentifier("_"));
    EXPECT_TRUE(IsValidCIdentifier("Z9"));
    EXPECT_TRUE(IsValidCIdentifier("azAZ09_"));
    EXPECT_TRUE(IsValidCIdentifier(std::string(32, 'x')));
    EXPECT_FALSE(IsValidCIdentifier(std::string(33, 'x')));
    EXPECT_FALSE(IsValidCIdentifier(""));
    EXPECT_FALSE(IsValidCIdentifier("0"));
    EXPECT_FALSE(IsValidCIdentifier("9a"));
}

TEST(IsValidCIdentifier, RefusesEveryOtherByteInEachPlace) {
    for (int code = 0; code < 256; ++code) {
        const char ch = static_cast<char>(code);
        const bool isLetter = (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || ch == '_';
        const bool isDigit = ch >= '0' && ch <= '9';
        EXPECT_EQ(IsValidCIdentifier(std::string(1, ch)), isLetter) << "byte " << code;
        EXPECT_EQ(IsValidCIdentifier(std::string("a") + ch), isLetter || isDigit)
            << "byte " << code;
        EXPECT_EQ(IsValidCIdentifier(std::string("a") + ch + "b"), isLetter || isDigit)
            << "byte " << code;
    }
}

struct IdentifierCase {
    std::string text;
    std::string expected;
};

void ExpectIdentifiers(std::initializer_list<IdentifierCase> rows) {
    for (const IdentifierCase& row : rows) {
        EXPECT_EQ(MakeCIdentifier(row.text), row.expected) << testing::PrintToString(row.text);
    }
}

TEST(MakeCIdentifier, FoldsCutsAndReplaces) {
    ExpectIdentifiers({{"", ""},
                       {"Speed_1", "Speed_1"},
                       {"3rd", "_rd"},
                       {"33rd", "_3rd"},
                       {"7", "_"},
                       {"1 Engine speed/rpm", "__Engine_speed_rpm"},
                       {" a ", "_a_"},
                       {"a-b.c,d\"e\\f\tg", "a_b_c_d_e_f_g"},
                       {"\x7f\x01", "__"},
                       // One underscore for a character, however long it is.
                       {"T\xc3\xbcr", "T_r"},
                       {"\xe2\x82\xac", "_"},
                       {"\xf0\x9f\x9a\x97x", "_x"},
                       {"\xc2\xb0\x31", "_1"},
                       // Cut to 32 characters, counted when folded.
                       {std::string(31, 'a') + "bc", std::string(31, 'a') + "b"},
                       {std::string(32, 'a'), std::string(32, 'a')},
                       {std::string(33, 'a'), std::string(32, 'a')},
                       {std::string(31, 'a') + "\xc3\xa9z", std::string(31, 'a') + "_"},
                       {std::string(30, 'a') + "\xf0\x9f\x9a\x97zz", std::string(30, 'a') + "_z"},
                       {"\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9"
                        "\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9 end",
                        "________________"
                        "_end"}});
}

}  // namespace
}  // namespace vexil
