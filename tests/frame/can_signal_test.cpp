// Tests of CANSignal: its defaults, its name and its receivers.
// SPDX-License-Identifier: MIT
#include "frame/can_signal.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "frame/enums_of.h"
#include "support/records.h"

namespace vexil {
namespace {

using test::EnumsOf;

static_assert(std::has_virtual_destructor_v<CANSignal>);

void ExpectDefaults(const CANSignal& signal) {
    EXPECT_TRUE(signal.isEmpty);
    EXPECT_EQ(signal.name, "");
    EXPECT_EQ(signal.longName, "");
    EXPECT_EQ(signal.unit, "");
    EXPECT_EQ(signal.unitUtf8, "");
    EXPECT_EQ(signal.comment, "");
    EXPECT_EQ(signal.multiplexType, 0U);
    EXPECT_EQ(signal.multiplexValue, 0U);
    EXPECT_EQ(signal.startBit, 0U);
    EXPECT_EQ(signal.bitLength, 0U);
    EXPECT_EQ(signal.byteOrder, 1U);
    EXPECT_EQ(signal.valueType, 0U);
    EXPECT_EQ(signal.factor, 0);
    EXPECT_EQ(signal.offset, 0);
    EXPECT_EQ(signal.minimum, 0);
    EXPECT_EQ(signal.maximum, 0);
    EXPECT_TRUE(signal.receivers.IsEmpty());
    EXPECT_TRUE(EnumsOf(signal).empty());
    EXPECT_EQ(signal.startValue, 0);
    EXPECT_EQ(signal.inactiveValue, 0);
    EXPECT_EQ(signal.rawName, "");
    EXPECT_FALSE(signal.hasNameSuffix);
}

// With a value in every member that is not its default.
void FillEveryMember(CANSignal& signal) {
    signal.isEmpty = false;
    signal.name = "name";
    signal.longName = "long name";
    signal.unit = "unit";
    signal.unitUtf8 = "unit utf8";
    signal.comment = "comment";
    signal.multiplexType = 2;
    signal.multiplexValue = 3;
    signal.startBit = 4;
    signal.bitLength = 5;
    signal.byteOrder = 0;
    signal.valueType = 3;
    signal.factor = 0.5;
    signal.offset = -1;
    signal.minimum = -2;
    signal.maximum = 2;
    signal.receivers = {"A", "B"};
    const CanEnumRecord record = test::RecordOf(test::EnumFields{1, "on"});
    ASSERT_TRUE(signal.AddEnum(&record));
    signal.startValue = 6;
    signal.inactiveValue = 7;
    signal.rawName = "raw name";
    signal.hasNameSuffix = true;
    signal.stepErrors = {4, 5};
}

TEST(CANSignal, HasDefaultsWhenMade) {
    const CANSignal signal;
    ExpectDefaults(signal);
    EXPECT_TRUE(signal.stepErrors.empty());
}

TEST(CANSignal, ResetGivesDefaultsAndKeepsStepErrors) {
    CANSignal signal;
    FillEveryMember(signal);
    signal.Reset();
    ExpectDefaults(signal);
    EXPECT_EQ(signal.stepErrors, (std::vector<std::uint32_t>{4, 5}));
    signal.Reset();
    EXPECT_EQ(signal.stepErrors, (std::vector<std::uint32_t>{4, 5}));
}

TEST(CANSignal, UpdateNameMakesTheIdentifierOfTheLongName) {
    CANSignal signal;
    FillEveryMember(signal);
    signal.longName = "Speed";
    signal.UpdateName();
    EXPECT_EQ(signal.name, "Speed");
    signal.longName = "1 Engine speed/rpm";
    signal.UpdateName();
    EXPECT_EQ(signal.name, "__Engine_speed_rpm");
    EXPECT_EQ(signal.longName, "1 Engine speed/rpm");
    signal.longName = "T\xc3\xbcr";
    signal.UpdateName();
    EXPECT_EQ(signal.name, "T_r");
    signal.longName = std::string(32, 'a');
    signal.UpdateName();
    EXPECT_EQ(signal.name, std::string(32, 'a'));
    signal.longName = std::string(33, 'a');
    signal.UpdateName();
    EXPECT_EQ(signal.name, std::string(32, 'a'));
    signal.longName = "";
    signal.UpdateName();
    EXPECT_EQ(signal.name, "");
    EXPECT_EQ(signal.rawName, "raw name");
}

TEST(CANSignal, ReceiverListHasCommasAndNoBlanks) {
    CANSignal signal;
    EXPECT_EQ(signal.ReceiverList(), "");
    signal.receivers = {"A"};
    EXPECT_EQ(signal.ReceiverList(), "A");
    signal.receivers = {"A", "B", "A"};
    EXPECT_EQ(signal.ReceiverList(), "A,B,A");
}

TEST(CANSignal, ParseReceiversSplitsAtCommas) {
    CANSignal signal;
    const auto parsed = [&signal](std::string_view list) {
        signal.ParseReceivers(list);
        return signal.receivers;
    };
    using Receivers = NodeList;
    EXPECT_EQ(parsed("A , B ,, D"), (Receivers{"A", "B", "D"}));
    EXPECT_EQ(parsed("A"), (Receivers{"A"}));
    EXPECT_EQ(parsed(""), Receivers{});
    EXPECT_EQ(parsed(" , \t,\n"), Receivers{});
    EXPECT_EQ(parsed("A B, 1st,T\xc3\xbcr,A B"), (Receivers{"A_B", "_st", "T_r", "A_B"}));
    EXPECT_EQ(parsed(std::string(40, 'a') + ",b"), (Receivers{std::string(32, 'a'), "b"}));
}

}  // namespace
}  // namespace vexil
