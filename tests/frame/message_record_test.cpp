// Tests of a message out to its record and in from it.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "frame/can_message.h"
#include "support/records.h"

namespace vexil {
namespace {

using test::Filled;
using test::MessageFields;
using test::OtherPattern;
using test::Pattern;
using test::RecordOf;
using test::SameBytes;

// More than the longest array holds, and not to be cut anywhere.
const std::string invalidText = "\x80" + std::string(300, 'x');

// A message with something in every member.
class EngineMessage : public CANMessage {
  public:
    EngineMessage() {
        isEmpty = false;
        id = 0x80000123U;
        name = "Engine_Data";
        longName = "Engine Data";
        rawName = "Engine\tData";
        transmitter = "ECU1";
        sendType = "Cyclic";
        cycleTime = -100;
        comment = "say \\\"hello\\\"";
        dlc = 300;
        signals = {std::make_shared<CANSignal>(), std::make_shared<CANSignal>()};
    }
};

const MessageFields engineFields = {.id = 0x80000123U,
                                    .name = "Engine_Data",
                                    .dlc = 300,
                                    .longName = "Engine Data",
                                    .transmitter = "ECU1",
                                    .signalCount = 2,
                                    .comment = "say \\\"hello\\\"",
                                    .sendType = "Cyclic",
                                    .cycleTime = -100};

// -- Out --------------------------------------------------------------------------------------

TEST(MessageCopyToRecord, FillsEveryFieldAndNoGap) {
    for (const unsigned char pattern : {Pattern, OtherPattern}) {
        auto record = Filled<CanMessageRecord>(pattern);
        EXPECT_TRUE(EngineMessage().CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(engineFields, pattern)));
    }
}

TEST(MessageCopyToRecord, IsFalseForNull) {
    EXPECT_FALSE(EngineMessage().CopyToRecord(nullptr));
}

TEST(MessageCopyToRecord, CopiesAnEmptyMessageAndIsFalse) {
    EngineMessage message;
    message.isEmpty = true;
    auto record = Filled<CanMessageRecord>(Pattern);
    EXPECT_FALSE(message.CopyToRecord(&record));
    EXPECT_TRUE(SameBytes(record, RecordOf(engineFields)));
    message.Reset();
    record = Filled<CanMessageRecord>(Pattern);
    EXPECT_FALSE(message.CopyToRecord(&record));
    EXPECT_TRUE(SameBytes(record, RecordOf(MessageFields{})));
}

TEST(MessageCopyToRecord, CutsTextsAtTheEndOfTheirArrays) {
    for (const std::size_t excess : {0U, 1U, 100U}) {
        EngineMessage message;
        message.name = std::string(32 + excess, 'n');
        message.longName = std::string(255 + excess, 'l');
        message.transmitter = std::string(32 + excess, 't');
        message.comment = std::string(255 + excess, 'c');
        message.sendType = std::string(32 + excess, 's');
        MessageFields fields = engineFields;
        fields.name = std::string(32, 'n');
        fields.longName = std::string(255, 'l');
        fields.transmitter = std::string(32, 't');
        fields.comment = std::string(255, 'c');
        fields.sendType = std::string(32, 's');
        auto record = Filled<CanMessageRecord>(Pattern);
        EXPECT_TRUE(message.CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(fields))) << excess << " bytes too long";
    }
}

TEST(MessageCopyToRecord, CutsNoCharacter) {
    for (const std::string character : {"e", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 250; front <= 256; ++front) {
            EngineMessage message;
            const std::string longName = std::string(front, 'l') + character + "more text";
            message.longName = longName;
            MessageFields fields = engineFields;
            fields.longName = longName.substr(0, 255);
            if (front < 255 && front + character.size() > 255) {
                fields.longName.resize(front);
            }
            auto record = Filled<CanMessageRecord>(Pattern);
            EXPECT_TRUE(message.CopyToRecord(&record));
            EXPECT_TRUE(SameBytes(record, RecordOf(fields)))
                << character << " behind " << front << " bytes";
        }
    }
}

