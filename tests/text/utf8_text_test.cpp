// Tests of text/utf8_text.h: fitting, copying, repairing and folding.
// SPDX-License-Identifier: MIT
#include "text/utf8_text.h"

#include <gtest/gtest.h>
#include <utf8.h>

#include <string>

namespace vexil {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

// -- Utf8FitLength ----------------------------------------------------------------------------

struct FitCase {
    std::string_view text;
    std::uint64_t bufferSize;
    bool fits;
    std::uint64_t length;
};

void ExpectFits(std::initializer_list<FitCase> rows) {
    for (const FitCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.text) + " into " + std::to_string(row.bufferSize));
        std::uint64_t length = 99;
        EXPECT_EQ(Utf8FitLength(row.text, row.bufferSize, length), row.fits);
        EXPECT_EQ(length, row.length);
    }
}

TEST(Utf8FitLength, NeedsRoomForOneByteAndTheTerminator) {
    ExpectFits({{"", 0, false, 0},
                {"abc", 0, false, 0},
                {"", 1, false, 0},
                {"abc", 1, false, 0},
                {"abc", 2, true, 1},
                {"abc", 3, true, 2},
                {"abc", 4, true, 3}});
}

TEST(Utf8FitLength, DoesNotValidateATextShorterThanTheBuffer) {
    ExpectFits({{"", 2, true, 1},
                {"abc", 5, true, 4},
                {"0123456789", 33, true, 32},
                // A text shorter than the room is not looked at.
                {"\xff\xff\xff\xff\xff\xff\xff\xff\xff\xff", 33, true, 32},
                {"\xff\xff\xff\xff", 6, true, 5},
                {"abc", ~std::uint64_t{0}, true, ~std::uint64_t{0} - 1}});
}

TEST(Utf8FitLength, ReturnsZeroForUpToThreeInvalidBytes) {
    ExpectFits({// One byte that is not valid: nothing fits, and that is no failure.
                {"\xff", 2, true, 0},
                {"\x80", 2, true, 0},
                {"\xc3", 2, true, 0},
                {"\xf0\x9f", 2, true, 0},
                // Two.
                {"a\xc3", 3, true, 1},
                {"a\xff", 3, true, 1},
                {"a\xbf", 3, true, 0},
                {"\xff\xc3", 3, true, 0},
                {"\xe2\x82", 3, true, 0},
                {"\xffx", 3, true, 0},
                // Three.
                {"ab\xc0", 4, true, 2},
                {"a\xe0\x80", 4, true, 1},
                {"a\xffy", 4, true, 1},
                {"a\xdfy", 4, true, 0},
                {"\xf0\x9f\x9a", 4, true, 0},
                {"\x80\x80\x80", 4, true, 0},
                {"\xffxy", 4, true, 0}});
}

TEST(Utf8FitLength, AcceptsACharacterTruncatedInTheLastThreeBytes) {
    ExpectFits({// A lead byte in the last place, and the bytes on both sides of the limit for one.
                {"abc\xc0", 5, true, 3},
                {"abc\xff", 5, true, 3},
                {"abc\xbf", 5, false, 0},
                // In the last place but one.
                {"ab\xe0\x80", 5, true, 2},
                {"ab\xff\x80", 5, true, 2},
                {"ab\xdfz", 5, false, 0},
                {"ab\xe0z", 5, true, 2},
                // In the last place but two.
                {"a\xf0\x80\x80", 5, true, 1},
                {"a\xff\x80\x80", 5, true, 1},
                {"a\xef\xbfy", 5, false, 0},
                {"a\xf0yz", 5, true, 1},
                {"\xffxyz", 5, false, 0},
                // Further in front nothing is excused.
                {"\xc3\xf0\x80\x80", 5, false, 0},
                {"\xff\xff\xff\xff", 5, false, 0},
                {"\xffxyzw", 6, false, 0},
                // A lead byte at the end excuses only itself: the bytes before it are tried next.
                {"a\xe2\x82\xc3", 5, false, 0},
                {"ab\xe2\xc3", 5, true, 2},
                {"a\xf0\x9f\xc3", 5, true, 1}});
}

