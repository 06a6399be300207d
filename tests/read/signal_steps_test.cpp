// Tests of the steps that take an SG_ statement apart behind its colon, each through whole
// statements: one row holds the part that the step reads, the rest of the statement is plain.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "frame/can_signal.h"
#include "support/dump.h"

namespace vexil {
namespace {

using test::Dump;

std::string DumpParsed(std::string_view statement) {
    CANSignal signal;
    signal.Parse(statement);
    return Dump(signal);
}

// A part of a statement and the dump of the signal.
struct Row {
    std::string_view part;
    std::string_view signal;
};

// Parses front, part and back of each row as one statement.
void CheckRows(std::string_view front, std::string_view back, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        const std::string statement = test::Concat(front, row.part, back);
        EXPECT_EQ(DumpParsed(statement), row.signal) << statement;
    }
}

TEST(BitLayout, TakesStartLengthOrderAndSign) {
    CheckRows("SG_ S :", "(1,0) [0|1] \"\" N\n",
              {
                  {" 0|8@1+ ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" 7|16@0- ", "'S' 7|16@0- (1,0) [0|1] '' N"},
                  {"0|8@0+", "'S' 0|8@0+ (1,0) [0|1] '' N"},
                  {" 0 | 8 @ 1 - ", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {"\n0\t|\r8\n@\f1\v-\n", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {" 0|0@1+ ", "'S' 0|0@1+ (1,0) [0|1] '' N"},
                  {" 4294967295|4294967295@1+ ", "'S' 4294967295|4294967295@1+ (1,0) [0|1] '' N"},
                  {" 4294967296|8@1+ ", "empty errors=4"},
                  {" 0|4294967296@1+ ", "empty errors=4"},
              });
}

TEST(BitLayout, ReadsTheNumberInFrontAndIgnoresWhatFollowsIt) {
    CheckRows("SG_ S :", "(1,0) [0|1] \"\" N\n",
              {
                  {" 7abc|8xyz@1+ ", "'S' 7|8@1+ (1,0) [0|1] '' N"},
                  {" 1 2|3 4@1+ ", "'S' 1|3@1+ (1,0) [0|1] '' N"},
                  {" 0x10|8@1+ ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" +1|+8@1+ ", "'S' 1|8@1+ (1,0) [0|1] '' N"},
                  {" -1|-2@1+ ", "'S' 4294967295|4294967294@1+ (1,0) [0|1] '' N"},
                  {" 1.9|8.9@1+ ", "'S' 1|8@1+ (1,0) [0|1] '' N"},
                  {" x|8@1+ ", "empty errors=4"},
                  {" |8@1+ ", "empty errors=4"},
                  {"|8@1+ ", "empty errors=4"},
                  {" 0|@1+ ", "empty errors=4"},
                  {" 0|x@1+ ", "empty errors=4"},
              });
}

TEST(BitLayout, NeedsAnOrderOf0Or1ButNoSign) {
    CheckRows("SG_ S : 0|8@", "(1,0) [0|1] \"\" N\n",
              {
                  {"1 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"0", "'S' 0|8@0+ (1,0) [0|1] '' N"},
                  {"1*", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"10-", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"1--", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {"2+ ", "empty errors=4"},
                  {"+ ", "empty errors=4"},
                  {"x+ ", "empty errors=4"},
                  {" ", "empty errors=4"},
              });
}

TEST(BitLayout, NeedsSomethingBehindOrderAndSign) {
    CheckRows("SG_ S :", "",
              {
                  {" 0|", "empty errors=4"},
                  {" 0|\n", "empty errors=4"},
                  {" 0|8@", "empty errors=4"},
                  {" 0|8@ \n", "empty errors=4"},
                  {" 0|8@1", "empty errors=4"},
                  {" 0|8@1\n", "empty errors=4"},
                  {" 0|8@1+", "empty errors=4"},
                  {" 0|8@1+\n", "empty errors=5"},
              });
}

TEST(BitLayout, WithoutAnAtIsUnsignedAndLittleEndian) {
    CheckRows("SG_ S : 0|", "(1,0) [0|1] \"\" N\n",
              {
                  {"8 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"8", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"8- ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"  0000000000008 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"4294967295", "'S' 0|4294967295@1+ (1,0) [0|1] '' N"},
                  {"4294967296", "empty errors=4"},
                  {" ", "empty errors=4"},
                  {"x", "empty errors=4"},
              });
}

// What follows is searched from as many characters behind the bar as the length has digits in
// decimal, which are more than "-1" has in the text.
TEST(BitLayout, WithoutAnAtSkipsTheDigitsOfTheLengthAndNotItsText) {
    CheckRows("SG_ S : 0|", "(1,0) [0|1] \"\" N\n",
              {
                  {"-1        ", "'S' 0|4294967295@1+ (1,0) [0|1] '' N"},
                  {"-1       ", "empty errors=5"},
                  {"-1 ", "empty errors=5"},
              });
}

TEST(BitLayout, FindsItsSeparatorsInLaterFields) {
    CheckRows("SG_ S :", "\n",
              {
                  {" 8@1+ (1,0) [0|1] \"\" N", "empty errors=5"},
                  {" 8@1+ (1,0) [0 1] \"\" N", "empty errors=4"},
                  {" 0|8 (1,0) [0|1] \"a@b\" N", "empty errors=4"},
                  {" 0|8 (1,0) [0|1] \"a@1\" N", "empty errors=5"},
              });
}

TEST(Scaling, TakesFactorAndOffset) {
    CheckRows("SG_ S : 0|8@1+ ", " [0|1] \"\" N\n",
              {
                  {"(0.5,-40)", "'S' 0|8@1+ (0.5,-40) [0|1] '' N"},
                  {"(\t0.5 ,\n-40 )", "'S' 0|8@1+ (0.5,-40) [0|1] '' N"},
                  {"(1e3,+2.5E-3)", "'S' 0|8@1+ (1000,0.0025) [0|1] '' N"},
                  {"(.5,5.)", "'S' 0|8@1+ (0.5,5) [0|1] '' N"},
                  {"(0.1,0.30000000000000004)", "'S' 0|8@1+ (0.1,0.30000000000000004) [0|1] '' N"},
                  {"(0,0)", "'S' 0|8@1+ (0,0) [0|1] '' N"},
                  {"(1.5abc,2 3)", "'S' 0|8@1+ (1.5,2) [0|1] '' N"},
                  {"(1e308,-1e308)", "'S' 0|8@1+ (1e+308,-1e+308) [0|1] '' N"},
                  {"(0x10,0)", "'S' 0|8@1+ (16,0) [0|1] '' N"},
                  {"(inf,-inf)", "'S' 0|8@1+ (inf,-inf) [0|1] '' N"},
                  {"stray(1,0)", "'S' 0|8@1+ (1,0) [0|1] '' N"},
              });
}

TEST(Scaling, FailsWithoutItsSeparatorsOrNumbers) {
    CheckRows("SG_ S : 0|8@1+ ", "\n",
              {
                  {"", "empty errors=5"},
                  {"1,0) [0|1] \"\" N", "empty errors=5"},
                  {"(1 0) [0|1] \"\" N", "empty errors=5"},
                  {"(1,0 [0|1] \"\" N", "empty errors=5"},
                  {"(,0) [0|1] \"\" N", "empty errors=5"},
                  {"( ,0) [0|1] \"\" N", "empty errors=5"},
                  {"(x,0) [0|1] \"\" N", "empty errors=5"},
                  {"((1,0) [0|1] \"\" N", "empty errors=5"},
                  {"(1,) [0|1] \"\" N", "empty errors=5"},
                  {"(1, ) [0|1] \"\" N", "empty errors=5"},
                  {"(1,x) [0|1] \"\" N", "empty errors=5"},
                  {"(1e999,0) [0|1] \"\" N", "empty errors=5"},
                  {"(-1e999,0) [0|1] \"\" N", "empty errors=5"},
                  {"(1e-999,0) [0|1] \"\" N", "empty errors=5"},
                  {"(1,1e999) [0|1] \"\" N", "empty errors=5"},
              });
}

TEST(Scaling, FindsItsSeparatorsInLaterFields) {
    CheckRows("SG_ S : 0|8@1+ ", "\n",
              {
                  {"(1 0) [0|1] \"\" A,B)", "empty errors=5"},
                  {"(1 0) [0|1] \"\" A,2)", "empty errors=6"},
                  {"(1 0) [0|1] \"\" A,2) [3|4] \"u\" N", "'S' 0|8@1+ (1,2) [3|4] 'u' N"},
                  {"(1,0 [0|1] \")\" N", "empty errors=6"},
              });
}

TEST(Range, TakesMinimumAndMaximum) {
    CheckRows("SG_ S : 0|8@1+ (1,0)", "\"\" N\n",
              {
                  {" [0|255] ", "'S' 0|8@1+ (1,0) [0|255] '' N"},
                  {"[-40|87.5]", "'S' 0|8@1+ (1,0) [-40|87.5] '' N"},
                  {" [ 1\t|\n2 ] ", "'S' 0|8@1+ (1,0) [1|2] '' N"},
                  {" [5|5] ", "'S' 0|8@1+ (1,0) [5|5] '' N"},
                  {" [-0|0] ", "'S' 0|8@1+ (1,0) [-0|0] '' N"},
                  {" [1x|2y] ", "'S' 0|8@1+ (1,0) [1|2] '' N"},
                  {" [nan|1] ", "'S' 0|8@1+ (1,0) [nan|1] '' N"},
                  {" stray [0|1] ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
              });
}

TEST(Range, ExchangesBoundsThatAreReversed) {
    CheckRows("SG_ S : 0|8@1+ (1,0)", "\"\" N\n",
              {
                  {" [10|0] ", "'S' 0|8@1+ (1,0) [0|10] '' N"},
                  {" [1.5|-1.5] ", "'S' 0|8@1+ (1,0) [-1.5|1.5] '' N"},
                  {" [0.5|0.25] ", "'S' 0|8@1+ (1,0) [0.25|0.5] '' N"},
                  {" [inf|-inf] ", "'S' 0|8@1+ (1,0) [-inf|inf] '' N"},
              });
}

TEST(Range, FailsWithoutItsSeparatorsOrNumbers) {
    CheckRows("SG_ S : 0|8@1+ (1,0) ", "\n",
              {
                  {"", "empty errors=6"},
                  {"0|1] \"\" N", "empty errors=6"},
                  {"[0 1] \"\" N", "empty errors=6"},
                  {"[0|1 \"\" N", "empty errors=6"},
                  {"[|1] \"\" N", "empty errors=6"},
                  {"[ |1] \"\" N", "empty errors=6"},
                  {"[x|1] \"\" N", "empty errors=6"},
                  {"[0|] \"\" N", "empty errors=6"},
                  {"[0| ] \"\" N", "empty errors=6"},
                  {"[0|x] \"\" N", "empty errors=6"},
                  {"[1e999|0] \"\" N", "empty errors=6"},
                  {"[0|1e999] \"\" N", "empty errors=6"},
                  {"[0|1e-999] \"\" N", "empty errors=6"},
              });
}

TEST(Range, FindsItsSeparatorsInLaterFields) {
    CheckRows("SG_ S : 0|8@1+ (1,0) ", "\n",
              {
                  {"[0|1 \"]\" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"[0 1] \"a|2]\" N", "'S' 0|8@1+ (1,0) [0|2] '' N"},
              });
}

TEST(Unit, IsWhatStandsBetweenTheFirstTwoQuotes) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {" \"km/h\" N\n", "'S' 0|8@1+ (1,0) [0|1] 'km/h' N"},
                  {"\"km/h\"N\n", "'S' 0|8@1+ (1,0) [0|1] 'km/h' N"},
                  {"\"km/h\"N", "'S' 0|8@1+ (1,0) [0|1] 'km/h' N"},
                  {" \"km/h\"", "'S' 0|8@1+ (1,0) [0|1] 'km/h'"},
                  {" \"\" N\n", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" \" \t\n\" N\n", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" \" k m \" N\n", "'S' 0|8@1+ (1,0) [0|1] 'k m' N"},
                  {" \"k\tm\nh\" N\n", R"('S' 0|8@1+ (1,0) [0|1] 'k\tm\nh' N)"},
                  {" \"a\\\"b\" N\n", R"('S' 0|8@1+ (1,0) [0|1] 'a\\' b__N)"},
                  {" stray \"u\" N\n", "'S' 0|8@1+ (1,0) [0|1] 'u' N"},
                  {" \"a unit of more than the thirty-two bytes\" N\n",
                   "'S' 0|8@1+ (1,0) [0|1] 'a unit of more than the thirty-two bytes' N"},
              });
}

TEST(Unit, KeepsCharactersBeyondAsciiInUtf8Alone) {
    CheckRows(
        "SG_ S : 0|8@1+ (1,0) [0|1] \"", "\" N\n",
        {
            {"\xC2\xB0"
             "C",
             "'S' 0|8@1+ (1,0) [0|1] '_C' N utf8='\xC2\xB0"
             "C'"},
            {" \xE2\x82\xAC ", "'S' 0|8@1+ (1,0) [0|1] '_' N utf8='\xE2\x82\xAC'"},
            {"a\xF0\x9F\x9A\x97z", "'S' 0|8@1+ (1,0) [0|1] 'a_z' N utf8='a\xF0\x9F\x9A\x97z'"},
        });
}

TEST(Unit, IsEmptyWithoutQuotesAndOneCharacterIsSkipped) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {"", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {"\n", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"  N\n", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"N\n", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {"N", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {"xA,B\n", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
              });
}

// The receivers then begin inside a character; what is left of it counts as invalid bytes do.
TEST(Unit, MayBeMissingWhereACharacterOfSeveralBytesIsSkipped) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "\n",
              {
                  {"\xC3\xA4", "'S' 0|8@1+ (1,0) [0|1] '' _"},
                  {"\xC3\xA4,A", "'S' 0|8@1+ (1,0) [0|1] '' _,A"},
                  {"\xF0\x9F\x9A\x97z", "'S' 0|8@1+ (1,0) [0|1] '' ___z"},
                  {" \xC3\xA4", "'S' 0|8@1+ (1,0) [0|1] '' _"},
              });
}

TEST(Unit, IsEmptyWithTheOpeningQuoteOnly) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {" \"abc N\n", "'S' 0|8@1+ (1,0) [0|1] '' _abc_N"},
                  {"\"abc N\n", "'S' 0|8@1+ (1,0) [0|1] '' abc_N"},
                  {" \"A,B\n", "'S' 0|8@1+ (1,0) [0|1] '' _A,B"},
                  {" \"", "'S' 0|8@1+ (1,0) [0|1] '' _"},
              });
}

TEST(Receivers, AreSeparatedByCommasAlone) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1] \"\"", "",
              {
                  {" A,B\n", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
                  {" A , B ,, D\n", "'S' 0|8@1+ (1,0) [0|1] '' A,B,D"},
                  {",A,\n", "'S' 0|8@1+ (1,0) [0|1] '' A"},
                  {" , \n", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {" A B\n", "'S' 0|8@1+ (1,0) [0|1] '' A_B"},
                  {" A,\n\tB\n", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
                  {" B,A,B\n", "'S' 0|8@1+ (1,0) [0|1] '' B,A,B"},
                  {" A;\n", "'S' 0|8@1+ (1,0) [0|1] '' A_"},
                  {" A\nstray text\n", "'S' 0|8@1+ (1,0) [0|1] '' A_stray_text"},
                  {" Marrowby\n", "'S' 0|8@1+ (1,0) [0|1] '' Marrowby"},
              });
}

TEST(Receivers, BecomeIdentifiers) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1] \"\"", "\n",
              {
                  {" 1st", "'S' 0|8@1+ (1,0) [0|1] '' _st"},
                  {" \xC3\x84,a-b", "'S' 0|8@1+ (1,0) [0|1] '' _,a_b"},
                  {" abcdefghijklmnopqrstuvwxyz01234567890123",
                   "'S' 0|8@1+ (1,0) [0|1] '' abcdefghijklmnopqrstuvwxyz012345"},
              });
}

TEST(Receivers, ReplaceThoseFromBefore) {
    CANSignal signal;
    signal.ParseReceivers("A,B");
    EXPECT_EQ(signal.receivers, (NodeList{"A", "B"}));
    signal.ParseReceivers("C");
    EXPECT_EQ(signal.receivers, NodeList{"C"});
    signal.ParseReceivers("");
    EXPECT_TRUE(signal.receivers.IsEmpty());
}

TEST(Receivers, HaveNoLimit) {
    std::string list = "N0";
    for (int number = 1; number < 5000; ++number) {
        list += test::Concat(",N", std::to_string(number));
    }
    CANSignal signal;
    signal.ParseReceivers(list);
    EXPECT_EQ(signal.ReceiverList(), list);
}

}  // namespace
}  // namespace vexil
