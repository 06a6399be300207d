// Tests of CANMessage: its defaults and its signals.
// SPDX-License-Identifier: MIT
#include "frame/can_message.h"

#include <gtest/gtest.h>

#include "support/records.h"

namespace vexil {
namespace {

CANSignal SignalWithStartBit(std::uint32_t startBit) {
    CANSignal signal;
    signal.startBit = startBit;
    return signal;
}

TEST(CANMessage, HasDefaultsWhenNew) {
    auto record = test::Filled<CanMessageRecord>(test::Pattern);
    EXPECT_TRUE(CANMessage().CopyToRecord(&record));
    EXPECT_TRUE(test::SameBytes(record, test::RecordOf(test::MessageFields{})));
}

TEST(CANMessage, KeepsCopiesOfItsSignalsInTheirOrder) {
    Arena arena;
    CANMessage message;
    CANSignal signal = SignalWithStartBit(1);
    CANSignal* const first = message.AddSignal(arena, signal);
    signal.startBit = 2;
    CANSignal* const second = message.AddSignal(arena, signal);
    ASSERT_EQ(message.signals.Size(), 2U);
    EXPECT_EQ(message.signals[0], first);
    EXPECT_EQ(message.signals[1], second);
    EXPECT_EQ(first->startBit, 1U);
    EXPECT_EQ(second->startBit, 2U);
}

TEST(CANMessage, DropsASignalWhenItIsFull) {
    Arena arena;
    CANMessage message;
    for (std::uint32_t count = 0; count < 10000; ++count) {
        EXPECT_FALSE(message.IsFull());
        EXPECT_NE(message.AddSignal(arena, SignalWithStartBit(count)), nullptr);
    }
    EXPECT_TRUE(message.IsFull());
    EXPECT_EQ(message.AddSignal(arena, SignalWithStartBit(10000)), nullptr);
    ASSERT_EQ(message.signals.Size(), 10000U);
    EXPECT_EQ(message.signals[0]->startBit, 0U);
    EXPECT_EQ(message.signals[9999]->startBit, 9999U);
}

}  // namespace
}  // namespace vexil