TEST(Utf8FitLength, RefusesInvalidCharacters) {
    ExpectFits({{"\xc0\x80 abc", 7, false, 0},
                {"\xe0\x80\x80 abc", 8, false, 0},
                {"\xf0\x80\x80\x80 abc", 9, false, 0},
                {"\xed\xa0\x80 abc", 8, false, 0},
                {"\xed\xbf\xbf abc", 8, false, 0},
                {"\xf4\x90\x80\x80 abc", 9, false, 0},
                {"\xf8\x88\x80\x80\x80 abc", 10, false, 0},
                // Beside them, the nearest that are characters.
                {"\xc2\x80 abc", 7, true, 6},
                {"\xe0\xa0\x80 abc", 8, true, 7},
                {"\xed\x9f\xbf abc", 8, true, 7},
                {"\xee\x80\x80 abc", 8, true, 7},
                {"\xef\xbf\xbf abc", 8, true, 7},
                {"\xf0\x90\x80\x80 abc", 9, true, 8},
                {"\xf4\x8f\xbf\xbf abc", 9, true, 8}});
}

TEST(Utf8FitLength, ReadsNoByteAfterTheLimit) {
    std::uint64_t length = 99;
    EXPECT_TRUE(Utf8FitLength("abcd\xff\xff\xff\xff", 5, length));
    EXPECT_EQ(length, 4U);
}

TEST(Utf8FitLength, TreatsANulAsACharacter) {
    std::uint64_t length = 99;
    EXPECT_TRUE(Utf8FitLength("ab\0cd"sv, 6, length));
    EXPECT_EQ(length, 5U);
}

// -- CopyUtf8Text -----------------------------------------------------------------------------

struct CopyCase {
    std::string_view buffer;
    bool valid;
    std::string_view text;
};

void ExpectCopies(std::initializer_list<CopyCase> rows) {
    for (const CopyCase& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.buffer));
        std::string_view out = "before";
        EXPECT_EQ(CopyUtf8Text(out, row.buffer.data(), row.buffer.size()), row.valid);
        EXPECT_EQ(out, row.text);
    }
}

TEST(CopyUtf8Text, EndsAtTheFirstNulOrBeforeTheLastByte) {
    ExpectCopies({{"abc\0"sv, true, "abc"},
                  {"abc\0def\0"sv, true, "abc"},
                  {"abc\0\xff\xff\xff\xff"sv, true, "abc"},
                  {"\0"sv, true, ""},
                  {"\0abc"sv, true, ""},
                  {"a\0"sv, true, "a"},
                  // The last place of an array always counts as that of the terminator.
                  {"abc"sv, true, "ab"},
                  {"ab"sv, true, "a"},
                  {"abc\xff"sv, true, "abc"},
                  // A single byte that is no NUL leaves an empty text.
                  {"a"sv, false, ""},
                  {"\xff"sv, false, ""}});
}

TEST(CopyUtf8Text, DropsACharacterThatIsCutOffAtTheEnd) {
    ExpectCopies({{"caf\xc3\xa9\0"sv, true, "caf\xc3\xa9"},
                  {"\xe2\x82\xac\0"sv, true, "\xe2\x82\xac"},
                  {"\xf0\x9f\x9a\x97\0"sv, true, "\xf0\x9f\x9a\x97"},
                  // A byte order mark is a character like any other.
                  {"\xef\xbb\xbfxyz\0"sv, true, "\xef\xbb\xbfxyz"},
                  // A character that is cut off at the end is dropped.
                  {"caf\xc3\0"sv, true, "caf"},
                  {"caf\xc3\xa9"sv, true, "caf"},
                  {"abc\xe2\0"sv, true, "abc"},
                  {"abc\xe2\x82\0"sv, true, "abc"},
                  {"abc\xf0\0"sv, true, "abc"},
                  {"abc\xf0\x9f\0"sv, true, "abc"},
                  {"abc\xf0\x9f\x9a\0"sv, true, "abc"}});
}

TEST(CopyUtf8Text, RefusesInvalidBytesElsewhere) {
    ExpectCopies(
        {// Three bytes or more after a lone byte: refused.
         {"abc\xffwvu\0"sv, false, ""},
         {"abc\xffwvug\0"sv, false, ""},
         // Two, one, none: cut before it, like the lead byte of a truncated character.
         {"abc\xffwv\0"sv, true, "abc"},
         {"abc\xffw\0"sv, true, "abc"},
         {"abc\xff\0"sv, true, "abc"},
         // A lead of two bytes is excused in the last place only, one of three in the last two.
         {"abc\xc3w\0"sv, false, ""},
         {"abc\xe2w\0"sv, true, "abc"},
         {"abc\xe2wv\0"sv, false, ""},
         {"abc\xf0wv\0"sv, true, "abc"},
         // A continuation without its lead is never excused.
         {"abc\x80\0"sv, false, ""},
         {"abcd\xc3\xa9\x80\0"sv, false, ""},
         // An invalid text of at most three bytes becomes empty; the call succeeds.
         {"\xff\0"sv, true, ""},
         {"\x80\0"sv, true, ""},
         {"a\x80\0"sv, true, ""},
         {"\x80\x80\x80\0"sv, true, ""},
         {"\xffxy\0"sv, true, ""},
         {"\x80xyz\0"sv, false, ""}});
}

