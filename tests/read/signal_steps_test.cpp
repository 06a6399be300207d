// Tests of the steps that take an SG_ statement apart, each through whole statements: one row holds
// the part that the step reads, the rest of the statement is plain.
// SPDX-License-Identifier: MIT
#include "read/parsed.h"

namespace vexil {
namespace {

using BitLayout = test::ParseTest;
using Range = test::ParseTest;
using Receivers = test::ParseTest;
using Scaling = test::ParseTest;
using Unit = test::ParseTest;

class HeadTest : public test::ParseTest {
  protected:
    // The part before the colon, and the parts of the dump that depend on it: name with indicator,
    // and the other forms of the name.
    struct HeadRow {
        std::string_view head;
        std::string_view name;
        std::string_view otherNames;
    };

    static void CheckHeads(const std::vector<HeadRow>& rows) {
        for (const HeadRow& row : rows) {
            const std::string statement =
                test::Concat("SG_", row.head, ": 0|8@1+ (1,0) [0|1] \"\" N");
            EXPECT_EQ(Parsed(statement),
                      test::Concat(row.name, " 0|8@1+ (1,0) [0|1] '' N", row.otherNames))
                << statement;
        }
    }
};

using SignalName = HeadTest;
using MultiplexIndicator = HeadTest;

TEST_F(SignalName, IsTheTextBeforeTheColon) {
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

TEST_F(SignalName, NeedsAColonFollowedByText) {
    CheckRows("SG_", "",
              {
                  {" S :", "error 4"},
                  {" S", "error 3"},
                  {"", "error 3"},
                  {" S 0|8@1+ (1,0) [0|1] \"\" N", "error 3"},
                  {" S 0|8@1+ (1,0) [0|1] \"a:b\" N", "error 4"},
              });
}

TEST_F(MultiplexIndicator, IsASingleMAfterTheName) {
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

TEST_F(MultiplexIndicator, IsAnMWithANumberAfterTheName) {
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

TEST_F(MultiplexIndicator, AcceptsHexadecimalDigitsButReadsADecimalNumber) {
    CheckHeads({
        {" S m1a ", "'S' m1", ""},
        {" S m1F ", "'S' m1", ""},
        {" S m0x10 ", "'S' m0", ""},
        {" S mff ", "'S_mff'", " long='S mff'"},
        {" S mx1 ", "'S_mx1'", " long='S mx1'"},
    });
}

TEST_F(MultiplexIndicator, IsNotParsedWhenCombined) {
    CheckHeads({{" Sel m0M ", "'Sel_m0M'", " long='Sel m0M'"}});
}

TEST_F(MultiplexIndicator, IsTakenFromANameThatLooksLikeOne) {
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

TEST_F(BitLayout, HasStartLengthByteOrderAndSign) {
    CheckRows("SG_ S :", "(1,0) [0|1] \"\" N",
              {
                  {" 0|8@1+ ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" 7|16@0- ", "'S' 7|16@0- (1,0) [0|1] '' N"},
                  {"0|8@0+", "'S' 0|8@0+ (1,0) [0|1] '' N"},
                  {" 0 | 8 @ 1 - ", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {"\n0\t|\r8\n@\f1\v-\n", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {" 0|0@1+ ", "'S' 0|0@1+ (1,0) [0|1] '' N"},
                  {" 4294967295|4294967295@1+ ", "'S' 4294967295|4294967295@1+ (1,0) [0|1] '' N"},
                  {" 4294967296|8@1+ ", "error 4"},
                  {" 0|4294967296@1+ ", "error 4"},
              });
}

TEST_F(BitLayout, TakesTheLeadingNumberOfAField) {
    CheckRows("SG_ S :", "(1,0) [0|1] \"\" N",
              {
                  {" 7abc|8xyz@1+ ", "'S' 7|8@1+ (1,0) [0|1] '' N"},
                  {" 1 2|3 4@1+ ", "'S' 1|3@1+ (1,0) [0|1] '' N"},
                  {" 0x10|8@1+ ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" +1|+8@1+ ", "'S' 1|8@1+ (1,0) [0|1] '' N"},
                  {" -1|-2@1+ ", "'S' 4294967295|4294967294@1+ (1,0) [0|1] '' N"},
                  {" 1.9|8.9@1+ ", "'S' 1|8@1+ (1,0) [0|1] '' N"},
                  {" x|8@1+ ", "error 4"},
                  {" |8@1+ ", "error 4"},
                  {"|8@1+ ", "error 4"},
                  {" 0|@1+ ", "error 4"},
                  {" 0|x@1+ ", "error 4"},
              });
}

TEST_F(BitLayout, NeedsAByteOrderOf0Or1ButNoSign) {
    CheckRows("SG_ S : 0|8@", "(1,0) [0|1] \"\" N",
              {
                  {"1 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"0", "'S' 0|8@0+ (1,0) [0|1] '' N"},
                  {"1*", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"10-", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"1--", "'S' 0|8@1- (1,0) [0|1] '' N"},
                  {"2+ ", "error 4"},
                  {"+ ", "error 4"},
                  {"x+ ", "error 4"},
                  {" ", "error 4"},
              });
}

TEST_F(BitLayout, NeedsTextAfterByteOrderAndSign) {
    CheckRows("SG_ S :", "",
              {
                  {" 0|", "error 4"},
                  {" 0|8@", "error 4"},
                  {" 0|8@1", "error 4"},
                  {" 0|8@1+", "error 5"},
              });
}

TEST_F(BitLayout, WithoutAnAtIsUnsignedAndLittleEndian) {
    CheckRows("SG_ S : 0|", "(1,0) [0|1] \"\" N",
              {
                  {"8 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"8", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"8- ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"  0000000000008 ", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"4294967295", "'S' 0|4294967295@1+ (1,0) [0|1] '' N"},
                  {"4294967296", "error 4"},
                  {" ", "error 4"},
                  {"x", "error 4"},
              });
}

// The next field is searched from as many characters after the bar as the length has digits in
// decimal, which are more than "-1" has in the text.
TEST_F(BitLayout, WithoutAnAtSkipsAsManyCharactersAsTheLengthHasDigits) {
    CheckRows("SG_ S : 0|", "(1,0) [0|1] \"\" N",
              {
                  {"-1        ", "'S' 0|4294967295@1+ (1,0) [0|1] '' N"},
                  {"-1       ", "error 5"},
                  {"-1 ", "error 5"},
              });
}

TEST_F(BitLayout, FindsSeparatorsInLaterFields) {
    CheckRows("SG_ S :", "",
              {
                  {" 8@1+ (1,0) [0|1] \"\" N", "error 5"},
                  {" 8@1+ (1,0) [0 1] \"\" N", "error 4"},
                  {" 0|8 (1,0) [0|1] \"a@b\" N", "error 4"},
                  {" 0|8 (1,0) [0|1] \"a@1\" N", "error 5"},
              });
}

TEST_F(Scaling, HasFactorAndOffset) {
    CheckRows("SG_ S : 0|8@1+ ", " [0|1] \"\" N",
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

TEST_F(Scaling, IsRefusedWithoutSeparatorsOrNumbers) {
    CheckRows("SG_ S : 0|8@1+ ", "",
              {
                  {"", "error 5"},
                  {"1,0) [0|1] \"\" N", "error 5"},
                  {"(1 0) [0|1] \"\" N", "error 5"},
                  {"(1,0 [0|1] \"\" N", "error 5"},
                  {"(,0) [0|1] \"\" N", "error 5"},
                  {"( ,0) [0|1] \"\" N", "error 5"},
                  {"(x,0) [0|1] \"\" N", "error 5"},
                  {"((1,0) [0|1] \"\" N", "error 5"},
                  {"(1,) [0|1] \"\" N", "error 5"},
                  {"(1, ) [0|1] \"\" N", "error 5"},
                  {"(1,x) [0|1] \"\" N", "error 5"},
                  {"(1e999,0) [0|1] \"\" N", "error 5"},
                  {"(-1e999,0) [0|1] \"\" N", "error 5"},
                  {"(1e-999,0) [0|1] \"\" N", "error 5"},
                  {"(1,1e999) [0|1] \"\" N", "error 5"},
              });
}

TEST_F(Scaling, FindsSeparatorsInLaterFields) {
    CheckRows("SG_ S : 0|8@1+ ", "",
              {
                  {"(1 0) [0|1] \"\" A,B)", "error 5"},
                  {"(1 0) [0|1] \"\" A,2)", "error 6"},
                  {"(1 0) [0|1] \"\" A,2) [3|4] \"u\" N", "'S' 0|8@1+ (1,2) [3|4] 'u' N"},
                  {"(1,0 [0|1] \")\" N", "error 6"},
              });
}

TEST_F(Range, HasMinimumAndMaximum) {
    CheckRows("SG_ S : 0|8@1+ (1,0)", "\"\" N",
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

TEST_F(Range, SwapsReversedBounds) {
    CheckRows("SG_ S : 0|8@1+ (1,0)", "\"\" N",
              {
                  {" [10|0] ", "'S' 0|8@1+ (1,0) [0|10] '' N"},
                  {" [1.5|-1.5] ", "'S' 0|8@1+ (1,0) [-1.5|1.5] '' N"},
                  {" [0.5|0.25] ", "'S' 0|8@1+ (1,0) [0.25|0.5] '' N"},
                  {" [inf|-inf] ", "'S' 0|8@1+ (1,0) [-inf|inf] '' N"},
              });
}

TEST_F(Range, IsRefusedWithoutSeparatorsOrNumbers) {
    CheckRows("SG_ S : 0|8@1+ (1,0) ", "",
              {
                  {"", "error 6"},
                  {"0|1] \"\" N", "error 6"},
                  {"[0 1] \"\" N", "error 6"},
                  {"[0|1 \"\" N", "error 6"},
                  {"[|1] \"\" N", "error 6"},
                  {"[ |1] \"\" N", "error 6"},
                  {"[x|1] \"\" N", "error 6"},
                  {"[0|] \"\" N", "error 6"},
                  {"[0| ] \"\" N", "error 6"},
                  {"[0|x] \"\" N", "error 6"},
                  {"[1e999|0] \"\" N", "error 6"},
                  {"[0|1e999] \"\" N", "error 6"},
                  {"[0|1e-999] \"\" N", "error 6"},
              });
}

TEST_F(Range, FindsSeparatorsInLaterFields) {
    CheckRows("SG_ S : 0|8@1+ (1,0) ", "",
              {
                  {"[0|1 \"]\" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"[0 1] \"a|2]\" N", "'S' 0|8@1+ (1,0) [0|2] '' N"},
              });
}

TEST_F(Unit, IsTheTextBetweenTheFirstTwoQuotes) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {" \"km/h\" N", "'S' 0|8@1+ (1,0) [0|1] 'km/h' N"},
                  {"\"km/h\"N", "'S' 0|8@1+ (1,0) [0|1] 'km/h' N"},
                  {" \"km/h\"", "'S' 0|8@1+ (1,0) [0|1] 'km/h'"},
                  {" \"\" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" \" \t\n\" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {" \" k m \" N", "'S' 0|8@1+ (1,0) [0|1] 'k m' N"},
                  {" \"k\tm\nh\" N", R"('S' 0|8@1+ (1,0) [0|1] 'k\tm\nh' N)"},
                  {" \"a\\\"b\" N", R"('S' 0|8@1+ (1,0) [0|1] 'a\\' b__N)"},
                  {" stray \"u\" N", "'S' 0|8@1+ (1,0) [0|1] 'u' N"},
                  {" \"a unit of more than the thirty-two bytes\" N",
                   "'S' 0|8@1+ (1,0) [0|1] 'a unit of more than the thirty-two bytes' N"},
              });
}

TEST_F(Unit, KeepsNonAsciiCharactersInUtf8Only) {
    CheckRows(
        "SG_ S : 0|8@1+ (1,0) [0|1] \"", "\" N",
        {
            {"\xC2\xB0K", "'S' 0|8@1+ (1,0) [0|1] '_K' N utf8='\xC2\xB0K'"},
            {" \xE2\x82\xAC ", "'S' 0|8@1+ (1,0) [0|1] '_' N utf8='\xE2\x82\xAC'"},
            {"a\xF0\x9F\x9A\x97z", "'S' 0|8@1+ (1,0) [0|1] 'a_z' N utf8='a\xF0\x9F\x9A\x97z'"},
        });
}

TEST_F(Unit, IsEmptyWithoutQuotesAndOneCharacterIsSkipped) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {"", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {" N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"  N", "'S' 0|8@1+ (1,0) [0|1] '' N"},
                  {"N", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {"xA,B", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
              });
}

// The receivers then begin inside a character; its other bytes count as invalid.
TEST_F(Unit, MayBeMissingWhereACharacterOfSeveralBytesIsSkipped) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {"\xC3\xA4", "'S' 0|8@1+ (1,0) [0|1] '' _"},
                  {"\xC3\xA4,A", "'S' 0|8@1+ (1,0) [0|1] '' _,A"},
                  {"\xF0\x9F\x9A\x97z", "'S' 0|8@1+ (1,0) [0|1] '' ___z"},
                  {" \xC3\xA4", "'S' 0|8@1+ (1,0) [0|1] '' _"},
              });
}

TEST_F(Unit, IsEmptyWithTheOpeningQuoteOnly) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1]", "",
              {
                  {" \"abc N", "'S' 0|8@1+ (1,0) [0|1] '' _abc_N"},
                  {"\"abc N", "'S' 0|8@1+ (1,0) [0|1] '' abc_N"},
                  {" \"A,B", "'S' 0|8@1+ (1,0) [0|1] '' _A,B"},
                  {" \"", "'S' 0|8@1+ (1,0) [0|1] '' _"},
              });
}

TEST_F(Receivers, AreSeparatedByCommasOnly) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1] \"\"", "",
              {
                  {" A,B", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
                  {" A , B ,, D", "'S' 0|8@1+ (1,0) [0|1] '' A,B,D"},
                  {",A,", "'S' 0|8@1+ (1,0) [0|1] '' A"},
                  {" , ", "'S' 0|8@1+ (1,0) [0|1] ''"},
                  {" A B", "'S' 0|8@1+ (1,0) [0|1] '' A_B"},
                  {" A,\n\tB", "'S' 0|8@1+ (1,0) [0|1] '' A,B"},
                  {" B,A,B", "'S' 0|8@1+ (1,0) [0|1] '' B,A,B"},
                  {" A;", "'S' 0|8@1+ (1,0) [0|1] '' A_"},
                  {" A\nstray text", "'S' 0|8@1+ (1,0) [0|1] '' A_stray_text"},
                  {" Marrowby", "'S' 0|8@1+ (1,0) [0|1] '' Marrowby"},
              });
}

TEST_F(Receivers, BecomeIdentifiers) {
    CheckRows("SG_ S : 0|8@1+ (1,0) [0|1] \"\"", "",
              {
                  {" 1st", "'S' 0|8@1+ (1,0) [0|1] '' _st"},
                  {" \xC3\x84,a-b", "'S' 0|8@1+ (1,0) [0|1] '' _,a_b"},
                  {" abcdefghijklmnopqrstuvwxyz01234567890123",
                   "'S' 0|8@1+ (1,0) [0|1] '' abcdefghijklmnopqrstuvwxyz012345"},
              });
}

TEST_F(Receivers, HaveNoLimit) {
    std::string list = "N0";
    for (int number = 1; number < 5000; ++number) {
        list += test::Concat(",N", std::to_string(number));
    }
    EXPECT_EQ(Parsed(test::Concat("SG_ S : 0|8@1+ (1,0) [0|1] \"\" ", list)),
              test::Concat("'S' 0|8@1+ (1,0) [0|1] '' ", list));
}

}  // namespace
}  // namespace vexil
