// Signals and frames for the tests of vexil64_frame.h.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <ostream>
#include <vector>

#include "vexil64_frame.h"

namespace vexil::test {

using Frame = std::vector<std::uint8_t>;

// Returns a signal with factor 1, offset 0 and no limits.
inline CanSignalRecord SignalAt(std::uint32_t startBit, std::uint32_t bitLength,
                                std::uint32_t byteOrder, std::uint32_t valueType = ValueUnsigned) {
    CanSignalRecord signal = {};
    signal.startBit = startBit;
    signal.bitLength = bitLength;
    signal.byteOrder = byteOrder;
    signal.valueType = valueType;
    signal.factor = 1;
    return signal;
}

// Returns an integer signal at the beginning of a frame.
inline CanSignalRecord Integer(std::uint32_t bitLength, std::uint32_t valueType, double factor = 1,
                               double offset = 0) {
    CanSignalRecord signal = SignalAt(0, bitLength, ByteOrderLittleEndian, valueType);
    signal.factor = factor;
    signal.offset = offset;
    return signal;
}

inline CanSignalRecord Float32() {
    return SignalAt(0, 32, ByteOrderLittleEndian, ValueFloat32);
}

inline CanSignalRecord Float64() {
    return SignalAt(0, 64, ByteOrderLittleEndian, ValueFloat64);
}

// The result of a conversion, and the value that it stored; Unset if it stored none.
template <typename Value>
struct Outcome {
    static constexpr Value Unset = static_cast<Value>(123456789);

    Outcome() = default;
    Outcome(VexilFrameResult reason, Value stored) : result(reason), value(stored) {}

    VexilFrameResult result = FrameOk;
    Value value = Unset;

    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << VexilFrameResultText(outcome.result) << ", " << outcome.value;
    }
};

template <typename Value>
Outcome<Value> Failure(VexilFrameResult result) {
    return {result, Outcome<Value>::Unset};
}

inline Outcome<std::uint64_t> DecodeRaw(const CanSignalRecord& signal, const Frame& frame) {
    Outcome<std::uint64_t> outcome;
    outcome.result = VexilDecodeRaw(&signal, frame.data(), frame.size(), &outcome.value);
    return outcome;
}

inline Outcome<double> DecodeValue(const CanSignalRecord& signal, const Frame& frame) {
    Outcome<double> outcome;
    outcome.result = VexilDecodeValue(&signal, frame.data(), frame.size(), &outcome.value);
    return outcome;
}

inline Outcome<double> RawToValue(const CanSignalRecord& signal, std::uint64_t raw) {
    Outcome<double> outcome;
    outcome.result = VexilRawToValue(&signal, raw, &outcome.value);
    return outcome;
}

inline Outcome<std::uint64_t> ValueToRaw(const CanSignalRecord& signal, double value) {
    Outcome<std::uint64_t> outcome;
    outcome.result = VexilValueToRaw(&signal, value, &outcome.value);
    return outcome;
}

}  // namespace vexil::test
