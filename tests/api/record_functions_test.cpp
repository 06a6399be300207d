// Tests of the functions that walk and append messages, signals and value descriptions. What the
// records do with single texts is tested in tests/frame, too; here is what a host sees.
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
    // Expects that a call left the database with these numbers of messages, of signals in the first
    // and of descriptions of its first signal.
    static void ExpectCounts(std::uint64_t messages, std::uint32_t signals, std::uint32_t enums) {
        EXPECT_EQ(VexilGetNumCanMessages(), messages);
        EXPECT_EQ(SignalCount(0), signals);
        EXPECT_EQ(EnumCount(0, 0), enums);
    }

    // One message with one signal with one description.
    static void AppendOneOfEach() {
        AppendMessage(engine);
        AppendSignal(0, speed);
        AppendEnum(0, 0, {1, "On"});
    }

    // The pairs of message and signal index of which at least one is too large.
    static std::vector<std::pair<std::uint32_t, std::uint32_t>> IndexesTooLarge() {
        return {{0, 1}, {0, tooLarge}, {1, 0}, {1, 1}, {tooLarge, 0}, {tooLarge, tooLarge}};
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

TEST_F(RecordFunctionsTest, AppendCanMessageIgnoresWhatTheDatabaseKnowsBetter) {
    MessageFields fields = engine;
    fields.name = "x";
    fields.signalCount = 99;
    fields.sendType = "Cyclic";
    fields.cycleTime = 100;
    AppendMessage(fields);
    ExpectMessage(0, engine);
    EXPECT_EQ(SignalCount(0), 0U);
}

TEST_F(RecordFunctionsTest, AppendCanMessageChecksNoNumber) {
    AppendMessage({.id = tooLarge, .dlc = tooLarge});
    ExpectMessage(0, {.id = tooLarge, .dlc = tooLarge});
}

TEST_F(RecordFunctionsTest, AppendCanMessageBringsTextsIntoShape) {
    AppendMessage(
        {.longName = "1 Engine\tspeed/rpm", .transmitter = "2nd ECU", .comment = "say \"hello\""});
    ExpectMessage(0, {.name = "__Engine_speed_rpm",
                      .longName = "1 Engine speed/rpm",
                      .transmitter = "_nd_ECU",
                      .comment = "say \\\"hello\\\""});
}

TEST_F(RecordFunctionsTest, AppendCanMessageTakesArraysWithoutANul) {
    CanMessageRecord record = RecordOf(engine);
    StoreAll(record.longName, std::string(256, 'l'));
    StoreAll(record.transmitter, std::string(33, 't'));
    StoreAll(record.comment, std::string(256, 'c'));
    EXPECT_EQ(VexilAppendCanMessage(&record), 1);
    ExpectMessage(0, {.id = 291,
                      .name = std::string(32, 'l'),
                      .dlc = 8,
                      .longName = std::string(255, 'l'),
                      .transmitter = std::string(32, 't'),
                      .comment = std::string(255, 'c')});
}

TEST_F(RecordFunctionsTest, AppendCanMessageRefusesNullAndInvalidText) {
    AppendOneOfEach();
    EXPECT_EQ(VexilAppendCanMessage(nullptr), 0);
    CanMessageRecord record = RecordOf(engine);
    record.longName[0] = '\x80';
    EXPECT_EQ(VexilAppendCanMessage(&record), 0);
    record = RecordOf(engine);
    record.transmitter[0] = '\x80';
    EXPECT_EQ(VexilAppendCanMessage(&record), 0);
    record = RecordOf(engine);
    record.comment[0] = '\x80';
    EXPECT_EQ(VexilAppendCanMessage(&record), 0);
    ExpectCounts(1, 1, 1);
}

// A comment goes out with its backslashes and comes back with no more of them.
TEST_F(RecordFunctionsTest, AMessageThatWasFetchedIsAppendedAsItWas) {
    AppendMessage({.id = 5, .longName = "T\xc3\xbcr 1", .comment = "say \"hello\""});
    auto record = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &record), 1);
    EXPECT_EQ(VexilAppendCanMessage(&record), 1);
    auto again = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(1, &again), 1);
    EXPECT_TRUE(SameBytes(again, record));
}

