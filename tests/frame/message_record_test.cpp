// Tests of a message copied to a record and filled from one.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "frame/can_database.h"
#include "support/dump.h"
#include "support/read_text.h"
#include "support/records.h"

namespace vexil {
namespace {

using test::CommentOf;
using test::Filled;
using test::MessageFields;
using test::OtherPattern;
using test::Pattern;
using test::RecordOf;
using test::SameBytes;

// More than the longest array holds, and not to be cut anywhere.
const std::string invalidText = "\x80" + std::string(300, 'x');

// A message with something in every member.
CANMessage EngineMessage() {
    CANMessage message;
    message.id = 0x80000123U;
    message.name = "Engine_Data";
    message.longName = "Engine Data";
    message.transmitter = "ECU1";
    message.sendType = "Cyclic";
    message.cycleTime = -100;
    message.notes.SetComment(database.arena, "say \"hello\"");
    message.dlc = 300;
    message.AddSignal(database.arena, CANSignal());
    message.AddSignal(database.arena, CANSignal());
    return message;
}

const MessageFields engineFields = {.id = 0x80000123U,
                                    .name = "Engine_Data",
                                    .dlc = 300,
                                    .longName = "Engine Data",
                                    .transmitter = "ECU1",
                                    .signalCount = 2,
                                    .comment = "say \\\"hello\\\"",
                                    .sendType = "Cyclic",
                                    .cycleTime = -100};

class MessageCopyToRecord : public test::DatabaseTest {};
class MessageFillFromRecord : public test::DatabaseTest {};

// -- Fetching ---------------------------------------------------------------------------------

TEST_F(MessageCopyToRecord, WritesEveryFieldAndNoPadding) {
    for (const unsigned char pattern : {Pattern, OtherPattern}) {
        auto record = Filled<CanMessageRecord>(pattern);
        EXPECT_TRUE(EngineMessage().CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(engineFields, pattern)));
    }
}

TEST_F(MessageCopyToRecord, FailsForNull) {
    EXPECT_FALSE(EngineMessage().CopyToRecord(nullptr));
}

TEST_F(MessageCopyToRecord, TruncatesTextsToTheirArrays) {
    for (const std::size_t excess : {0U, 1U, 100U}) {
        const auto tooLong = [excess](std::size_t most, char ch) {
            return database.arena.Keep(std::string(most + excess, ch));
        };
        CANMessage message = EngineMessage();
        message.name = tooLong(32, 'n');
        message.longName = tooLong(255, 'l');
        message.transmitter = tooLong(32, 't');
        message.notes.SetComment(database.arena, tooLong(255, 'c'));
        message.sendType = tooLong(32, 's');
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

TEST_F(MessageCopyToRecord, TruncatesAJoinedComment) {
    for (std::size_t front = 250; front <= 256; ++front) {
        const std::string text(front, 'c');
        Note third{"more text"};
        Note second{"\"\xc3\xa9", &third};
        Note first{text, &second};
        CANMessage message = EngineMessage();
        message.notes.comments = &first;
        MessageFields fields = engineFields;
        fields.comment = (text + "\\\"\xc3\xa9more text").substr(0, 255);
        if (front == 252) {
            fields.comment.resize(254);  // a character would be cut
        }
        auto record = Filled<CanMessageRecord>(Pattern);
        EXPECT_TRUE(message.CopyToRecord(&record));
        EXPECT_TRUE(SameBytes(record, RecordOf(fields))) << front;
    }
}

TEST_F(MessageCopyToRecord, TruncatesAtACharacter) {
    for (const std::string character : {"e", "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x9a\x97"}) {
        for (std::size_t front = 250; front <= 256; ++front) {
            CANMessage message = EngineMessage();
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
                << character << " after " << front << " bytes";
        }
    }
}

// An invalid text ends the copy: its array becomes empty, and the fields after it in the order
// of copying keep their values.
TEST_F(MessageCopyToRecord, StopsAtAnInvalidText) {
    using SetText = void (*)(CANMessage&);
    const std::vector<SetText> invalidate = {
        [](CANMessage& message) { message.name = invalidText; },
        [](CANMessage& message) { message.longName = invalidText; },
        [](CANMessage& message) { message.transmitter = invalidText; },
        [](CANMessage& message) { message.notes.SetComment(database.arena, invalidText); },
        [](CANMessage& message) { message.sendType = invalidText; }};
    for (std::size_t failing = 0; failing < invalidate.size(); ++failing) {
        CANMessage message = EngineMessage();
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
        // Three numbers come before the last text, the other one after it.
        if (at <= failing) {
            expected.id = engineFields.id;
            expected.dlc = engineFields.dlc;
            expected.signalCount = engineFields.signalCount;
        }
        storeInOrder(expected.sendType, engineFields.sendType);
        EXPECT_TRUE(SameBytes(record, expected)) << "text " << failing;
    }
}

// -- Appending --------------------------------------------------------------------------------

CanMessageRecord EngineRecord() {
    MessageFields fields = engineFields;
    fields.name = "ignored";
    fields.signalCount = 99;
    fields.comment = "say \"hello\"";
    return RecordOf(fields);
}

// The message that the record makes.
CANMessage Taken(const CanMessageRecord& record) {
    CANMessage message;
    EXPECT_TRUE(message.FillFromRecord(database.arena, &record));
    return message;
}

TEST_F(MessageFillFromRecord, CopiesTheAppendedFieldsOnly) {
    CanMessageRecord record = EngineRecord();
    const CANMessage message = Taken(record);
    EXPECT_TRUE(SameBytes(record, EngineRecord()));
    record = Filled<CanMessageRecord>(Pattern);  // the caller may use it again
    auto out = Filled<CanMessageRecord>(Pattern);
    EXPECT_TRUE(message.CopyToRecord(&out));
    MessageFields fields = engineFields;
    fields.signalCount = 0;
    fields.sendType = "";
    fields.cycleTime = 0;
    EXPECT_TRUE(SameBytes(out, RecordOf(fields)));
}

TEST_F(MessageFillFromRecord, FailsWithoutChangesForInvalidText) {
    CANMessage message;
    EXPECT_FALSE(message.FillFromRecord(database.arena, nullptr));
    for (const auto corrupt : {+[](CanMessageRecord& record) { record.longName[0] = '\x80'; },
                               +[](CanMessageRecord& record) { record.transmitter[0] = '\x80'; },
                               +[](CanMessageRecord& record) { record.comment[0] = '\x80'; }}) {
        CanMessageRecord record = EngineRecord();
        corrupt(record);
        EXPECT_FALSE(message.FillFromRecord(database.arena, &record));
        auto out = Filled<CanMessageRecord>(Pattern);
        EXPECT_TRUE(message.CopyToRecord(&out));
        EXPECT_TRUE(SameBytes(out, RecordOf(MessageFields{})));
    }
}

TEST_F(MessageFillFromRecord, DoesNotValidateIgnoredTexts) {
    CanMessageRecord record = EngineRecord();
    test::StoreAll(record.name, std::string(33, '\x80'));
    test::StoreAll(record.sendType, std::string(33, '\x80'));
    const CANMessage message = Taken(record);
    EXPECT_EQ(message.name, "Engine_Data");
    EXPECT_EQ(message.sendType, "");
}

TEST_F(MessageFillFromRecord, DropsTheLastByteOfAnArrayWithoutANul) {
    CanMessageRecord record = EngineRecord();
    test::StoreAll(record.longName, std::string(256, 'l'));
    test::StoreAll(record.transmitter, std::string(33, 't'));
    test::StoreAll(record.comment, std::string(254, 'c') + "\xc3\xa9");
    const CANMessage message = Taken(record);
    EXPECT_EQ(message.longName, std::string(255, 'l'));
    EXPECT_EQ(message.name, std::string(32, 'l'));
    EXPECT_EQ(message.transmitter, std::string(32, 't'));
    EXPECT_EQ(CommentOf(message.notes), std::string(254, 'c'));
}

TEST_F(MessageFillFromRecord, NormalisesTexts) {
    CanMessageRecord record = EngineRecord();
    test::StoreText(record.longName, "1\tEngine\r\nspeed\v\f\x01");
    test::StoreText(record.transmitter, "2nd ECU");
    test::StoreText(record.comment, "\"a\"\tb\\\"");
    const CANMessage message = Taken(record);
    EXPECT_EQ(message.longName, "1 Engine  speed  \x01");
    EXPECT_EQ(message.name, "__Engine__speed___");
    EXPECT_EQ(message.transmitter, "_nd_ECU");
    EXPECT_EQ(CommentOf(message.notes), "\\\"a\\\"\tb\\\"");
}

TEST_F(MessageFillFromRecord, AcceptsEmptyTextsAndAnyNumber) {
    const CanMessageRecord record =
        RecordOf(MessageFields{.id = std::numeric_limits<std::uint32_t>::max(),
                               .dlc = std::numeric_limits<std::uint32_t>::max()});
    const CANMessage message = Taken(record);
    EXPECT_EQ(message.longName, "");
    EXPECT_EQ(message.name, "");
    EXPECT_EQ(message.transmitter, "");
    EXPECT_EQ(CommentOf(message.notes), "");
    EXPECT_EQ(message.id, 0xFFFFFFFFU);
    EXPECT_EQ(message.dlc, 0xFFFFFFFFU);
}

}  // namespace
}  // namespace vexil