// A text that cannot be cut ends the copy: its array is empty, what comes behind it in the order
// of copying keeps what the record held.
TEST(MessageCopyToRecord, StopsAtATextThatCannotBeCut) {
    using SetText = void (*)(CANMessage&);
    const std::vector<SetText> invalidate = {
        [](CANMessage& message) { message.name = invalidText; },
        [](CANMessage& message) { message.longName = invalidText; },
        [](CANMessage& message) { message.transmitter = invalidText; },
        [](CANMessage& message) { message.comment = invalidText; },
        [](CANMessage& message) { message.sendType = invalidText; }};
    for (std::size_t failing = 0; failing < invalidate.size(); ++failing) {
        EngineMessage message;
        invalidate[failing](message);
        auto record = Filled<CanMessageRecord>(Pattern);
        EXPECT_FALSE(message.CopyToRecord(&record));
        auto expected = Filled<CanMessageRecord>(Pattern);
        std::size_t at = 0;
        const auto storeInOrder = [&](auto& array, const std::string& text) {
            if (at <= failing) {
                test::StoreText(array, at == failing ? "" : text);
            }
            ++at;
        };
        storeInOrder(expected.name, engineFields.name);
        storeInOrder(expected.longName, engineFields.longName);
        storeInOrder(expected.transmitter, engineFields.transmitter);
        storeInOrder(expected.comment, engineFields.comment);
        // Three numbers come in front of the last text, the other one behind it.
        if (at <= failing) {
            expected.id = engineFields.id;
            expected.dlc = engineFields.dlc;
            expected.signalCount = engineFields.signalCount;
        }
        storeInOrder(expected.sendType, engineFields.sendType);
        EXPECT_TRUE(SameBytes(record, expected)) << "text " << failing;
    }
}

// -- In ---------------------------------------------------------------------------------------

CanMessageRecord EngineRecord() {
    MessageFields fields = engineFields;
    fields.name = "ignored";
    fields.signalCount = 99;
    fields.comment = "say \"hello\"";
    return RecordOf(fields);
}

void ExpectReset(const CANMessage& message) {
    EXPECT_TRUE(message.isEmpty);
    EXPECT_EQ(message.id, 0U);
    EXPECT_EQ(message.longName, "");
    EXPECT_EQ(message.name, "");
    EXPECT_EQ(message.transmitter, "");
    EXPECT_EQ(message.sendType, "");
    EXPECT_EQ(message.cycleTime, 0);
    EXPECT_EQ(message.comment, "");
    EXPECT_EQ(message.dlc, 0U);
    EXPECT_TRUE(message.signals.empty());
    EXPECT_EQ(message.rawName, "");
}

TEST(MessageFillFromRecord, TakesItsFieldsAndNoOther) {
    EngineMessage message;
    const CanMessageRecord record = EngineRecord();
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_FALSE(message.isEmpty);
    EXPECT_EQ(message.id, 0x80000123U);
    EXPECT_EQ(message.name, "Engine_Data");
    EXPECT_EQ(message.longName, "Engine Data");
    EXPECT_EQ(message.transmitter, "ECU1");
    EXPECT_EQ(message.comment, "say \\\"hello\\\"");
    EXPECT_EQ(message.dlc, 300U);
    EXPECT_EQ(message.sendType, "");
    EXPECT_EQ(message.cycleTime, 0);
    EXPECT_EQ(message.rawName, "");
    EXPECT_TRUE(message.signals.empty());
    EXPECT_TRUE(SameBytes(record, EngineRecord()));
}

TEST(MessageFillFromRecord, IsResetByNull) {
    EngineMessage message;
    message.stepErrors = {1};
    EXPECT_FALSE(message.FillFromRecord(nullptr));
    ExpectReset(message);
    EXPECT_EQ(message.stepErrors.size(), 1U);
}