TEST_F(RecordFunctionsTest, GetCanMessageDataFailsForAnIndexThatIsTooLarge) {
    auto record = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &record), 0);
    AppendMessage(engine);
    EXPECT_EQ(VexilGetCanMessageData(1, &record), 0);
    EXPECT_EQ(VexilGetCanMessageData(tooLarge, &record), 0);
    EXPECT_TRUE(IsUntouched(record));
}

TEST_F(RecordFunctionsTest, GetCanMessageDataFailsForNull) {
    AppendMessage(engine);
    EXPECT_EQ(VexilGetCanMessageData(0, nullptr), 0);
    EXPECT_EQ(VexilGetCanMessageData(1, nullptr), 0);
}

// Texts of a file have no limit; those of a record do.
TEST_F(RecordFunctionsTest, GetCanMessageDataCutsTextsAtACharacter) {
    for (const std::string character : {"\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 250; front <= 256; ++front) {
            const std::string text = std::string(front, 'x') + character + "more";
            ASSERT_EQ(ReadText("BO_ 1 " + text + ": 8 N\nCM_ BO_ 1 \"" + text + "\";\n"), Success);
            std::string cut = text.substr(
                0, front < 255 && front + character.size() > 255 ? front : std::size_t{255});
            ExpectMessage(0, {.id = 1,
                              .name = std::string(32, 'x'),
                              .dlc = 8,
                              .longName = cut,
                              .transmitter = "N",
                              .comment = cut});
        }
    }
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

TEST_F(RecordFunctionsTest, AppendCanSignalIgnoresWhatTheDatabaseKnowsBetter) {
    AppendMessage(engine);
    SignalFields fields = speed;
    fields.name = "x";
    fields.enumCount = 99;
    fields.unitUtf8 = "ignored";
    AppendSignal(0, fields);
    ExpectSignal(0, 0, speed);
    EXPECT_EQ(EnumCount(0, 0), 0U);
}

TEST_F(RecordFunctionsTest, AppendCanSignalBringsTextsIntoShape) {
    AppendMessage(engine);
    AppendSignal(0, {.longName = "1 speed\n",
                     .unit = "\xc2\xb0"
                             "C",
                     .receiverList = " A B ,, 2nd",
                     .comment = "\"x\""});
    ExpectSignal(0, 0,
                 {.name = "__speed_",
                  .longName = "1 speed ",
                  .unit = "_C",
                  .receiverList = "A_B,_nd",
                  .comment = "\\\"x\\\"",
                  .unitUtf8 = "\xc2\xb0"
                              "C"});
}

TEST_F(RecordFunctionsTest, AppendCanSignalMakesAFloatOfTheWrongSizeASignedInteger) {
    AppendMessage(engine);
    SignalFields fields = {.bitLength = 32, .valueType = ValueFloat64};
    AppendSignal(0, fields);
    fields.valueType = ValueSigned;
    ExpectSignal(0, 0, fields);
    fields = {.bitLength = 64, .valueType = ValueFloat32};
    AppendSignal(0, fields);
    fields.valueType = ValueSigned;
    ExpectSignal(0, 1, fields);
    fields = {.bitLength = 64, .valueType = ValueFloat64};
    AppendSignal(0, fields);
    ExpectSignal(0, 2, fields);
}

TEST_F(RecordFunctionsTest, AppendCanSignalChecksNoOtherNumber) {
    AppendMessage(engine);
    const SignalFields fields = {.multiplexType = tooLarge,
                                 .multiplexValue = tooLarge,
                                 .startBit = tooLarge,
                                 .bitLength = tooLarge,
                                 .byteOrder = tooLarge,
                                 .valueType = tooLarge,
                                 .factor = 0,
                                 .offset = std::numeric_limits<double>::infinity(),
                                 .minimum = 1,
                                 .maximum = -1,
                                 .startValue = std::numeric_limits<std::int32_t>::min(),
                                 .inactiveValue = std::numeric_limits<std::int32_t>::max()};
    AppendSignal(0, fields);
    ExpectSignal(0, 0, fields);
}

TEST_F(RecordFunctionsTest, AppendCanSignalRefusesIndexesNullAndInvalidText) {
    const CanSignalRecord good = RecordOf(speed);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &good), 0);
    AppendOneOfEach();
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(1, &good), 0);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(tooLarge, &good), 0);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, nullptr), 0);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(1, nullptr), 0);
    CanSignalRecord record = good;
    record.longName[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
    record = good;
    record.unit[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
    record = good;
    record.receiverList[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
    record = good;
    record.comment[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
    ExpectCounts(1, 1, 1);
}

TEST_F(RecordFunctionsTest, AppendCanSignalDropsThe10001stWithoutNotice) {
    AppendMessage(engine);
    CanSignalRecord record = RecordOf(speed);
    for (std::uint32_t count = 0; count < 9999; ++count) {
        ASSERT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 1);
    }
    EXPECT_EQ(SignalCount(0), 9999U);
    AppendSignal(0, {.longName = "Last"});
    EXPECT_EQ(SignalCount(0), 10000U);
    AppendSignal(0, {.longName = "Dropped"});
    EXPECT_EQ(SignalCount(0), 10000U);
    ExpectSignal(0, 9999, {.name = "Last", .longName = "Last"});
    auto none = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 10000, &none), 0);
    // A full message still refuses what cannot be taken.
    record.longName[0] = '\x80';
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 0);
}

