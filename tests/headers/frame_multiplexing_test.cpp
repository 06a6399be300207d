// VexilFindSelector and VexilCheckPresence.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <vector>

#include "frame_signals.h"

namespace vexil::test {
namespace {

CanSignalRecord Selector(std::uint32_t valueType = ValueUnsigned) {
    CanSignalRecord signal = SignalAt(0, 8, ByteOrderLittleEndian, valueType);
    signal.multiplexType = MultiplexSelector;
    return signal;
}

CanSignalRecord SelectedBy(std::uint32_t value) {
    CanSignalRecord signal = SignalAt(8, 8, ByteOrderLittleEndian);
    signal.multiplexType = MultiplexSelected;
    signal.multiplexValue = value;
    return signal;
}

VexilFrameResult Presence(const CanSignalRecord& signal, const CanSignalRecord& selector,
                          const Frame& frame) {
    return VexilCheckPresence(&signal, &selector, frame.data(), frame.size());
}

TEST(VexilFindSelector, FindsTheFirstMultiplexer) {
    const std::vector<CanSignalRecord> signals = {SelectedBy(1), SignalAt(0, 1, 0), Selector(),
                                                  Selector()};
    EXPECT_EQ(VexilFindSelector(signals.data(), 4), &signals[2]);
    EXPECT_EQ(VexilFindSelector(signals.data(), 3), &signals[2]);
    EXPECT_EQ(VexilFindSelector(signals.data(), 2), nullptr);
    EXPECT_EQ(VexilFindSelector(signals.data(), 0), nullptr);
    EXPECT_EQ(VexilFindSelector(nullptr, 4), nullptr);
}

TEST(VexilCheckPresence, ComparesTheMultiplexer) {
    EXPECT_EQ(Presence(SelectedBy(3), Selector(), {3, 0}), FrameOk);
    EXPECT_EQ(Presence(SelectedBy(3), Selector(), {2, 0}), FrameNotPresent);
    EXPECT_EQ(Presence(SelectedBy(0), Selector(), {0, 0}), FrameOk);
}

TEST(VexilCheckPresence, TreatsTheMultiplexerAsUnsigned) {
    EXPECT_EQ(Presence(SelectedBy(255), Selector(ValueSigned), {255, 0}), FrameOk);
    EXPECT_EQ(Presence(SelectedBy(0xFFFFFFFF), Selector(ValueSigned), {255, 0}), FrameNotPresent);
}

TEST(VexilCheckPresence, ComparesAllBitsOfALongMultiplexer) {
    CanSignalRecord selector = Selector();
    selector.bitLength = 40;
    EXPECT_EQ(Presence(SelectedBy(3), selector, {3, 0, 0, 0, 0}), FrameOk);
    EXPECT_EQ(Presence(SelectedBy(3), selector, {3, 0, 0, 0, 1}), FrameNotPresent);
}

TEST(VexilCheckPresence, ReportsOtherSignalsAsPresent) {
    const CanSignalRecord plain = SignalAt(0, 8, ByteOrderLittleEndian);
    const CanSignalRecord selector = Selector();
    EXPECT_EQ(VexilCheckPresence(&plain, nullptr, nullptr, 0), FrameOk);
    EXPECT_EQ(VexilCheckPresence(&selector, nullptr, nullptr, 0), FrameOk);
}

TEST(VexilCheckPresence, FailsWithoutAMultiplexer) {
    const Frame frame(8);
    const CanSignalRecord signal = SelectedBy(0);
    EXPECT_EQ(VexilCheckPresence(&signal, nullptr, frame.data(), 8), FrameNoSelector);
    EXPECT_EQ(Presence(signal, SignalAt(0, 8, 0), frame), FrameNoSelector);
    EXPECT_EQ(Presence(signal, SelectedBy(0), frame), FrameNoSelector);
}

TEST(VexilCheckPresence, FailsIfTheMultiplexerCannotBeDecoded) {
    const CanSignalRecord signal = SelectedBy(0);
    CanSignalRecord selector = Selector();
    EXPECT_EQ(Presence(signal, selector, {}), FrameTooShort);
    EXPECT_EQ(VexilCheckPresence(&signal, &selector, nullptr, 8), FrameNullArgument);
    EXPECT_EQ(VexilCheckPresence(nullptr, &selector, nullptr, 8), FrameNullArgument);
    selector.bitLength = 0;
    EXPECT_EQ(Presence(signal, selector, Frame(8)), FrameBadLayout);
    selector = Selector(ValueFloat32);
    selector.bitLength = 32;
    EXPECT_EQ(Presence(signal, selector, Frame(8)), FrameBadLayout);
}

}  // namespace
}  // namespace vexil::test
