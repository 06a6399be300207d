// Tests of the functions that fetch and append messages, signals, value descriptions and parse
// errors: indexes, null pointers, counts and order. tests/frame tests the fields of the records.
// SPDX-License-Identifier: MIT
#include <limits>
#include <vector>

#include "api/api_test.h"

namespace vexil::test {
namespace {

constexpr std::uint32_t tooLarge = std::numeric_limits<std::uint32_t>::max();

const MessageFields engine = {.id = 291,
                              .name = "Engine",
                              .dlc = 8,
                              .longName = "Engine",
                              .transmitter = "ECU1",
                              .comment = "Main data"};

const SignalFields speed = {.name = "Speed",
                            .longName = "Speed",
                            .unit = "km/h",
                            .receiverList = "ABS,ECU2",
                            .comment = "Vehicle speed",
                            .multiplexType = MultiplexSelected,
                            .multiplexValue = 3,
                            .startBit = 7,
                            .bitLength = 32,
                            .byteOrder = ByteOrderBigEndian,
                            .valueType = ValueFloat32,
                            .factor = 0.1,
                            .offset = -40,
                            .minimum = -1,
                            .maximum = 6553.5,
                            .startValue = -5,
                            .inactiveValue = 6,
                            .unitUtf8 = "km/h"};

class RecordFunctionsTest : public ApiTest {
  protected:
    // Expects these numbers of messages, of signals of the first message and of value descriptions
    // of its first signal.
    static void ExpectCounts(std::uint64_t messages, std::uint32_t signals, std::uint32_t enums) {
        EXPECT_EQ(VexilGetNumCanMessages(), messages);
        EXPECT_EQ(SignalCount(0), signals);
        EXPECT_EQ(EnumCount(0, 0), enums);
    }

    // Appends one message with one signal with one value description.
    static void AppendOneOfEach() {
        AppendMessage(engine);
        AppendSignal(0, speed);
        AppendEnum(0, 0, {1, "On"});
    }
};

// -- Messages ---------------------------------------------------------------------------------

TEST_F(RecordFunctionsTest, AppendCanMessageAddsAtTheEnd) {
    AppendMessage(engine);
    AppendMessage({.id = 1, .longName = "Second"});
    AppendMessage({.id = 291, .longName = "Engine"});
    EXPECT_EQ(VexilGetNumCanMessages(), 3U);
    ExpectMessage(0, engine);
    ExpectMessage(1, {.id = 1, .name = "Second", .longName = "Second"});
    ExpectMessage(2, {.id = 291, .name = "Engine", .longName = "Engine"});
}

// -- Signals ----------------------------------------------------------------------------------

TEST_F(RecordFunctionsTest, AppendCanSignalAddsAtTheEndOfItsMessage) {
    AppendMessage(engine);
    AppendMessage({.id = 1});
    AppendSignal(1, speed);
    AppendSignal(1, {.longName = "Second"});
    AppendSignal(0, {.longName = "Other"});
    EXPECT_EQ(SignalCount(0), 1U);
    EXPECT_EQ(SignalCount(1), 2U);
    ExpectSignal(1, 0, speed);
    ExpectSignal(1, 1, {.name = "Second", .longName = "Second"});
    ExpectSignal(0, 0, {.name = "Other", .longName = "Other"});
    ExpectMessage(1, {.id = 1, .signalCount = 2});
}

TEST_F(RecordFunctionsTest, AppendCanSignalDropsSignal10001AndSucceeds) {
    AppendMessage(engine);
    CanSignalRecord record = RecordOf(speed);
    for (std::uint32_t count = 0; count < 9999; ++count) {
        ASSERT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 1);
    }
    EXPECT_EQ(SignalCount(0), 9999U);
    AppendSignal(0, {.longName = "Last"});
    AppendSignal(0, {.longName = "Dropped"});
    EXPECT_EQ(SignalCount(0), 10000U);
    ExpectSignal(0, 9999, {.name = "Last", .longName = "Last"});
    // A full message still refuses invalid text.
    record.longName[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
}

TEST_F(RecordFunctionsTest, AFetchedRecordCanBeAppendedUnchanged) {
    AppendMessage({.id = 5, .longName = "T\xc3\xbcr 1", .comment = "say \"hello\""});
    AppendSignal(0, {.longName = "T\xc3\xbcr 1", .unit = "km", .receiverList = "A,B"});
    auto message = Filled<CanMessageRecord>(Pattern);
    auto signal = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &message), 1);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &signal), 1);
    EXPECT_EQ(VexilAppendCanMessage(&message), 1);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(1, &signal), 1);
    auto sameMessage = Filled<CanMessageRecord>(Pattern);
    auto sameSignal = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(1, &sameMessage), 1);
    EXPECT_EQ(VexilGetCanSignalData(1, 0, &sameSignal), 1);
    EXPECT_TRUE(SameBytes(sameMessage, message));
    EXPECT_TRUE(SameBytes(sameSignal, signal));
}