TEST_F(RecordFunctionsTest, ASignalThatWasFetchedIsAppendedAsItWas) {
    AppendMessage(engine);
    AppendSignal(0, {.longName = "T\xc3\xbcr 1",
                     .unit = "km",
                     .receiverList = "A,B",
                     .comment = "say \"hello\""});
    auto record = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &record), 1);
    EXPECT_EQ(VexilAppendCanSignalToCanMessage(0, &record), 1);
    auto again = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 1, &again), 1);
    EXPECT_TRUE(SameBytes(again, record));
}

TEST_F(RecordFunctionsTest, GetNumCanSignalsFailsForAnIndexThatIsTooLarge) {
    std::uint32_t count = 77;
    EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(0, &count), 0);
    AppendMessage(engine);
    EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(1, &count), 0);
    EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(tooLarge, &count), 0);
    EXPECT_EQ(count, 77U);
    EXPECT_EQ(VexilGetNumCanSignalsInCanMessage(0, &count), 1);
    EXPECT_EQ(count, 0U);
}

TEST_F(RecordFunctionsTest, GetCanSignalDataFailsForAnIndexThatIsTooLarge) {
    auto record = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &record), 0);
    AppendMessage(engine);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &record), 0);
    AppendSignal(0, speed);
    for (const auto& [message, signal] : IndexesTooLarge()) {
        EXPECT_EQ(VexilGetCanSignalData(message, signal, &record), 0) << message << ", " << signal;
    }
    EXPECT_TRUE(IsUntouched(record));
}

TEST_F(RecordFunctionsTest, GetCanSignalDataFailsForNull) {
    AppendOneOfEach();
    EXPECT_EQ(VexilGetCanSignalData(0, 0, nullptr), 0);
    EXPECT_EQ(VexilGetCanSignalData(0, 1, nullptr), 0);
}

TEST_F(RecordFunctionsTest, GetCanSignalDataCutsTheReceiverListWithinAName) {
    std::string list;
    for (int node = 0; node < 10; ++node) {
        list += (node == 0 ? "" : ",") + std::string(32, static_cast<char>('a' + node));
    }
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"\" " + list + "\n"), Success);
    ExpectSignal(0, 0,
                 {.name = "S",
                  .longName = "S",
                  .receiverList = list.substr(0, 255),
                  .bitLength = 8,
                  .factor = 1,
                  .maximum = 1});
}

TEST_F(RecordFunctionsTest, GetCanSignalDataCutsUnitsAtACharacter) {
    const std::string unit = std::string(31, 'x') +
                             "\xc2\xb0"
                             "C";
    ASSERT_EQ(ReadText("BO_ 1 A: 8 N\n SG_ S : 0|8@1+ (1,0) [0|1] \"" + unit + "\"\n"), Success);
    ExpectSignal(0, 0,
                 {.name = "S",
                  .longName = "S",
                  .unit = std::string(31, 'x') + "_",
                  .bitLength = 8,
                  .factor = 1,
                  .maximum = 1,
                  .unitUtf8 = std::string(31, 'x')});
}

// -- Value descriptions -----------------------------------------------------------------------

