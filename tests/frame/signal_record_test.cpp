// Tests of a signal copied to a record and filled from one, and of its value descriptions.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "frame/can_database.h"
#include "frame/enums_of.h"
#include "support/dump.h"
#include "support/read_text.h"
#include "support/records.h"

namespace vexil {
namespace {

using test::CommentOf;
using test::EnumFields;
using test::EnumPairs;
using test::EnumsOf;
using test::Filled;
using test::OtherPattern;
using test::Pattern;
using test::RecordOf;
using test::SameBytes;
using test::SignalFields;

// More than the longest array holds, and not to be cut anywhere.
const std::string invalidText = "\x80" + std::string(300, 'x');

// A signal with something in every member.
CANSignal SpeedSignal() {
    CANSignal signal;
    signal.name = "Speed_1";
    signal.longName = "Speed 1";
    signal.rawName = "Speed\t1";
    signal.unit = "_K";
    signal.unitUtf8 = "\xc2\xb0K";
    signal.notes.SetComment(database.arena, "say \"hello\"");
    signal.multiplexType = 2;
    signal.multiplexValue = 0xFFFFFFFFU;
    signal.startBit = 16;
    signal.bitLength = 64;
    signal.byteOrder = 0;
    signal.valueType = 3;
    signal.factor = 0.1;
    signal.offset = -40;
    signal.minimum = -1e300;
    signal.maximum = 6553.5;
    signal.receivers = "ABS,ECU_2";
    for (const std::int32_t value : {-1, 2, 3, 2}) {
        const CanEnumRecord record = RecordOf(EnumFields{value, "text"});
        EXPECT_TRUE(signal.AddEnum(database.arena, &record));
    }
    signal.startValue = -5;
    signal.inactiveValue = std::numeric_limits<std::int32_t>::min();
    return signal;
}

const SignalFields speedFields = {.name = "Speed_1",
                                  .longName = "Speed 1",
                                  .unit = "_K",
                                  .receiverList = "ABS,ECU_2",
                                  .comment = "say \\\"hello\\\"",
                                  .multiplexType = 2,
                                  .multiplexValue = 0xFFFFFFFFU,
                                  .startBit = 16,
                                  .bitLength = 64,
                                  .byteOrder = 0,
                                  .valueType = 3,
                                  .factor = 0.1,
                                  .offset = -40,
                                  .minimum = -1e300,
                                  .maximum = 6553.5,
                                  .enumCount = 3,
                                  .startValue = -5,
                                  .inactiveValue = std::numeric_limits<std::int32_t>::min(),
                                  .unitUtf8 = "\xc2\xb0K"};

class SignalCopyToRecord : public test::DatabaseTest {};
class SignalFillFromRecord : public test::DatabaseTest {};
class AddEnum : public test::DatabaseTest {};

// -- Fetching ---------------------------------------------------------------------------------

TEST_F(SignalCopyToRecord, WritesEveryFieldAndNoPadding) {
    for (const unsigned char pattern : {Pattern, OtherPattern}) {
        auto record = Filled<CanSignalRecord>(pattern);
        EXPECT_TRUE(SpeedSignal().CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(speedFields, pattern)));
    }
}

TEST_F(SignalCopyToRecord, HasDefaultsForANewSignal) {
    auto record = Filled<CanSignalRecord>(Pattern);
    EXPECT_TRUE(CANSignal().CopyToRecord(&record));
    EXPECT_TRUE(SameBytes(record, RecordOf(SignalFields{})));
}

TEST_F(SignalCopyToRecord, FailsForNull) {
    EXPECT_FALSE(SpeedSignal().CopyToRecord(nullptr));
}

TEST_F(SignalCopyToRecord, TruncatesTextsToTheirArrays) {
    for (const std::size_t excess : {0U, 1U, 100U}) {
        const auto tooLong = [excess](std::size_t most, char ch) {
            return database.arena.Keep(std::string(most + excess, ch));
        };
        CANSignal signal = SpeedSignal();
        signal.name = tooLong(32, 'n');
        signal.longName = tooLong(255, 'l');
        signal.unit = tooLong(32, 'u');
        signal.unitUtf8 = tooLong(32, 'v');
        signal.notes.SetComment(database.arena, tooLong(255, 'c'));
        SignalFields fields = speedFields;
        fields.name = std::string(32, 'n');
        fields.longName = std::string(255, 'l');
        fields.unit = std::string(32, 'u');
        fields.unitUtf8 = std::string(32, 'v');
        fields.comment = std::string(255, 'c');
        auto record = Filled<CanSignalRecord>(Pattern);
        EXPECT_TRUE(signal.CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(fields))) << excess << " bytes too long";
    }
}

