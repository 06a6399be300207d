// Tests of SG_ statements as a whole: the order of the steps, the error of a refused statement, and
// where the signal goes. The steps themselves are in signal_steps_test.cpp.
// SPDX-License-Identifier: MIT
#include "read/parsed.h"

namespace vexil {
namespace {

using SignalStatement = test::ParseTest;

TEST_F(SignalStatement, HasAllFields) {
    CheckRows({
        {R"(SG_ S : 0|8@1+ (1,0) [0|255] "" N)", "'S' 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S M : 0|8@1+ (1,0) [0|255] "" N)", "'S' M 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S m12 : 0|8@1+ (1,0) [0|255] "" N)", "'S' m12 0|8@1+ (1,0) [0|255] '' N"},
        {R"(SG_ S : 7|8@0- (0.5,-40) [-40|87.5] "degC" A,B)",
         "'S' 7|8@0- (0.5,-40) [-40|87.5] 'degC' A,B"},
        {R"(SG_ : 0|8@1+ (1,0) [0|1] "" N)", "'' 0|8@1+ (1,0) [0|1] '' N"},
        {"\n SG_\tS\n:\n0|8@1+\n(1,0)\n[0|255]\n\"\"\nN\n", "'S' 0|8@1+ (1,0) [0|255] '' N"},
        {"SG_ S:0|8@1+(1,0)[0|255]\"\"N", "'S' 0|8@1+ (1,0) [0|255] '' N"},
    });
}

TEST_F(SignalStatement, StopsAtTheFirstStepThatFails) {
    CheckRows({
        {"SG_ S 0-8 1,0 0-1", "error 3"},
        {"SG_ S : 0-8@1+ (1 0) [0 1]", "error 4"},
        {"SG_ S : 0|8@2+ (1,0) [0 1]", "error 4"},
        {"SG_ S : 0|8@1+ (1 0) [0 1]", "error 5"},
        {"SG_ S : 0|8@1+ (1,0) [0 1]", "error 6"},
    });
}

TEST_F(SignalStatement, IsParsedAtEachLength) {
    CheckBeginnings(3, {
                           {"SG_ Speed m1 ", "error 3"},
                           {"SG_ Speed m1 : 8|", "error 4"},
                           {"SG_ Speed m1 : 8|16", "error 5"},
                           {"SG_ Speed m1 : 8|16@1", "error 4"},
                           {"SG_ Speed m1 : 8|16@1- (0.1,-4", "error 5"},
                           {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5", "error 6"},
                           {"SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] ",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] ''"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] ")",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "k)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _k"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] '' _km_h"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" )",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h'"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,B)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A,B"},
                           {R"(SG_ Speed m1 : 8|16@1- (0.1,-4) [-4|9.5] "km/h" A,B2)",
                            "'Speed' m1 8|16@1- (0.1,-4) [-4|9.5] 'km/h' A,B2"},
                       });
}

TEST_F(SignalStatement, LeavesOnlyAnErrorWhenRefused) {
    test::ReadText(
        "BO_ 1 A: 8 N\n"
        "SG_ S\n"
        "BO_ 2 A: 8 N\n"
        "SG_ S : x\n"
        "BO_ 3 A: 8 N\n"
        "SG_ S m2 : 0|8@1+ (1,0) [0]\n"
        "BU_ :\n");
    EXPECT_EQ(test::DumpDatabase(),
              "1 'A' 8 'N'\n"
              "2 'A' 8 'N'\n"
              "3 'A' 8 'N'\n"
              "error 3 @2 'SG_ S'\n"
              "error 4 @4 'SG_ S : x'\n"
              "error 6 @6 'SG_ S m2 : 0|8@1+ (1,0) [0]'\n");
}

// The comment statements show that a dropped signal is not found.
TEST_F(SignalStatement, IsDroppedWithoutAnErrorWhenTheMessageIsFull) {
    std::string text = "BO_ 1 A: 8 N\n";
    for (int number = 0; number < 10002; ++number) {
        text += test::Concat("SG_ S", std::to_string(number), " : 0|8@1+ (1,0) [0|1] \"\" N\n");
    }
    text += "CM_ SG_ 1 S9999 \"c\";\nCM_ SG_ 1 S10000 \"c\";\n";
    EXPECT_EQ(test::ReadText(text), test::GoodRead);
    const CANMessage& message = database.messages[0];
    ASSERT_EQ(message.signals.Size(), 10000U);
    EXPECT_EQ(test::Dump(*message.signals[9999]), "'S9999' 0|8@1+ (1,0) [0|1] '' N comment='c'");
    EXPECT_EQ(database.parseErrors.Size(), 0U);
}

}  // namespace
}  // namespace vexil