TEST_F(RecordFunctionsTest, EnumsAreFetchedInTheOrderOfTheirValues) {
    AppendOneOfEach();
    constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    AppendEnum(0, 0, {2, "two"});
    AppendEnum(0, 0, {-1, "minus one"});
    AppendEnum(0, 0, {largest, ""});
    AppendEnum(0, 0, {0, "say \"zero\""});
    AppendEnum(0, 0, {smallest, "T\xc3\xbcr"});
    ExpectCounts(1, 1, 6);
    ExpectEnum(0, 0, 0, {smallest, "T\xc3\xbcr"});
    ExpectEnum(0, 0, 1, {-1, "minus one"});
    ExpectEnum(0, 0, 2, {0, "say \"zero\""});
    ExpectEnum(0, 0, 3, {1, "On"});
    ExpectEnum(0, 0, 4, {2, "two"});
    ExpectEnum(0, 0, 5, {largest, ""});
    SignalFields fields = speed;
    fields.enumCount = 6;
    ExpectSignal(0, 0, fields);
}

TEST_F(RecordFunctionsTest, AppendEnumKeepsBothTextsOfAValue) {
    AppendOneOfEach();
    AppendEnum(0, 0, {3, "on"});
    AppendEnum(0, 0, {3, "an"});
    ExpectCounts(1, 1, 2);
    ExpectEnum(0, 0, 1, {3, "on - an"});
}

TEST_F(RecordFunctionsTest, AppendEnumRefusesIndexesAndInvalidText) {
    CanEnumRecord record = RecordOf(EnumFields{2, "Off"});
    EXPECT_EQ(VexilAppendEnumToCanSignal(0, 0, &record), 0);
    AppendOneOfEach();
    for (const auto& [message, signal] : IndexesTooLarge()) {
        EXPECT_EQ(VexilAppendEnumToCanSignal(message, signal, &record), 0)
            << message << ", " << signal;
        EXPECT_EQ(VexilAppendEnumToCanSignal(message, signal, nullptr), 0);
    }
    record = RecordOf(EnumFields{1, "\x80 bad"});
    EXPECT_EQ(VexilAppendEnumToCanSignal(0, 0, &record), 0);
    record = RecordOf(EnumFields{2, "\x80 bad"});
    EXPECT_EQ(VexilAppendEnumToCanSignal(0, 0, &record), 0);
    ExpectCounts(1, 1, 1);
    ExpectEnum(0, 0, 0, {1, "On"});
}

TEST_F(RecordFunctionsTest, GetCanSignalEnumDataCutsTheTextAtACharacter) {
    AppendOneOfEach();
    AppendEnum(0, 0, {1, std::string(249, 'x') + "\xc3\xa9 mo"});
    // "On - " and 249 bytes leave room for one.
    ExpectEnum(0, 0, 0, {1, "On - " + std::string(249, 'x')});
    AppendEnum(0, 0, {2, std::string(255, 'y')});
    ExpectEnum(0, 0, 1, {2, std::string(255, 'y')});
    AppendEnum(0, 0, {2, "z"});
    ExpectEnum(0, 0, 1, {2, std::string(255, 'y')});
}

TEST_F(RecordFunctionsTest, GetNumEnumsFailsForAnIndexThatIsTooLarge) {
    std::uint32_t count = 77;
    EXPECT_EQ(VexilGetNumEnumsInCanSignal(0, 0, &count), 0);
    AppendOneOfEach();
    for (const auto& [message, signal] : IndexesTooLarge()) {
        EXPECT_EQ(VexilGetNumEnumsInCanSignal(message, signal, &count), 0)
            << message << ", " << signal;
    }
    EXPECT_EQ(count, 77U);
}

TEST_F(RecordFunctionsTest, GetCanSignalEnumDataFailsForAnIndexThatIsTooLarge) {
    auto record = Filled<CanEnumRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 0, &record), 0);
    AppendOneOfEach();
    for (const auto& [message, signal] : IndexesTooLarge()) {
        EXPECT_EQ(VexilGetCanSignalEnumData(message, signal, 0, &record), 0)
            << message << ", " << signal;
    }
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 1, &record), 0);
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, tooLarge, &record), 0);
    EXPECT_TRUE(IsUntouched(record));
}

// -- Appending to what was read ---------------------------------------------------------------

TEST_F(RecordFunctionsTest, AppendsGoOnWhereAFileEnded) {
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
