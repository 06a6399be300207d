// Tests of CANMessage: its defaults, its name and its signals.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace vexil {
namespace {

static_assert(std::has_virtual_destructor_v<CANMessage>);

void ExpectDefaults(const CANMessage& message) {
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

TEST(CANMessage, HasDefaultsWhenMade) {
    const CANMessage message;
    ExpectDefaults(message);
    EXPECT_TRUE(message.stepErrors.empty());
}

TEST(CANMessage, ResetGivesDefaultsAndKeepsStepErrors) {
    CANMessage message;
    message.isEmpty = false;
    message.id = 1;
    message.longName = "long name";
    message.name = "name";
    message.transmitter = "ECU";
    message.sendType = "Cyclic";
    message.cycleTime = 100;
    message.comment = "comment";
    message.dlc = 8;
    message.signals = {std::make_shared<CANSignal>()};
    message.rawName = "raw name";
    message.stepErrors = {1, 2};
    message.Reset();
    ExpectDefaults(message);
    EXPECT_EQ(message.stepErrors, (std::vector<std::uint32_t>{1, 2}));
    message.Reset();
    EXPECT_EQ(message.stepErrors, (std::vector<std::uint32_t>{1, 2}));
}

TEST(CANMessage, UpdateNameMakesTheIdentifierOfTheLongName) {
    CANMessage message;
    message.rawName = "raw name";
    message.longName = "Engine";
    message.UpdateName();
    EXPECT_EQ(message.name, "Engine");
    message.longName = "1 Engine speed/rpm";
    message.UpdateName();
    EXPECT_EQ(message.name, "__Engine_speed_rpm");
    EXPECT_EQ(message.longName, "1 Engine speed/rpm");
    message.longName = "T\xc3\xbcr";
    message.UpdateName();
    EXPECT_EQ(message.name, "T_r");
    message.longName = std::string(33, 'a');
    message.UpdateName();
    EXPECT_EQ(message.name, std::string(32, 'a'));
    message.longName = "";
    message.UpdateName();
    EXPECT_EQ(message.name, "");
    EXPECT_EQ(message.rawName, "raw name");
}

TEST(CANMessage, AddSignalSharesTheSignalAndKeepsTheOrder) {
    CANMessage message;
    const auto first = std::make_shared<CANSignal>();
    const auto second = std::make_shared<CANSignal>();
    message.AddSignal(first);
    message.AddSignal(second);
    message.AddSignal(first);
    EXPECT_EQ(message.signals, (std::vector<std::shared_ptr<CANSignal>>{first, second, first}));
}

TEST(CANMessage, AddSignalDropsASignalOfAFullMessage) {
    CANMessage message;
    for (std::uint32_t count = 0; count < 9999; ++count) {
        message.AddSignal(std::make_shared<CANSignal>());
    }
    const auto last = std::make_shared<CANSignal>();
    const auto dropped = std::make_shared<CANSignal>();
    message.AddSignal(last);
    EXPECT_EQ(message.signals.size(), 10000U);
    message.AddSignal(dropped);
    EXPECT_EQ(message.signals.size(), 10000U);
    EXPECT_EQ(message.signals.back(), last);
    EXPECT_EQ(dropped.use_count(), 1);
}

}  // namespace
}  // namespace vexil
