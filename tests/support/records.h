// Boundary records for tests: made from their fields over bytes of choice, and compared byte by
// byte, so that a gap that was written or a field that should have stayed shows.
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>

#include "vexil64.h"

namespace vexil::test {

// What a record holds before the library touches it.
inline constexpr unsigned char Pattern = 0xA5;
inline constexpr unsigned char OtherPattern = 0x5A;

// Returns a record of the type with every byte set to pattern, gaps and all.
template <typename Record>
Record Filled(unsigned char pattern) {
    Record record;
    std::memset(&record, pattern, sizeof record);
    return record;
}

// Stores text and its NUL in an array; the bytes after the NUL stay.
template <std::size_t Size>
void StoreText(char (&array)[Size], std::string_view text) {
    if (text.size() >= Size) {
        throw std::length_error("text does not fit its array");
    }
    text.copy(array, Size);
    array[text.size()] = '\0';
}

// Stores exactly as many bytes as an array has, without a NUL.
template <std::size_t Size>
void StoreAll(char (&array)[Size], std::string_view bytes) {
    if (bytes.size() != Size) {
        throw std::length_error("bytes do not fill their array");
    }
    bytes.copy(array, Size);
}

struct MessageFields {
    std::uint32_t id = 0;
    std::string name = {};
    std::uint32_t dlc = 0;
    std::string longName = {};
    std::string transmitter = {};
    std::uint64_t signalCount = 0;
    std::string comment = {};
    std::string sendType = {};
    std::int32_t cycleTime = 0;
};

struct SignalFields {
    std::string name = {};
    std::string longName = {};
    std::string unit = {};
    std::string receiverList = {};
    std::string comment = {};
    std::uint32_t multiplexType = MultiplexNone;
    std::uint32_t multiplexValue = 0;
    std::uint32_t startBit = 0;
    std::uint32_t bitLength = 0;
    std::uint32_t byteOrder = ByteOrderLittleEndian;
    std::uint32_t valueType = ValueUnsigned;
    double factor = 0;
    double offset = 0;
    double minimum = 0;
    double maximum = 0;
    std::uint32_t enumCount = 0;
    std::int32_t startValue = 0;
    std::int32_t inactiveValue = 0;
    std::string unitUtf8 = {};
};

struct EnumFields {
    std::int32_t value = 0;
    std::string text = {};
};

struct ErrorFields {
    std::uint32_t code = 0;
    std::uint32_t line = 0;
    std::string text = {};
};

// Return the record that the fields make where every byte was pattern.

inline CanMessageRecord RecordOf(const MessageFields& fields, unsigned char pattern = Pattern) {
    auto record = Filled<CanMessageRecord>(pattern);
    record.id = fields.id;
    StoreText(record.name, fields.name);
    record.dlc = fields.dlc;
    StoreText(record.longName, fields.longName);
    StoreText(record.transmitter, fields.transmitter);
    record.signalCount = fields.signalCount;
    StoreText(record.comment, fields.comment);
    StoreText(record.sendType, fields.sendType);
    record.cycleTime = fields.cycleTime;
    return record;
}

inline CanSignalRecord RecordOf(const SignalFields& fields, unsigned char pattern = Pattern) {
    auto record = Filled<CanSignalRecord>(pattern);
    StoreText(record.name, fields.name);
    StoreText(record.longName, fields.longName);
    StoreText(record.unit, fields.unit);
    StoreText(record.receiverList, fields.receiverList);
    StoreText(record.comment, fields.comment);
    record.multiplexType = fields.multiplexType;
    record.multiplexValue = fields.multiplexValue;
    record.startBit = fields.startBit;
    record.bitLength = fields.bitLength;
    record.byteOrder = fields.byteOrder;
    record.valueType = fields.valueType;
    record.factor = fields.factor;
    record.offset = fields.offset;
    record.minimum = fields.minimum;
    record.maximum = fields.maximum;
    record.enumCount = fields.enumCount;
    record.startValue = fields.startValue;
    record.inactiveValue = fields.inactiveValue;
    StoreText(record.unitUtf8, fields.unitUtf8);
    return record;
}

inline CanEnumRecord RecordOf(const EnumFields& fields, unsigned char pattern = Pattern) {
    auto record = Filled<CanEnumRecord>(pattern);
    record.value = fields.value;
    StoreText(record.text, fields.text);
    return record;
}

inline ParseError RecordOf(const ErrorFields& fields, unsigned char pattern = Pattern) {
    auto record = Filled<ParseError>(pattern);
    record.code = fields.code;
    record.line = fields.line;
    StoreText(record.text, fields.text);
    return record;
}

// Whether two records hold the same bytes. A failure shows the first bytes that differ.
template <typename Record>
testing::AssertionResult SameBytes(const Record& actual, const Record& expected) {
    const auto* const actualBytes = reinterpret_cast<const char*>(&actual);
    const auto* const expectedBytes = reinterpret_cast<const char*>(&expected);
    const auto [at, other] = std::mismatch(actualBytes, actualBytes + sizeof actual, expectedBytes);
    if (at == actualBytes + sizeof actual) {
        return testing::AssertionSuccess();
    }
    const auto offset = static_cast<std::size_t>(at - actualBytes);
    const std::size_t count = std::min<std::size_t>(16, sizeof actual - offset);
    return testing::AssertionFailure()
           << "byte " << offset << " and the following are "
           << testing::PrintToString(std::string(at, count)) << " and not "
           << testing::PrintToString(std::string(other, count));
}

// Whether every byte of a record is still pattern.
template <typename Record>
testing::AssertionResult IsUntouched(const Record& record, unsigned char pattern = Pattern) {
    return SameBytes(record, Filled<Record>(pattern));
}

}  // namespace vexil::test