TEST_F(SignalCopyToRecord, TruncatesTheReceiverListInsideAName) {
    CANSignal signal = SpeedSignal();
    const std::string list = std::string(240, 'r') + ",ECU_1,ECU_2,ECU_3";
    signal.receivers = list;
    SignalFields fields = speedFields;
    fields.receiverList = list.substr(0, 255);
    auto record = Filled<CanSignalRecord>(Pattern);
    EXPECT_TRUE(signal.CopyToRecord(&record));
    EXPECT_TRUE(SameBytes(record, RecordOf(fields)));
}

// An invalid text ends the copy: its array becomes empty, and the fields after it in the order
// of copying (the numbers come last) keep their values.
TEST_F(SignalCopyToRecord, StopsAtAnInvalidText) {
    using SetText = void (*)(CANSignal&);
    const std::vector<SetText> invalidate = {
        [](CANSignal& signal) { signal.name = invalidText; },
        [](CANSignal& signal) { signal.longName = invalidText; },
        [](CANSignal& signal) { signal.unit = invalidText; },
        [](CANSignal& signal) { signal.unitUtf8 = invalidText; },
        [](CANSignal& signal) { signal.receivers = invalidText; },
        [](CANSignal& signal) { signal.notes.SetComment(database.arena, invalidText); }};
    for (std::size_t failing = 0; failing < invalidate.size(); ++failing) {
        CANSignal signal = SpeedSignal();
        invalidate[failing](signal);
        auto record = Filled<CanSignalRecord>(Pattern);
        EXPECT_FALSE(signal.CopyToRecord(&record));
        auto expected = Filled<CanSignalRecord>(Pattern);
        std::size_t at = 0;
        const auto storeInOrder = [&](auto& array, const std::string& text) {
            if (at <= failing) {
                test::StoreText(array, at == failing ? "" : text);
            }
            ++at;
        };
        storeInOrder(expected.name, speedFields.name);
        storeInOrder(expected.longName, speedFields.longName);
        storeInOrder(expected.unit, speedFields.unit);
        storeInOrder(expected.unitUtf8, speedFields.unitUtf8);
        storeInOrder(expected.receiverList, speedFields.receiverList);
        storeInOrder(expected.comment, speedFields.comment);
        EXPECT_TRUE(SameBytes(record, expected)) << "text " << failing;
    }
}

// -- Appending --------------------------------------------------------------------------------

CanSignalRecord SpeedRecord() {
    SignalFields fields = speedFields;
    fields.name = "ignored";
    fields.unit = fields.unitUtf8;
    fields.unitUtf8 = "ignored";
    fields.comment = "say \"hello\"";
    fields.enumCount = 99;
    return RecordOf(fields);
}

// The signal that the record makes.
CANSignal Taken(const CanSignalRecord& record) {
    CANSignal signal;
    EXPECT_TRUE(signal.FillFromRecord(database.arena, &record));
    return signal;
}

