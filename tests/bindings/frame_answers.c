/* Prints the results of the functions of vexil64_frame.h, for comparison with the bindings.
 * SPDX-License-Identifier: MIT
 *
 * Each line of the input is a case:
 *   startBit bitLength byteOrder valueType factor offset minimum maximum multiplexType
 *   multiplexValue value raw data
 * Each line of the output has the results of DecodeRaw, DecodeValue, EncodeRaw, EncodeValue,
 * RawToValue, ValueToRaw and CheckPresence, then the return value of IsWithinLimits. On success, a
 * result is followed by a colon and the raw value, the physical value or the frame.
 *
 * A double is written as the hexadecimal digits of its bits, a frame as those of its bytes. The
 * multiplexer is a signal in the first byte of the frame. */
#include <inttypes.h>
#include <stdio.h>
#include <string.h>

#include "vexil64_frame.h"

enum { LongestFrame = 64 };

static double FromBits(uint64_t bits) {
    double number;
    memcpy(&number, &bits, sizeof number);
    return number;
}

static void PrintNumber(VexilFrameResult result, uint64_t number) {
    printf("%d", (int)result);
    if (result == FrameOk) {
        printf(":%" PRIu64, number);
    }
    printf(" ");
}

static void PrintValue(VexilFrameResult result, double value) {
    uint64_t bits;
    memcpy(&bits, &value, sizeof bits);
    printf("%d", (int)result);
    if (result == FrameOk) {
        printf(":%016" PRIx64, bits);
    }
    printf(" ");
}

static void PrintFrame(VexilFrameResult result, const uint8_t* data, size_t size) {
    printf("%d", (int)result);
    if (result == FrameOk) {
        printf(":");
        for (size_t i = 0; i < size; ++i) {
            printf("%02x", data[i]);
        }
    }
    printf(" ");
}

static void PrintResults(const CanSignalRecord* signal, double value, uint64_t raw,
                         const uint8_t* data, size_t size) {
    CanSignalRecord selector = {0};
    uint64_t number = 0;
    double decoded = 0;
    uint8_t frame[LongestFrame];
    VexilFrameResult result;
    selector.multiplexType = MultiplexSelector;
    selector.bitLength = 8;
    selector.byteOrder = ByteOrderLittleEndian;

    result = VexilDecodeRaw(signal, data, size, &number);
    PrintNumber(result, number);
    result = VexilDecodeValue(signal, data, size, &decoded);
    PrintValue(result, decoded);
    memcpy(frame, data, size);
    result = VexilEncodeRaw(signal, raw, frame, size);
    PrintFrame(result, frame, size);
    memcpy(frame, data, size);
    result = VexilEncodeValue(signal, value, frame, size);
    PrintFrame(result, frame, size);
    result = VexilRawToValue(signal, raw, &decoded);
    PrintValue(result, decoded);
    result = VexilValueToRaw(signal, value, &number);
    PrintNumber(result, number);
    printf("%d ", (int)VexilCheckPresence(signal, &selector, data, size));
    printf("%u\n", VexilIsWithinLimits(signal, value));
}

/* Parses the bytes of a frame and returns their number. */
static size_t ReadData(const char* digits, uint8_t* data) {
    size_t size = 0;
    unsigned byte;
    while (size < LongestFrame && sscanf(digits + 2 * size, "%2x", &byte) == 1) {
        data[size++] = (uint8_t)byte;
    }
    return size;
}

int main(void) {
    CanSignalRecord signal = {0};
    uint64_t factor, offset, minimum, maximum, value, raw;
    char digits[2 * LongestFrame + 1];
    while (scanf("%" SCNu32 "%" SCNu32 "%" SCNu32 "%" SCNu32 "%" SCNx64 "%" SCNx64 "%" SCNx64
                 "%" SCNx64 "%" SCNu32 "%" SCNu32 "%" SCNx64 "%" SCNu64 "%128s",
                 &signal.startBit, &signal.bitLength, &signal.byteOrder, &signal.valueType, &factor,
                 &offset, &minimum, &maximum, &signal.multiplexType, &signal.multiplexValue, &value,
                 &raw, digits) == 13) {
        uint8_t data[LongestFrame];
        const size_t size = ReadData(digits, data);
        signal.factor = FromBits(factor);
        signal.offset = FromBits(offset);
        signal.minimum = FromBits(minimum);
        signal.maximum = FromBits(maximum);
        PrintResults(&signal, FromBits(value), raw, data, size);
    }
    return 0;
}
