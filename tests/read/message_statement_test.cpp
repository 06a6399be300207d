// Tests of BO_ statements: what they leave in a message, and what is refused.
// SPDX-License-Identifier: MIT
#include "read/parsed.h"

namespace vexil {
namespace {

using MessageStatement = test::ParseTest;

TEST_F(MessageStatement, HasIdNameSizeAndTransmitter) {
    CheckRows({
        {"BO_ 291 Engine: 8 ECU1", "291 'Engine' 8 'ECU1'"},
        {" \n\tBO_\f\v291\r\nEngine:\n8\nECU1\n", "291 'Engine' 8 'ECU1'"},
        {"BO_ 291 Engine:8 ECU1", "291 'Engine' 8 'ECU1'"},
        {"BO_ 291 Engine : 8 ECU1", "291 'Engine' 8 'ECU1'"},
    });
}

TEST_F(MessageStatement, IdIsAnUnsignedNumberOf32Bits) {
    CheckRows({
        {"BO_ 0 M: 8 N", "0 'M' 8 'N'"},
        {"BO_ 007 M: 8 N", "7 'M' 8 'N'"},
        {"BO_ 2147483748 M: 8 N", "2147483748 'M' 8 'N'"},
        {"BO_ 4294967295 M: 8 N", "4294967295 'M' 8 'N'"},
        {"BO_ 4294967296 M: 8 N", "error 0"},
        {"BO_ 99999999999999999999 M: 8 N", "error 0"},
        {"BO_ +1 M: 8 N", "error 0"},
        {"BO_ -1 M: 8 N", "error 0"},
        {"BO_ 0x1 M: 8 N", "error 0"},
        {"BO_ 1a M: 8 N", "error 0"},
        {"BO_ 100: 8 N", "error 0"},
        {"BO_ : 8 N", "error 0"},
        {"BO_ Name 1: 8 N", "error 0"},
    });
}

TEST_F(MessageStatement, NameIsTheTextBeforeTheFirstColon) {
    CheckRows({
        {"BO_ 1 Two Words: 8 N", "1 'Two_Words' 8 'N' long='Two Words'"},
        {"BO_ 1 \tTwo \n\t Words\r: 8 N", R"(1 'Two____Words' 8 'N' long='Two    Words')"},
        {"BO_ 1 3rd: 8 N", "1 '_rd' 8 'N' long='3rd'"},
        {"BO_ 1 Gr\xC3\xB6\xC3\x9Fr: 8 N", "1 'Gr__r' 8 'N' long='Gr\xC3\xB6\xC3\x9Fr'"},
        {"BO_ 1 abcdefghijklmnopqrstuvwxyz012345: 8 N",
         "1 'abcdefghijklmnopqrstuvwxyz012345' 8 'N'"},
        {"BO_ 1 abcdefghijklmnopqrstuvwxyz0123456: 8 N",
         "1 'abcdefghijklmnopqrstuvwxyz012345' 8 'N' long='abcdefghijklmnopqrstuvwxyz0123456'"},
        {"BO_ 1 \"Q\": 8 N", "1 '_Q_' 8 'N' long='\"Q\"'"},
        {"BO_ 1 A:B: 8 N", "error 2"},
        {"BO_ 1 : 8 N", "error 1"},
        {"BO_ 1 \t\n : 8 N", "error 1"},
        {"BO_ 1 A 8 N", "error 1"},
        {"BO_ 1 ", "error 1"},
    });
}

TEST_F(MessageStatement, SizeIsTheNumberAfterTheColon) {
    CheckRows({
        {"BO_ 1 M: 0 N", "1 'M' 0 'N'"},
        {"BO_ 1 M: 300 N", "1 'M' 300 'N'"},
        {"BO_ 1 M: 008 N", "1 'M' 8 'N'"},
        {"BO_ 1 M: \r\n\t 8 N", "1 'M' 8 'N'"},
        {"BO_ 1 M: 4294967295 N", "1 'M' 4294967295 'N'"},
        {"BO_ 1 M: 4294967296 N", "error 2"},
        {"BO_ 1 M:", "error 2"},
        {"BO_ 1 M: N", "error 2"},
        {"BO_ 1 M: N 8", "error 2"},
        {"BO_ 1 M: x8 N", "error 2"},
        {"BO_ 1 M: -8 N", "error 2"},
        {"BO_ 1 M: +8 N", "error 2"},
        {"BO_ 1 M: : 8 N", "error 2"},
    });
}

TEST_F(MessageStatement, TransmitterIsTheTextAfterTheSize) {
    CheckRows({
        {"BO_ 1 M: 8", "1 'M' 8 ''"},
        {"BO_ 1 M: 8 \t\n ", "1 'M' 8 ''"},
        {"BO_ 1 M: 8ECU", "1 'M' 8 'ECU'"},
        {"BO_ 1 M: 8.5 N", "1 'M' 8 '_5_N'"},
        {"BO_ 1 M: 8 A B", "1 'M' 8 'A_B'"},
        {"BO_ 1 M: 8 A,B", "1 'M' 8 'A_B'"},
        {"BO_ 1 M: 8 A\nstray text;", "1 'M' 8 'A_stray_text_'"},
        {"BO_ 1 M: 8 1st", "1 'M' 8 '_st'"},
        {"BO_ 1 M: 8 Marrowby", "1 'M' 8 'Marrowby'"},
        {"BO_ 1 M: 8 N\xC3\xB6rd", "1 'M' 8 'N_rd'"},
        {"BO_ 1 M: 8 abcdefghijklmnopqrstuvwxyz0123456",
         "1 'M' 8 'abcdefghijklmnopqrstuvwxyz012345'"},
    });
}

TEST_F(MessageStatement, IsParsedAtEachLength) {
    CheckBeginnings(3, {
                           {"BO_ ", "error 0"},
                           {"BO_ 291 Engine", "error 1"},
                           {"BO_ 291 Engine: ", "error 2"},
                           {"BO_ 291 Engine: 8 ", "291 'Engine' 8 ''"},
                           {"BO_ 291 Engine: 8 E", "291 'Engine' 8 'E'"},
                           {"BO_ 291 Engine: 8 EC", "291 'Engine' 8 'EC'"},
                       });
}

TEST_F(MessageStatement, LeavesOnlyAnErrorWhenRefused) {
    test::ReadText("BO_ x M: 8 N\nBO_ 1 M 8 N\n\nBO_ 1 M:\nBU_ :\n");
    EXPECT_EQ(test::DumpDatabase(),
              "error 0 @1 'BO_ x M: 8 N'\n"
              "error 1 @3 'BO_ 1 M 8 N\\n'\n"
              "error 2 @4 'BO_ 1 M:'\n");
}

TEST_F(MessageStatement, WithAKnownIdAddsAnotherMessage) {
    test::ReadText(
        "BO_ 5 A: 8 N\n"
        "BO_ 7 C: 8 N\n"
        "BO_ 5 B: 8 N\n"
        " SG_ S : 0|8@1+ (1,0) [0|1] \"\" N\n"
        "CM_ BO_ 5 \"both\";\n");
    EXPECT_EQ(test::DumpDatabase(),
              "5 'A' 8 'N' comment='both'\n"
              "7 'C' 8 'N'\n"
              "5 'B' 8 'N' comment='both'\n"
              "  'S' 0|8@1+ (1,0) [0|1] '' N\n");
}

}  // namespace
}  // namespace vexil