// -- Value descriptions -----------------------------------------------------------------------

TEST_F(RecordFunctionsTest, EnumsAreFetchedInTheOrderOfTheirValues) {
    AppendOneOfEach();
    AppendEnum(0, 0, {2, "two"});
    AppendEnum(0, 0, {-1, "minus one"});
    AppendEnum(0, 0, {2, "zwei"});
    ExpectCounts(1, 1, 3);
    ExpectEnum(0, 0, 0, {-1, "minus one"});
    ExpectEnum(0, 0, 1, {1, "On"});
    ExpectEnum(0, 0, 2, {2, "two - zwei"});
    SignalFields fields = speed;
    fields.enumCount = 3;
    ExpectSignal(0, 0, fields);
}

TEST_F(RecordFunctionsTest, GetCanSignalEnumDataCutsTheTextAtACharacter) {
    AppendOneOfEach();
    AppendEnum(0, 0, {1, std::string(249, 'x') + "\xc3\xa9 mo"});
    // "On - " and 249 bytes leave room for one.
    ExpectEnum(0, 0, 0, {1, "On - " + std::string(249, 'x')});
    AppendEnum(0, 0, {2, std::string(255, 'y')});
    AppendEnum(0, 0, {2, "z"});
    ExpectEnum(0, 0, 1, {2, std::string(255, 'y')});
}

// -- Parse errors -----------------------------------------------------------------------------

TEST_F(RecordFunctionsTest, GetErrorDataFetchesTheErrorsOfTheReadInTheirOrder) {
    EXPECT_EQ(ReadText("BO_ x\nBO_ 1 A: 8 N\nSG_ bad\n"), Success);
    // Appends and writes do not change the errors.
    AppendMessage({.id = 2});
    EXPECT_EQ(Write(folder.File("out.dbc")), Success);
    EXPECT_EQ(VexilGetNumCanErrors(), 2U);
    ExpectError(1, {StepSignalName, 2, "SG_ bad"});
    ExpectError(0, {StepMessageId, 1, "BO_ x"});
    VexilClearData();
    EXPECT_EQ(VexilGetNumCanErrors(), 0U);
}

// -- Refused calls ----------------------------------------------------------------------------

TEST_F(RecordFunctionsTest, AppendsRefuseInvalidTextAndNullRecords) {
    AppendOneOfEach();
    const auto invalid = [](auto record, auto member) {
        (record.*member)[0] = '\x80';
        return record;
    };
    for (const auto member : {&CanMessageRecord::longName, &CanMessageRecord::comment}) {
        const CanMessageRecord record = invalid(RecordOf(engine), member);
        EXPECT_EQ(VexilAppendCanMessage(&record), 0);
    }
    for (const auto member : {&CanSignalRecord::longName, &CanSignalRecord::comment}) {
        const CanSignalRecord record = invalid(RecordOf(speed), member);
        EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
    }
    const CanEnumRecord record = RecordOf(EnumFields{1, "\x80 bad"});
    EXPECT_EQ(VexilAppendEnumToCanSignal(0, 0, &record), 0);
    EXPECT_EQ(VexilAppendCanMessage(nullptr), 0);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, nullptr), 0);
    ExpectCounts(1, 1, 1);
    ExpectEnum(0, 0, 0, {1, "On"});
}

