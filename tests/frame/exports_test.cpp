// Tests of the exported functions with what no file and no record can bring into the model: empty
// objects and texts that are not valid. All else is tested through the library in tests/api.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "frame/can_database.h"
#include "support/read_text.h"
#include "support/records.h"
#include "vexil64.h"

namespace vexil {
namespace {

using test::Filled;
using test::Pattern;
using test::RecordOf;
using test::SameBytes;

// More than the longest array holds, and not to be cut anywhere.
const std::string invalidText = "\x80" + std::string(300, 'x');

class ExportsTest : public test::DatabaseTest {
  protected:
    void SetUp() override {
        DatabaseTest::SetUp();
        signal->isEmpty = false;
        message->isEmpty = false;
        message->signals = {signal};
        database.messages = {message};
    }

    std::shared_ptr<CANSignal> signal = std::make_shared<CANSignal>();
    std::shared_ptr<CANMessage> message = std::make_shared<CANMessage>();
};

TEST_F(ExportsTest, FailForAnEmptyMessageWithItsFieldsCopied) {
    message->isEmpty = true;
    message->id = 5;
    auto record = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &record), 0);
    EXPECT_TRUE(SameBytes(record, RecordOf(test::MessageFields{.id = 5, .signalCount = 1})));
}

TEST_F(ExportsTest, FailForAnEmptySignalWithItsFieldsCopied) {
    signal->isEmpty = true;
    signal->startBit = 5;
    auto record = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &record), 0);
    EXPECT_TRUE(SameBytes(record, RecordOf(test::SignalFields{.startBit = 5})));
}

TEST_F(ExportsTest, FailForATextThatCannotBeCut) {
    message->longName = invalidText;
    signal->comment = invalidText;
    auto messageRecord = Filled<CanMessageRecord>(Pattern);
    EXPECT_EQ(VexilGetCanMessageData(0, &messageRecord), 0);
    EXPECT_EQ(messageRecord.longName[0], '\0');
    auto signalRecord = Filled<CanSignalRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalData(0, 0, &signalRecord), 0);
    EXPECT_EQ(signalRecord.comment[0], '\0');
}

TEST_F(ExportsTest, LeaveTheValueOfADescriptionThatCannotBeCut) {
    signal->enums.Add(1, "on");
    signal->enums.Add(2, invalidText);
    auto record = Filled<CanEnumRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 1, &record), 0);
    auto expected = Filled<CanEnumRecord>(Pattern);
    expected.text[0] = '\0';
    EXPECT_TRUE(SameBytes(record, expected));
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 0, &record), 1);
}

TEST_F(ExportsTest, LeaveCodeAndLineOfAnErrorThatCannotBeCut) {
    ParseError error{};
    error.code = 3;
    error.line = 4;
    std::string(255, '\x80').copy(error.text, 255);
    database.parseErrors = {error};
    auto record = Filled<ParseError>(Pattern);
    EXPECT_EQ(VexilGetErrorData(0, &record), 0);
    auto expected = Filled<ParseError>(Pattern);
    expected.text[0] = '\0';
    EXPECT_TRUE(SameBytes(record, expected));
}

TEST_F(ExportsTest, FetchAnErrorOf255Bytes) {
    ParseError error{};
    error.code = 3;
    error.line = 4;
    std::string(255, 'x').copy(error.text, 255);
    database.parseErrors = {error};
    auto record = Filled<ParseError>(Pattern);
    EXPECT_EQ(VexilGetErrorData(0, &record), 1);
    EXPECT_TRUE(SameBytes(record, error));
}

}  // namespace
}  // namespace vexil