TEST_F(SignalFillFromRecord, CopiesTheAppendedFieldsOnly) {
    CanSignalRecord record = SpeedRecord();
    const CANSignal signal = Taken(record);
    EXPECT_TRUE(SameBytes(record, SpeedRecord()));
    record = Filled<CanSignalRecord>(Pattern);  // the caller may use it again
    auto out = Filled<CanSignalRecord>(Pattern);
    EXPECT_TRUE(signal.CopyToRecord(&out));
    SignalFields fields = speedFields;
    fields.enumCount = 0;
    EXPECT_TRUE(SameBytes(out, RecordOf(fields)));
    EXPECT_EQ(signal.rawName, "Speed 1");
    EXPECT_FALSE(signal.hasNameSuffix);
}

TEST_F(SignalFillFromRecord, FailsWithoutChangesForInvalidText) {
    CANSignal signal;
    EXPECT_FALSE(signal.FillFromRecord(database.arena, nullptr));
    for (const auto corrupt :
         {+[](CanSignalRecord& record) { record.longName[0] = '\x80'; },
          +[](CanSignalRecord& record) { std::memcpy(record.unit, "\x80xxx", 5); },
          +[](CanSignalRecord& record) { record.receiverList[0] = '\x80'; },
          +[](CanSignalRecord& record) { record.comment[0] = '\x80'; }}) {
        CanSignalRecord record = SpeedRecord();
        corrupt(record);
        EXPECT_FALSE(signal.FillFromRecord(database.arena, &record));
        auto out = Filled<CanSignalRecord>(Pattern);
        EXPECT_TRUE(signal.CopyToRecord(&out));
        EXPECT_TRUE(SameBytes(out, RecordOf(SignalFields{})));
        EXPECT_EQ(signal.rawName, "");
    }
}

TEST_F(SignalFillFromRecord, DoesNotValidateIgnoredTexts) {
    CanSignalRecord record = SpeedRecord();
    test::StoreAll(record.name, std::string(33, '\x80'));
    test::StoreAll(record.unitUtf8, std::string(33, '\x80'));
    const CANSignal signal = Taken(record);
    EXPECT_EQ(signal.name, "Speed_1");
    EXPECT_EQ(signal.unitUtf8, "\xc2\xb0K");
}

TEST_F(SignalFillFromRecord, DropsTheLastByteOfAnArrayWithoutANul) {
    CanSignalRecord record = SpeedRecord();
    test::StoreAll(record.longName, std::string(256, 'l'));
    test::StoreAll(record.unit, std::string(31, 'u') + "\xc3\xa9");
    test::StoreAll(record.receiverList, std::string(253, 'r') + ",st");
    test::StoreAll(record.comment, std::string(256, 'c'));
    const CANSignal signal = Taken(record);
    EXPECT_EQ(signal.longName, std::string(255, 'l'));
    EXPECT_EQ(signal.name, std::string(32, 'l'));
    EXPECT_EQ(signal.unit, std::string(31, 'u'));
    EXPECT_EQ(signal.unitUtf8, std::string(31, 'u'));
    EXPECT_EQ(signal.receivers, std::string(32, 'r') + ",s");
    EXPECT_EQ(CommentOf(signal.notes), std::string(255, 'c'));
}

TEST_F(SignalFillFromRecord, NormalisesTexts) {
    CanSignalRecord record = SpeedRecord();
    test::StoreText(record.longName, "1\tspeed\r\n\v\f");
    test::StoreText(record.unit, " \xf0\x9f\x9a\x97\t\"");
    test::StoreText(record.receiverList, " A B ,, 1st\t,\xc3\xa9");
    test::StoreText(record.comment, "\"a\"\tb\\\"");
    const CANSignal signal = Taken(record);
    EXPECT_EQ(signal.longName, "1 speed    ");
    EXPECT_EQ(signal.rawName, "1 speed    ");
    EXPECT_EQ(signal.name, "__speed____");
    // The unit is neither stripped nor cleaned nor escaped.
    EXPECT_EQ(signal.unit, " _\t\"");
    EXPECT_EQ(signal.unitUtf8, " \xf0\x9f\x9a\x97\t\"");
    EXPECT_EQ(signal.receivers, "A_B,_st,_");
    EXPECT_EQ(CommentOf(signal.notes), "\\\"a\\\"\tb\\\"");
}