TEST(CopyUtf8Text, DoesNotReadAnArrayOfSizeZero) {
    std::string_view out = "before";
    EXPECT_TRUE(CopyUtf8Text(out, nullptr, 0));
    EXPECT_EQ(out, "");
}

// -- ReplaceInvalidUtf8 -----------------------------------------------------------------------

struct TextCase {
    std::string_view text;
    std::string_view expected;
};

void ExpectRepairs(std::initializer_list<TextCase> rows) {
    for (const TextCase& row : rows) {
        std::string line(row.text);
        ReplaceInvalidUtf8(line);
        EXPECT_EQ(line, row.expected) << testing::PrintToString(row.text);
    }
}

TEST(ReplaceInvalidUtf8, OverwritesEachByteThatBeginsNoCharacter) {
    ExpectRepairs({{"", ""},
                   {"abc", "abc"},
                   {"a\0b"sv, "a\0b"sv},
                   {"\xc3\xa9\xe2\x82\xac\xf0\x9f\x9a\x97", "\xc3\xa9\xe2\x82\xac\xf0\x9f\x9a\x97"},
                   {"\xff", "_"},
                   {"a\xe9z", "a_z"},
                   {"\x80\xbf", "__"},
                   // Each byte of an invalid sequence, one for one.
                   {"\xc0\x80", "__"},
                   {"\xed\xa0\x80", "___"},
                   {"\xe0\x9f\xbf", "___"},
                   {"\xf0\x8f\xbf\xbf", "____"},
                   {"\xf4\x90\x80\x80", "____"},
                   {"\xf8\x88\x80\x80\x80", "_____"},
                   {"\xfe\xff", "__"},
                   // A character that is cut off loses its bytes and no others.
                   {"\xe2\x82", "__"},
                   {"\xe2\x82z", "__z"},
                   {"\xf0\x9f\x9a", "___"},
                   {"\xf0\x9f\x9a\xc3\xa9", "___\xc3\xa9"},
                   {"\xc3\xc3\xa9", "_\xc3\xa9"},
                   {"\xe2\xe2\x82\xac", "_\xe2\x82\xac"},
                   {"\xff\xe2\x82\xac\xff", "_\xe2\x82\xac_"}});
}

TEST(ReplaceInvalidUtf8, FindsTheOnlyInvalidByteAtEachPlace) {
    for (std::size_t size = 1; size <= 100; ++size) {
        for (std::size_t at = 0; at < size; ++at) {
            std::string line(size, 'x');
            line[at] = '\xe2';
            std::string expected(size, 'x');
            expected[at] = '_';
            ReplaceInvalidUtf8(line);
            EXPECT_EQ(line, expected);
        }
    }
}

// -- FoldToAscii ------------------------------------------------------------------------------

void ExpectFolds(std::initializer_list<TextCase> rows) {
    for (const TextCase& row : rows) {
        EXPECT_EQ(FoldToAscii(row.text), row.expected) << testing::PrintToString(row.text);
    }
}

TEST(FoldToAscii, PutsOneUnderscoreForACharacter) {
    ExpectFolds({{"", ""},
                 {"km/h", "km/h"},
                 {"\xc2\xb0K", "_K"},
                 {"a\xc3\xa9z", "a_z"},
                 {"a\xe2\x82\xacz", "a_z"},
                 {"a\xf0\x9f\x9a\x97z", "a_z"},
                 {"\xc3\xa9\xe2\x82\xac\xf0\x9f\x9a\x97", "___"},
                 {"\xef\xbb\xbfx", "_x"},
                 {"\t\n\x7f\0z"sv, "\t\n\x7f\0z"sv}});
}

TEST(FoldToAscii, ThrowsTheExceptionsOfTheDecoder) {
    EXPECT_THROW(FoldToAscii("ab\xe2\x82"), utf8::not_enough_room);
    EXPECT_THROW(FoldToAscii("\xff"), utf8::invalid_utf8);
    EXPECT_THROW(FoldToAscii("\xc3z"), utf8::invalid_utf8);
    EXPECT_THROW(FoldToAscii("\xc0\x80"), utf8::invalid_utf8);
    EXPECT_THROW(FoldToAscii("\xed\xa0\x80"), utf8::invalid_code_point);
    EXPECT_THROW(FoldToAscii("\xf4\x90\x80\x80"), utf8::invalid_code_point);
}

}  // namespace
}  // namespace vexil