TEST_F(RecordFunctionsTest, FetchesFailForANullRecord) {
    AppendOneOfEach();
    EXPECT_EQ(VexilGetCanMessageData(0, nullptr), 0);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, nullptr), 0);
    EXPECT_EQ(ReadText("BO_ x\n"), Success);
    EXPECT_EQ(VexilGetErrorData(0, nullptr), 0);
    EXPECT_EQ(VexilGetErrorData(1, nullptr), 0);
}

TEST_F(RecordFunctionsTest, CallsFailForAnIndexOutOfRangeAndChangeNothing) {
    struct Row {
        std::uint32_t message;
        std::uint32_t signal;
        std::uint32_t description;
    };
    const auto expectFailures = [](const Row& row) {
        SCOPED_TRACE(testing::Message()
                     << row.message << ", " << row.signal << ", " << row.description);
        std::uint32_t count = 77;
        auto signal = Filled<CanSignalRecord>(Pattern);
        auto description = Filled<CanEnumRecord>(Pattern);
        EXPECT_EQ(VexilGetCanSignalEnumData(row.message, row.signal, row.description, &description),
                  0);
        EXPECT_TRUE(IsUntouched(description));
        if (row.description != 0) {
            return;
        }
        EXPECT_EQ(VexilGetCanSignalData(row.message, row.signal, &signal), 0);
        EXPECT_TRUE(IsUntouched(signal));
        EXPECT_EQ(VexilGetNumEnumsInCanSignal(row.message, row.signal, &count), 0);
        EXPECT_EQ(count, 77U);
        EXPECT_EQ(VexilAppendEnumToCanSignal(row.message, row.signal, &description), 0);
        if (row.signal != 0) {
            return;
        }
        auto message = Filled<CanMessageRecord>(Pattern);
        EXPECT_EQ(VexilGetCanMessageData(row.message, &message), 0);
        EXPECT_TRUE(IsUntouched(message));
        EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(row.message, &count), 0);
        EXPECT_EQ(count, 77U);
        signal = RecordOf(speed);
        EXPECT_EQ(VexilAppendCanSignalToCanMessage(row.message, &signal), 0);
        EXPECT_EQ(VexilAppendCanSignalToCanMessage(row.message, nullptr), 0);
        auto error = Filled<ParseError>(Pattern);
        EXPECT_EQ(VexilGetErrorData(row.message, &error), 0);
        EXPECT_TRUE(IsUntouched(error));
    };
    expectFailures({0, 0, 0});
    AppendOneOfEach();
    for (const Row& row : {Row{1, 0, 0}, Row{tooLarge, 0, 0}, Row{0, 1, 0}, Row{0, tooLarge, 0},
                           Row{1, 1, 0}, Row{0, 0, 1}, Row{0, 0, tooLarge}}) {
        expectFailures(row);
    }
    ExpectCounts(1, 1, 1);
    EXPECT_EQ(ReadText("BO_ x\nBO_ 1 A: 8 N\n"), Success);
    expectFailures({1, 0, 0});
}

// -- Appending to a database that was read ----------------------------------------------------

TEST_F(RecordFunctionsTest, AppendsContinueAfterTheContentOfAFile) {
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n"
                       " SG_ S : 0|8@1+ (1,0) [0|1] \"\" R\n"
                       "VAL_ 1 S 1 \"One\" ;\n"),
              Success);
    AppendMessage(engine);
    AppendSignal(0, speed);
    AppendSignal(1, speed);
    AppendEnum(0, 0, {1, "Eins"});
    AppendEnum(0, 0, {0, "Null"});
    EXPECT_EQ(VexilGetNumCanMessages(), 2U);
    EXPECT_EQ(SignalCount(0), 2U);
    ExpectSignal(0, 1, speed);
    ExpectSignal(1, 0, speed);
    ExpectEnum(0, 0, 0, {0, "Null"});
    ExpectEnum(0, 0, 1, {1, "One - Eins"});
}

}  // namespace
}  // namespace vexil::test