TEST_F(SignalFillFromRecord, AcceptsEmptyTextsAndAnyNumber) {
    const SignalFields fields = {.multiplexType = 77,
                                 .multiplexValue = 78,
                                 .startBit = 0xFFFFFFFFU,
                                 .bitLength = 0,
                                 .byteOrder = 79,
                                 .valueType = 80,
                                 .factor = std::numeric_limits<double>::infinity(),
                                 .offset = std::numeric_limits<double>::denorm_min(),
                                 .minimum = 2,
                                 .maximum = 1,
                                 .startValue = std::numeric_limits<std::int32_t>::max(),
                                 .inactiveValue = -1};
    const CanSignalRecord record = RecordOf(fields);
    const CANSignal signal = Taken(record);
    auto out = Filled<CanSignalRecord>(Pattern);
    EXPECT_TRUE(signal.CopyToRecord(&out));
    EXPECT_TRUE(SameBytes(out, record));
}

TEST_F(SignalFillFromRecord, StoresAFloatOfTheWrongSizeAsASignedInteger) {
    struct Row {
        std::uint32_t valueType;
        std::uint32_t bitLength;
        std::uint32_t expected;
    };
    for (const Row& row :
         {Row{0, 32, 0}, Row{1, 32, 1}, Row{2, 31, 1}, Row{2, 32, 2}, Row{2, 33, 1}, Row{2, 64, 1},
          Row{2, 0, 1}, Row{3, 32, 1}, Row{3, 63, 1}, Row{3, 64, 3}, Row{3, 65, 1}, Row{3, 0, 1},
          Row{4, 32, 4}, Row{4, 8, 4}, Row{0xFFFFFFFFU, 8, 0xFFFFFFFFU}}) {
        CanSignalRecord record = SpeedRecord();
        record.valueType = row.valueType;
        record.bitLength = row.bitLength;
        const CANSignal signal = Taken(record);
        EXPECT_EQ(signal.valueType, row.expected)
            << "type " << row.valueType << " of " << row.bitLength << " bits";
        EXPECT_EQ(signal.bitLength, row.bitLength);
    }
}

// -- Value descriptions -----------------------------------------------------------------------

TEST_F(AddEnum, StoresTheTextUnchanged) {
    CANSignal signal;
    const CanEnumRecord record = RecordOf(EnumFields{-7, "say \"on\"\tnow"});
    EXPECT_TRUE(signal.AddEnum(database.arena, &record));
    EXPECT_EQ(EnumsOf(signal.notes), (EnumPairs{{-7, "say \"on\"\tnow"}}));
    EXPECT_TRUE(SameBytes(record, RecordOf(EnumFields{-7, "say \"on\"\tnow"})));
}

TEST_F(AddEnum, RefusesInvalidText) {
    CANSignal signal;
    CanEnumRecord record = RecordOf(EnumFields{3, "on"});
    EXPECT_TRUE(signal.AddEnum(database.arena, &record));
    for (const std::int32_t value : {3, 4}) {
        record = RecordOf(EnumFields{value, "\x80 text"});
        EXPECT_FALSE(signal.AddEnum(database.arena, &record));
    }
    EXPECT_EQ(EnumsOf(signal.notes), (EnumPairs{{3, "on"}}));
}

TEST_F(AddEnum, CutsTextAtTheEndOfTheArrayAndAtACharacter) {
    CANSignal signal;
    auto record = Filled<CanEnumRecord>(Pattern);
    record.value = 1;
    test::StoreAll(record.text, std::string(254, 'x') + "\xc3\xa9");
    EXPECT_TRUE(signal.AddEnum(database.arena, &record));
    record = RecordOf(EnumFields{2, "on\xe2\x82"});
    EXPECT_TRUE(signal.AddEnum(database.arena, &record));
    EXPECT_EQ(EnumsOf(signal.notes), (EnumPairs{{1, std::string(254, 'x')}, {2, "on"}}));
}

}  // namespace
}  // namespace vexil