TEST(MessageFillFromRecord, IsResetByInvalidText) {
    for (const auto corrupt : {+[](CanMessageRecord& record) { record.longName[0] = '\x80'; },
                               +[](CanMessageRecord& record) { record.transmitter[0] = '\x80'; },
                               +[](CanMessageRecord& record) { record.comment[0] = '\x80'; }}) {
        EngineMessage message;
        CanMessageRecord record = EngineRecord();
        corrupt(record);
        EXPECT_FALSE(message.FillFromRecord(&record));
        ExpectReset(message);
    }
}

TEST(MessageFillFromRecord, LooksAtNoTextThatIsIgnored) {
    CANMessage message;
    CanMessageRecord record = EngineRecord();
    test::StoreAll(record.name, std::string(33, '\x80'));
    test::StoreAll(record.sendType, std::string(33, '\x80'));
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_EQ(message.name, "Engine_Data");
    EXPECT_EQ(message.sendType, "");
}

TEST(MessageFillFromRecord, LosesTheLastByteOfAnArrayWithoutANul) {
    CANMessage message;
    CanMessageRecord record = EngineRecord();
    test::StoreAll(record.longName, std::string(256, 'l'));
    test::StoreAll(record.transmitter, std::string(33, 't'));
    test::StoreAll(record.comment, std::string(254, 'c') + "\xc3\xa9");
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_EQ(message.longName, std::string(255, 'l'));
    EXPECT_EQ(message.name, std::string(32, 'l'));
    EXPECT_EQ(message.transmitter, std::string(32, 't'));
    EXPECT_EQ(message.comment, std::string(254, 'c'));
}

TEST(MessageFillFromRecord, DropsACharacterThatIsCutOff) {
    CANMessage message;
    CanMessageRecord record = EngineRecord();
    test::StoreText(record.longName, "Engine\xe2\x82");
    test::StoreText(record.transmitter, "\xc3");
    test::StoreText(record.comment, "text\xf0\x9f\x9a");
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_EQ(message.longName, "Engine");
    EXPECT_EQ(message.transmitter, "");
    EXPECT_EQ(message.comment, "text");
}

TEST(MessageFillFromRecord, BringsTextsIntoShape) {
    CANMessage message;
    CanMessageRecord record = EngineRecord();
    test::StoreText(record.longName, "1\tEngine\r\nspeed\v\f\x01");
    test::StoreText(record.transmitter, "2nd ECU");
    test::StoreText(record.comment, "\"a\"\tb\\\"");
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_EQ(message.longName, "1 Engine  speed  \x01");
    EXPECT_EQ(message.name, "__Engine__speed___");
    EXPECT_EQ(message.transmitter, "_nd_ECU");
    EXPECT_EQ(message.comment, "\\\"a\\\"\tb\\\"");
}

TEST(MessageFillFromRecord, TakesEmptyTextsAndEveryNumber) {
    CANMessage message;
    const CanMessageRecord record =
        RecordOf(MessageFields{.id = std::numeric_limits<std::uint32_t>::max(),
                               .dlc = std::numeric_limits<std::uint32_t>::max()});
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_FALSE(message.isEmpty);
    EXPECT_EQ(message.longName, "");
    EXPECT_EQ(message.name, "");
    EXPECT_EQ(message.transmitter, "");
    EXPECT_EQ(message.comment, "");
    EXPECT_EQ(message.id, 0xFFFFFFFFU);
    EXPECT_EQ(message.dlc, 0xFFFFFFFFU);
}

TEST(MessageFillFromRecord, KeepsAByteOrderMark) {
    CANMessage message;
    CanMessageRecord record = EngineRecord();
    test::StoreText(record.longName, "\xef\xbb\xbfName");
    EXPECT_TRUE(message.FillFromRecord(&record));
    EXPECT_EQ(message.longName, "\xef\xbb\xbfName");
    EXPECT_EQ(message.name, "_Name");
}

}  // namespace
}  // namespace vexil
