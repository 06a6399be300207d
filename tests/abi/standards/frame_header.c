/* vexil64_frame.h in the oldest C and C++ that it promises, without the library: a program that
 * calls each function and returns 0 if the results are right.
 * SPDX-License-Identifier: MIT */
#include <stdio.h>

#include "vexil64_frame.h"

static int failures = 0;

static void Check(int holds, const char* what) {
    if (!holds) {
        printf("FAILED: %s\n", what);
        ++failures;
    }
}

/* 47|12@0- (0.5,0) [-1024|1023.5] */
static CanSignalRecord Torque(void) {
    CanSignalRecord signal;
    memset(&signal, 0, sizeof signal);
    signal.startBit = 47;
    signal.bitLength = 12;
    signal.byteOrder = ByteOrderBigEndian;
    signal.valueType = ValueSigned;
    signal.factor = 0.5;
    signal.minimum = -1024;
    signal.maximum = 1023.5;
    return signal;
}

static void CheckInteger(void) {
    const CanSignalRecord torque = Torque();
    uint8_t frame[8] = {0, 0, 0, 0, 0, 0, 0x0A, 0};
    uint64_t raw = 0;
    double value = 0;
    Check(VexilEncodeValue(&torque, -5, frame, sizeof frame) == FrameOk, "a value is encoded");
    Check(frame[4] == 0 && frame[5] == 0xFF && frame[6] == 0x6A, "its bits are in the frame");
    Check(VexilDecodeValue(&torque, frame, sizeof frame, &value) == FrameOk, "it is decoded");
    Check(value > -5.01 && value < -4.99, "the value is -5");
    Check(VexilDecodeRaw(&torque, frame, sizeof frame, &raw) == FrameOk, "so is its raw value");
    Check(raw + 10 == 0, "the raw value is -10");
    Check(VexilEncodeRaw(&torque, 2047, frame, sizeof frame) == FrameOk, "the largest raw value");
    Check(frame[5] == 0x7F && frame[6] == 0xFA, "its bits are in the frame");
    Check(VexilEncodeRaw(&torque, 2048, frame, sizeof frame) == FrameOutOfRange, "not one more");
    Check(VexilDecodeRaw(&torque, frame, 6, &raw) == FrameTooShort, "not in a short frame");
    Check(VexilIsWithinLimits(&torque, 1023.5) == 1, "the maximum is within the limits");
    Check(VexilIsWithinLimits(&torque, 1024) == 0, "a larger value is not");
}

static void CheckFloat(void) {
    CanSignalRecord signal = Torque();
    uint64_t raw = 0;
    double value = 0;
    signal.bitLength = 32;
    signal.valueType = ValueFloat32;
    Check(VexilValueToRaw(&signal, -5, &raw) == FrameOk, "a float has a bit pattern");
    Check(raw == 0xC1200000U, "the bit pattern of -10");
    Check(VexilRawToValue(&signal, raw, &value) == FrameOk, "a bit pattern has a float");
    Check(value > -5.01 && value < -4.99, "the value is -5");
}

static void CheckMultiplexing(void) {
    CanSignalRecord signals[2];
    const uint8_t frame[8] = {3, 0, 0, 0, 0, 0, 0, 0};
    signals[0] = Torque();
    signals[0].multiplexType = MultiplexSelected;
    signals[0].multiplexValue = 3;
    signals[1] = Torque();
    signals[1].multiplexType = MultiplexSelector;
    signals[1].startBit = 7;
    signals[1].bitLength = 8;
    Check(VexilFindSelector(signals, 2) == signals + 1, "the multiplexer is found");
    Check(VexilCheckPresence(signals, signals + 1, frame, sizeof frame) == FrameOk, "is present");
    signals[0].multiplexValue = 2;
    Check(VexilCheckPresence(signals, signals + 1, frame, sizeof frame) == FrameNotPresent,
          "is not present");
    Check(strcmp(VexilFrameResultText(FrameOk), "success") == 0, "a result has a text");
}

int main(void) {
    CheckInteger();
    CheckFloat();
    CheckMultiplexing();
    return failures;
}
