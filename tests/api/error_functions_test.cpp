// Tests of the list of refused statements as a host sees it.
// SPDX-License-Identifier: MIT
#include <limits>

#include "api/api_test.h"

namespace vexil::test {
namespace {

class ErrorFunctionsTest : public ApiTest {
  protected:
    // Expects that a file with this statement, behind a good message and with one in the next line,
    // leaves one error.
    void ExpectCode(const std::string& statement, std::uint32_t code) {
        SCOPED_TRACE(statement);
        ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n" + statement + "\nBO_ 2 B: 8 N\n"), Success);
        ASSERT_EQ(VexilGetNumCanErrors(), 1U);
        ExpectError(0, {code, 2, statement});
        EXPECT_EQ(VexilGetNumCanMessages(), 2U);
    }
};

TEST_F(ErrorFunctionsTest, TellTheStepOfAMessageThatFailed) {
    ExpectCode("BO_ x1 Engine: 8 ECU1", StepMessageId);
    ExpectCode("BO_ 4294967296 Engine: 8 ECU1", StepMessageId);
    ExpectCode("BO_", StepMessageId);
    ExpectCode("BO_ 291 Engine 8 ECU1", StepMessageName);
    ExpectCode("BO_ 291 : 8 ECU1", StepMessageName);
    ExpectCode("BO_ 291 Engine: big ECU1", StepMessageSize);
    ExpectCode("BO_ 291 Engine:", StepMessageSize);
}

TEST_F(ErrorFunctionsTest, TellTheStepOfASignalThatFailed) {
    ExpectCode("SG_ Speed 0|16@1+ (1,0)", StepSignalName);
    ExpectCode("SG_ Speed : 0|16@2+ (1,0)", StepSignalLayout);
    ExpectCode("SG_ Speed : 0|16@1+ (1)", StepSignalScaling);
    ExpectCode("SG_ Speed : 0|16@1+ (1,0) [0]", StepSignalRange);
    // The first step that fails is the one that is told.
    ExpectCode("SG_ Speed : 0|16@2+ (1)", StepSignalLayout);
}

TEST_F(ErrorFunctionsTest, TellTheLineAboveTheNextKeyword) {
    EXPECT_EQ(ReadText("\n\nBO_ x one\nBO_ x two\n\n\nBO_ x three BO_ x four\nBO_ x five\nmore\n"),
              Success);
    ASSERT_EQ(VexilGetNumCanErrors(), 5U);
    ExpectError(0, {StepMessageId, 3, "BO_ x one"});
    ExpectError(1, {StepMessageId, 6, "BO_ x two\n\n"});
    ExpectError(2, {StepMessageId, 6, "BO_ x three"});
    ExpectError(3, {StepMessageId, 7, "BO_ x four"});
    // Behind the last one stands no keyword: one less than the number of lines.
    ExpectError(4, {StepMessageId, 8, "BO_ x five\nmore"});
    EXPECT_EQ(ReadText("BO_ x"), Success);
    ExpectError(0, {StepMessageId, 0, "BO_ x"});
}

TEST_F(ErrorFunctionsTest, TellAtMost254BytesAndNeverTheLast) {
    for (const std::size_t size : {10U, 254U, 255U, 256U, 300U, 4000U}) {
        const std::string statement = "BO_ x" + std::string(size - 6, 'y') + "\n";
        ASSERT_EQ(ReadText(statement + "BU_ :\n"), Success);
        ASSERT_EQ(VexilGetNumCanErrors(), 1U);
        ExpectError(0,
                    {StepMessageId, 1, statement.substr(0, std::min<std::size_t>(size - 1, 254))});
    }
}

TEST_F(ErrorFunctionsTest, CutNoCharacter) {
    for (const std::string character : {"\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 249; front <= 255; ++front) {
            const std::string statement =
                "BO_ x" + std::string(front - 5, 'y') + character + "more";
            ASSERT_EQ(ReadText(statement + "\n"), Success);
            const bool isCut = front < 254 && front + character.size() > 254;
            ExpectError(0, {StepMessageId, 0, statement.substr(0, isCut ? front : 254)});
        }
    }
}

TEST_F(ErrorFunctionsTest, TellTextAsItWasRepaired) {
    EXPECT_EQ(ReadText("BO_ x\x01 T\xfcr\x7f caf\xc3\xa9\r\nBO_ 1 A: 8 N\n"), Success);
    ExpectError(0, {StepMessageId, 1, "BO_ x T_r caf\xc3\xa9\r"});
}

TEST_F(ErrorFunctionsTest, TellNothingOfOtherStatements) {
    EXPECT_EQ(ReadText("SG_ S\nBO_ x A: 8 N\nSG_ S\nSG_ T\nBO_ 1 B: 8 N\n"
                       "SG_ U : 0|1@1+ (1,0) [0|1] \"\" N\nSG_ bad\nSG_ V\n"
                       "CM_ x;\nVAL_ x;\nSIG_VALTYPE_ x;\nBA_ x;\nBA_DEF_ x;\nBA_DEF_DEF_ x;\n"
                       "BU_ x\nEV_ x\nCM_ SG_ 1 U bad;\n"),
              Success);
    ASSERT_EQ(VexilGetNumCanErrors(), 2U);
    ExpectError(0, {StepMessageId, 2, "BO_ x A: 8 N"});
    ExpectError(1, {StepSignalName, 7, "SG_ bad"});
    EXPECT_EQ(SignalCount(0), 1U);
}

TEST_F(ErrorFunctionsTest, AreEmptiedByClearAndByEveryRead) {
    EXPECT_EQ(ReadText("BO_ x\nBO_ y\n"), Success);
    EXPECT_EQ(VexilGetNumCanErrors(), 2U);
    VexilClearData();
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
    EXPECT_EQ(ReadText("BO_ x\nBO_ y\n"), Success);
    EXPECT_EQ(ReadText("BO_ z\n"), Success);
    EXPECT_EQ(VexilGetNumCanErrors(), 1U);
    EXPECT_EQ(Read(folder.File("missing.dbc")), (Outcome{0, StateOpenFailed}));
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
}

TEST_F(ErrorFunctionsTest, AreLeftAloneByWritesAndAppends) {
    EXPECT_EQ(ReadText("BO_ x\nBO_ 1 A: 8 N\n"), Success);
    AppendMessage({.id = 2});
    AppendSignal(0, {.longName = "S"});
    AppendEnum(0, 0, {1, "On"});
    const CanMessageRecord bad = Filled<CanMessageRecord>(0x80);
    EXPECT_EQ(VexilAppendCanMessage(&bad), 0);
    EXPECT_EQ(Write(folder.File("out.dbc")), Success);
    EXPECT_EQ(VexilGetNumCanErrors(), 1U);
    ExpectError(0, {StepMessageId, 1, "BO_ x"});
}

TEST_F(ErrorFunctionsTest, FailForAnIndexThatIsTooLargeAndForNull) {
    auto record = Filled<ParseError>(Pattern);
    EXPECT_EQ(VexilGetErrorData(0, &record), 0);
    EXPECT_EQ(VexilGetErrorData(0, nullptr), 0);
    EXPECT_EQ(ReadText("BO_ x\n"), Success);
    EXPECT_EQ(VexilGetErrorData(1, &record), 0);
    EXPECT_EQ(VexilGetErrorData(std::numeric_limits<std::uint32_t>::max(), &record), 0);
    EXPECT_EQ(VexilGetErrorData(0, nullptr), 0);
    EXPECT_EQ(VexilGetErrorData(1, nullptr), 0);
    EXPECT_TRUE(IsUntouched(record));
}

TEST_F(ErrorFunctionsTest, AreFetchedAgainAndAgain) {
    EXPECT_EQ(ReadText("BO_ x\nBO_ y\n"), Success);
    ExpectError(1, {StepMessageId, 1, "BO_ y"});
    ExpectError(0, {StepMessageId, 1, "BO_ x"});
    ExpectError(0, {StepMessageId, 1, "BO_ x"});
}

}  // namespace
}  // namespace vexil::test
