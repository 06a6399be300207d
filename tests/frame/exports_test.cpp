// Tests of the exported functions with invalid texts, which no file and no record can bring into
// the model. All else is tested through the library in tests/api.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "frame/can_database.h"
#include "support/read_text.h"
#include "support/records.h"
#include "vexil64.h"

namespace vexil {
namespace {

using test::Filled;
using test::Pattern;
using test::SameBytes;

// More than the longest array holds, and not to be cut anywhere.
const std::string invalidText = "\x80" + std::string(300, 'x');

class ExportsTest : public test::DatabaseTest {
  protected:
    void SetUp() override {
        DatabaseTest::SetUp();
        CANMessage& message = database.messages.Add(database.arena, CANMessage());
        signal = message.AddSignal(database.arena, CANSignal());
    }

    CANSignal* signal = nullptr;
};

TEST_F(ExportsTest, GetCanSignalEnumDataLeavesTheValueWhenTheTextIsInvalid) {
    const AddedDescription on{1, "on"};
    const AddedDescription invalid{2, invalidText, &on};
    signal->notes.added = &invalid;
    auto record = Filled<CanEnumRecord>(Pattern);
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 1, &record), 0);
    auto expected = Filled<CanEnumRecord>(Pattern);
    expected.text[0] = '\0';
    EXPECT_TRUE(SameBytes(record, expected));
    EXPECT_EQ(VexilGetCanSignalEnumData(0, 0, 0, &record), 1);
}

TEST_F(ExportsTest, GetErrorDataLeavesCodeAndLineWhenTheTextIsInvalid) {
    database.parseErrors.Add(database.arena, {3, 4, invalidText});
    auto record = Filled<ParseError>(Pattern);
    EXPECT_EQ(VexilGetErrorData(0, &record), 0);
    auto expected = Filled<ParseError>(Pattern);
    expected.text[0] = '\0';
    EXPECT_TRUE(SameBytes(record, expected));
}

}  // namespace
}  // namespace vexil
