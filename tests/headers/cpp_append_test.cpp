// vexil64.hpp: appending, and checks of text arguments.
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "support/files.h"
#include "support/records.h"
#include "vexil64.hpp"

namespace vexil::test {
namespace {

class CppAppendTest : public testing::Test {
  protected:
    CppAppendTest() { vexil64::clear(); }
    ~CppAppendTest() override { vexil64::clear(); }
};

// Returns whether the members of two records have the same bytes. Gaps between members are not
// copied with a record.
template <typename Record, typename... Member>
bool SameMembers(const Record& left, const Record& right, Member Record::*... members) {
    return ((std::memcmp(&(left.*members), &(right.*members), sizeof(left.*members)) == 0) && ...);
}

bool SameFields(const CanMessageRecord& left, const CanMessageRecord& right) {
    using Record = CanMessageRecord;
    return SameMembers(left, right, &Record::id, &Record::name, &Record::dlc, &Record::longName,
                       &Record::transmitter, &Record::signalCount, &Record::comment,
                       &Record::sendType, &Record::cycleTime);
}

bool SameFields(const CanSignalRecord& left, const CanSignalRecord& right) {
    using Record = CanSignalRecord;
    return SameMembers(left, right, &Record::name, &Record::longName, &Record::unit,
                       &Record::receiverList, &Record::comment, &Record::multiplexType,
                       &Record::multiplexValue, &Record::startBit, &Record::bitLength,
                       &Record::byteOrder, &Record::valueType, &Record::factor, &Record::offset,
                       &Record::minimum, &Record::maximum, &Record::enumCount, &Record::startValue,
                       &Record::inactiveValue, &Record::unitUtf8);
}

// Returns a text whose size is different for each field of a record.
std::string Sentinel(char letter, std::size_t size) {
    return std::string(size, letter);
}

vexil64::NewMessage SentinelMessage() {
    return vexil64::NewMessage(0x89ABCDEF, Sentinel('l', 255))
        .dlc(0x76543210)
        .transmitter(Sentinel('t', 32))
        .comment(Sentinel('c', 255));
}

vexil64::NewSignal SentinelSignal() {
    return vexil64::NewSignal(Sentinel('L', 255))
        .big_endian(0x01234567, 0x89ABCDEF)
        .value_type(ValueSigned)
        .scale(1.25, -2.5)
        .limits(-3.75, 4.125)
        .multiplexed(0xFEDCBA98)
        .unit(Sentinel('u', 30) + "\xC2\xB0")
        .receivers(Sentinel('r', 255))
        .comment(Sentinel('C', 254) + "!")
        .start_value(-0x12345678)
        .inactive_value(0x12345679);
}

// Compares every field of a record. A builder begins with zeros.
TEST_F(CppAppendTest, FillsEachFieldOfTheRecordOfAMessage) {
    MessageFields fields;
    fields.id = 0x89ABCDEF;
    fields.dlc = 0x76543210;
    fields.longName = Sentinel('l', 255);
    fields.transmitter = Sentinel('t', 32);
    fields.comment = Sentinel('c', 255);
    EXPECT_TRUE(SameFields(SentinelMessage().record(), RecordOf(fields, 0)));
}

TEST_F(CppAppendTest, FillsEachFieldOfTheRecordOfASignal) {
    SignalFields fields;
    fields.longName = Sentinel('L', 255);
    fields.startBit = 0x01234567;
    fields.bitLength = 0x89ABCDEF;
    fields.byteOrder = ByteOrderBigEndian;
    fields.valueType = ValueSigned;
    fields.factor = 1.25;
    fields.offset = -2.5;
    fields.minimum = -3.75;
    fields.maximum = 4.125;
    fields.multiplexType = MultiplexSelected;
    fields.multiplexValue = 0xFEDCBA98;
    fields.unit = Sentinel('u', 30) + "\xC2\xB0";
    fields.receiverList = Sentinel('r', 255);
    fields.comment = Sentinel('C', 254) + "!";
    fields.startValue = -0x12345678;
    fields.inactiveValue = 0x12345679;
    EXPECT_TRUE(SameFields(SentinelSignal().record(), RecordOf(fields, 0)));
}

TEST_F(CppAppendTest, ReturnsTheMessageAsItIsInTheDatabase) {
    vexil64::append(vexil64::NewMessage(1, "first"));
    const vexil64::Message message = vexil64::append(SentinelMessage());
    EXPECT_EQ(message.index(), 1U);
    EXPECT_EQ(message.id(), 0x89ABCDEFU);
    EXPECT_EQ(message.dlc(), 0x76543210U);
    EXPECT_EQ(message.long_name(), Sentinel('l', 255));
    EXPECT_EQ(message.name(), Sentinel('l', 32));
    EXPECT_EQ(message.transmitter(), Sentinel('t', 32));
    EXPECT_EQ(message.comment(), Sentinel('c', 255));
    const vexil64::Message again = vexil64::messages().at(1);
    EXPECT_TRUE(SameFields(message.record(), again.record()));
}

TEST_F(CppAppendTest, ReturnsTheSignalAsItIsInTheDatabase) {
    vexil64::append(vexil64::NewMessage(1, "first"));
    const vexil64::Message message = vexil64::append(SentinelMessage());
    vexil64::append(message, vexil64::NewSignal("first"));
    const vexil64::Signal signal = vexil64::append(message, SentinelSignal());
    EXPECT_EQ(signal.message_index(), 1U);
    EXPECT_EQ(signal.index(), 1U);
    EXPECT_EQ(signal.long_name(), Sentinel('L', 255));
    EXPECT_EQ(signal.name(), Sentinel('L', 32));
    EXPECT_EQ(signal.start_bit(), 0x01234567U);
    EXPECT_EQ(signal.bit_length(), 0x89ABCDEFU);
    EXPECT_EQ(signal.byte_order(), ByteOrderBigEndian);
    EXPECT_EQ(signal.value_type(), ValueSigned);
    EXPECT_EQ(signal.factor(), 1.25);
    EXPECT_EQ(signal.offset(), -2.5);
    EXPECT_EQ(signal.minimum(), -3.75);
    EXPECT_EQ(signal.maximum(), 4.125);
    EXPECT_EQ(signal.multiplex_type(), MultiplexSelected);
    EXPECT_EQ(signal.multiplex_value(), 0xFEDCBA98U);
    EXPECT_EQ(signal.unit(), Sentinel('u', 30) + "\xC2\xB0");
    EXPECT_EQ(signal.receivers(), Sentinel('r', 32));
    EXPECT_EQ(signal.comment(), Sentinel('C', 254) + "!");
    EXPECT_EQ(signal.start_value(), -0x12345678);
    EXPECT_EQ(signal.inactive_value(), 0x12345679);
    const vexil64::Signal again = message.signals().at(1);
    EXPECT_TRUE(SameFields(signal.record(), again.record()));
}

TEST_F(CppAppendTest, DefaultsASignalToOneBit) {
    const vexil64::Message message = vexil64::append(vexil64::NewMessage(1, "Door").dlc(1));
    const vexil64::Signal signal = vexil64::append(message, vexil64::NewSignal("Open"));
    EXPECT_EQ(signal.start_bit(), 0U);
    EXPECT_EQ(signal.bit_length(), 1U);
    EXPECT_EQ(signal.byte_order(), ByteOrderLittleEndian);
    EXPECT_EQ(signal.value_type(), ValueUnsigned);
    EXPECT_EQ(signal.factor(), 1);
    EXPECT_EQ(signal.multiplex_type(), MultiplexNone);
}

TEST_F(CppAppendTest, AppendsDescriptions) {
    const vexil64::Message message = vexil64::append(vexil64::NewMessage(1, "Door").dlc(1));
    const vexil64::Signal signal = vexil64::append(message, vexil64::NewSignal("Open"));
    vexil64::append(signal, 1, Sentinel('d', 255));
    vexil64::append(signal, INT32_MIN, "least");
    ASSERT_EQ(signal.descriptions().size(), 2U);
    const vexil64::Description least = signal.descriptions().at(0);
    EXPECT_EQ(least.value(), INT32_MIN);
    EXPECT_EQ(least.text(), "least");
    const vexil64::Description longest = signal.descriptions().at(1);
    EXPECT_EQ(longest.value(), 1);
    EXPECT_EQ(longest.text(), Sentinel('d', 255));
}

TEST_F(CppAppendTest, RoundTripsThroughAFile) {
    const TempFolder folder;
    const std::string file = folder.File("appended.dbc");
    const auto message =
        vexil64::append(vexil64::NewMessage(291, "Engine").dlc(8).transmitter("ECU1"));
    vexil64::append(message, vexil64::NewSignal("Mode").little_endian(0, 4).multiplexer());
    vexil64::append(message, vexil64::NewSignal("Level")
                                 .little_endian(8, 32)
                                 .value_type(ValueFloat32)
                                 .multiplexed(3)
                                 .unit("V"));
    vexil64::write(file);
    EXPECT_TRUE(vexil64::read(file).empty());
    const vexil64::Message again = vexil64::messages().at(0);
    EXPECT_EQ(again.name(), "Engine");
    const vexil64::Signal level = again.signals().at(1);
    EXPECT_EQ(level.name(), "Level");
    EXPECT_EQ(level.value_type(), ValueFloat32);
    EXPECT_EQ(level.multiplex_value(), 3U);
    EXPECT_EQ(level.unit(), "V");
    const std::optional<vexil64::Signal> selector = again.selector();
    ASSERT_TRUE(selector);
    EXPECT_EQ(selector->name(), "Mode");
}

// Returns the text of the exception that an operation throws.
template <typename Exception = std::invalid_argument, typename Operation>
std::string Refusal(const Operation& operation) {
    try {
        operation();
    } catch (const Exception& error) {
        return error.what();
    }
    return "not refused";
}

TEST_F(CppAppendTest, NamesTheFieldOfATextThatIsTooLong) {
    vexil64::NewMessage message(1, "name");
    vexil64::NewSignal signal("name");
    const std::string is33 = Sentinel('x', 33);
    const std::string is256 = Sentinel('x', 256);
    const CanMessageRecord before = message.record();
    EXPECT_EQ(Refusal([&] { vexil64::NewMessage(1, is256); }),
              "long name of a message: 256 bytes, at most 255");
    EXPECT_EQ(Refusal([&] { message.transmitter(is33); }), "transmitter: 33 bytes, at most 32");
    EXPECT_EQ(Refusal([&] { message.comment(is256); }),
              "comment of a message: 256 bytes, at most 255");
    EXPECT_EQ(Refusal([&] { vexil64::NewSignal{is256}; }),
              "long name of a signal: 256 bytes, at most 255");
    EXPECT_EQ(Refusal([&] { signal.unit(is33); }), "unit: 33 bytes, at most 32");
    EXPECT_EQ(Refusal([&] { signal.receivers(is256); }), "receivers: 256 bytes, at most 255");
    EXPECT_EQ(Refusal([&] { signal.comment(is256); }),
              "comment of a signal: 256 bytes, at most 255");
    EXPECT_TRUE(SameFields(message.record(), before));
}

TEST_F(CppAppendTest, RefusesANullTextAndATextWithANul) {
    vexil64::NewSignal signal("name");
    const char* const null = nullptr;
    EXPECT_EQ(Refusal([&] { signal.unit(std::string("km\0h", 4)); }), "unit: contains a NUL");
    EXPECT_EQ(Refusal([&] { signal.unit(null); }), "a text is null");
    EXPECT_EQ(Refusal([&] { vexil64::find_signal(vexil64::Message(), null); }), "a text is null");
    EXPECT_STREQ(signal.record().unit, "");
}

TEST_F(CppAppendTest, RefusesATextThatIsNotUtf8) {
    vexil64::NewSignal signal("name");
    EXPECT_EQ(Refusal([&] { signal.unit("\xB0"); }), "unit: is not valid UTF-8");
    // The library itself would drop an incomplete character at the end.
    EXPECT_EQ(Refusal([&] { signal.comment("half \xC2"); }),
              "comment of a signal: is not valid UTF-8");
}

TEST_F(CppAppendTest, ReplacesALongerText) {
    vexil64::NewSignal signal("name");
    signal.unit("kilometres").unit("m");
    EXPECT_TRUE(SameFields(signal.record(), vexil64::NewSignal("name").unit("m").record()));
}

TEST_F(CppAppendTest, RefusesABadDescription) {
    const auto message = vexil64::append(vexil64::NewMessage(1, "Door"));
    const auto signal = vexil64::append(message, vexil64::NewSignal("Open"));
    EXPECT_EQ(Refusal([&] { vexil64::append(signal, 0, Sentinel('x', 256)); }),
              "value description: 256 bytes, at most 255");
    EXPECT_TRUE(signal.descriptions().empty());
}

TEST_F(CppAppendTest, RefusesAFloatOfTheWrongLength) {
    const auto message = vexil64::append(vexil64::NewMessage(1, "Door"));
    const auto refusal = [&](std::uint32_t length, std::uint32_t type) {
        return Refusal([&] {
            vexil64::append(message,
                            vexil64::NewSignal("F").little_endian(0, length).value_type(type));
        });
    };
    EXPECT_EQ(refusal(31, ValueFloat32), "a floating-point signal of 31 bits");
    EXPECT_EQ(refusal(32, ValueFloat64), "a floating-point signal of 32 bits");
    EXPECT_TRUE(message.signals().empty());
    EXPECT_EQ(refusal(32, ValueFloat32), "not refused");
    EXPECT_EQ(refusal(64, ValueFloat64), "not refused");
    EXPECT_EQ(message.signals().size(), 2U);
}

TEST_F(CppAppendTest, ThrowsWhenTheOwnerIsNoLongerInTheDatabase) {
    const auto message = vexil64::append(vexil64::NewMessage(1, "Door"));
    const auto signal = vexil64::append(message, vexil64::NewSignal("Open"));
    vexil64::clear();
    EXPECT_EQ(
        Refusal<std::out_of_range>([&] { vexil64::append(message, vexil64::NewSignal("Open")); }),
        "there is no message 0");
    EXPECT_EQ(Refusal<std::out_of_range>([&] { vexil64::append(signal, 0, "text"); }),
              "there is no signal 0 in message 0");
}

TEST_F(CppAppendTest, ThrowsWhenTheMessageIsFull) {
    const auto message = vexil64::append(vexil64::NewMessage(1, "Full"));
    const vexil64::NewSignal signal("S");
    for (std::uint32_t i = 0; i < MaxSignalsPerMessage; ++i) {
        ASSERT_EQ(vexil64::append(message, signal).index(), i);
    }
    EXPECT_THROW(vexil64::append(message, signal), std::length_error);
    EXPECT_EQ(message.signals().size(), static_cast<std::size_t>(MaxSignalsPerMessage));
}

// The checks of this header and of the library accept the same texts. With the letters at the end,
// the library does not drop an incomplete character.
TEST_F(CppAppendTest, AcceptsTheSameUtf8AsTheLibrary) {
    constexpr std::string_view Leads =
        "\x01\x41\x7F\x80\x8F\x90\x9F\xA0\xBF\xC0\xC1\xC2\xDF\xE0\xE1\xEC\xED\xEE\xEF\xF0\xF1\xF3"
        "\xF4\xF5\xF7\xF8\xFE\xFF";
    constexpr std::string_view Tails = "\x41\x7F\x80\xBE\xBF\xC0\xF0";
    std::size_t valid = 0;
    for (const char first : Leads) {
        for (const char second : Leads) {
            for (const char third : Tails) {
                for (const char fourth : Tails) {
                    const std::string text = {first, second, third, fourth, 'x', 'x', 'x'};
                    CanEnumRecord record = {};
                    CanMessageRecord message = {};
                    StoreText(record.text, text);
                    StoreText(message.comment, text);
                    const bool accepted = VexilAppendCanMessage(&message) != 0;
                    ASSERT_EQ(vexil64::detail::is_utf8(text), accepted)
                        << testing::PrintToString(text);
                    valid += accepted ? 1 : 0;
                }
            }
        }
        vexil64::clear();
    }
    EXPECT_GT(valid, 100U);
}

}  // namespace
}  // namespace vexil::test
