/* vexil64_frame - the value of a signal in the bytes of a CAN frame, and back.
 * SPDX-License-Identifier: MIT
 *
 * Header only: a program that includes this file needs no library for it. It compiles as C89 and
 * later and as C++98 and later, in both cases with <stdint.h>. It allocates nothing, keeps no state
 * and may be used by several threads at once.
 *
 * The functions take the signal records of vexil64.h, as VexilGetCanSignalData fills them, and the
 * data bytes of a frame. Conventions that hold for every function:
 *
 *  1. Result. A function returns FrameOk, which is 0, or the reason of the failure. This differs
 *     from the functions of the library, which return 1 for success. A function that fails changes
 *     neither its output nor the frame.
 *  2. Frame. size is the number of bytes at data: 8 at most for classic CAN, 64 at most for CAN FD.
 *     The functions have no maximum, since transport protocols carry longer messages. A frame may
 *     be shorter than the dlc of its message; only the bytes of the signal must be there. A frame
 *     of size 0 may be null.
 *  3. Bits. Bit b of a frame is bit b % 8 of byte b / 8, where bit 0 of a byte is the least
 *     significant one. startBit is the least significant bit of a little-endian signal, whose
 *     further bits have ascending numbers. It is the most significant bit of a big-endian signal,
 *     which continues towards bit 0 of its byte, then with bit 7 of the next byte.
 *  4. Raw value. The bits of a signal as a uint64_t. A ValueSigned signal is extended with its sign
 *     to 64 bits, so that the cast to int64_t gives its number. The raw value of a ValueFloat32 and
 *     ValueFloat64 signal is its IEEE 754 bit pattern.
 *  5. Physical value. number * factor + offset, calculated as double. The number is the raw value,
 *     or the floating-point number with that bit pattern. Integers of more than 53 bits may be
 *     rounded, since a double has no more digits: use the raw value where each bit counts. The last
 *     bit of the result may depend on the compiler, which is free to fuse the multiplication and
 *     the addition where the processor can. With options such as -ffast-math, under which a
 *     compiler assumes that there are no infinities and NaNs, they are not recognised.
 *  6. Multiplexing. Only VexilCheckPresence looks at the multiplexer. All other functions take the
 *     signal as present.
 */
#ifndef VEXIL64_FRAME_H
#define VEXIL64_FRAME_H

#include <float.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#include "vexil64.h"

/* C89 has no inline, and C has no static_cast. */
#if defined(__cplusplus)
#define VEXIL64_INLINE inline
#define VEXIL64_CAST(type, value) static_cast<type>(value)
#else
#if defined(__STDC_VERSION__) && __STDC_VERSION__ >= 199901L
#define VEXIL64_INLINE static inline
#elif defined(__GNUC__) || defined(_MSC_VER)
#define VEXIL64_INLINE static __inline
#else
#define VEXIL64_INLINE static
#endif
#define VEXIL64_CAST(type, value) ((type)(value))
#endif

/* Results of the functions. */
typedef enum VexilFrameResult {
    FrameOk = 0,
    FrameNullArgument = 1, /* a pointer is null */
    FrameBadLayout = 2,    /* bitLength is not 1 to 64, byteOrder or valueType is not one of the
                              constants, or a ValueFloat32 is not of 32 bits or a ValueFloat64 not
                              of 64 bits */
    FrameTooShort = 3,     /* the signal has bits after the end of the frame */
    FrameBadScaling = 4,   /* factor or offset is infinite or not a number, or factor is 0 when a
                              physical value is encoded */
    FrameOutOfRange = 5,   /* encoding: the value does not fit into the bits of the signal;
                              decoding: the physical value does not fit into a double */
    FrameNotPresent = 6,   /* the multiplexer selects other signals */
    FrameNoSelector = 7    /* the signal is multiplexed, but there is no multiplexer */
} VexilFrameResult;

/* -- Physical values -------------------------------------------------------------------------- */

/* Decodes the physical value of a signal in a frame.
 *   signal  the signal.
 *   data    the bytes of the frame.
 *   size    number of bytes at data.
 *   value   receives the physical value. minimum and maximum are not applied.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort, FrameBadScaling or
 * FrameOutOfRange. The infinities and NaNs of a floating-point signal are values: FrameOk. */
VEXIL64_INLINE VexilFrameResult VexilDecodeValue(const CanSignalRecord* signal, const uint8_t* data,
                                                 size_t size, double* value);

/* Encodes a physical value into a frame. No bit outside the signal changes.
 *   signal  the signal.
 *   value   the physical value, rounded to the nearest raw value, and away from zero where two are
 *           equally near. A ValueFloat32 signal takes the nearest float. minimum and maximum are
 *           not applied: see VexilIsWithinLimits.
 *   data    the bytes of the frame.
 *   size    number of bytes at data.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort, FrameBadScaling or
 * FrameOutOfRange. An integer signal has no infinities and NaNs: FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilEncodeValue(const CanSignalRecord* signal, double value,
                                                 uint8_t* data, size_t size);

/* Compares a physical value with minimum and maximum of a signal.
 *   signal  the signal; null returns 0.
 *   value   the physical value. It may exceed a limit by what encoding rounds: half of factor for
 *           an integer signal, FLT_EPSILON times the limit for a ValueFloat32, nothing for a
 *           ValueFloat64.
 * Returns 1 if the value is between the limits, or if both are 0, which in a DBC file means that
 * there are none. Returns 0 if it is not, and for a NaN. */
VEXIL64_INLINE uint8_t VexilIsWithinLimits(const CanSignalRecord* signal, double value);

/* -- Raw values ------------------------------------------------------------------------------- */

/* Decodes the raw value of a signal in a frame.
 *   signal  the signal; factor and offset are not used.
 *   data    the bytes of the frame.
 *   size    number of bytes at data.
 *   raw     receives the raw value.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout or FrameTooShort. */
VEXIL64_INLINE VexilFrameResult VexilDecodeRaw(const CanSignalRecord* signal, const uint8_t* data,
                                               size_t size, uint64_t* raw);

/* Encodes a raw value into a frame. No bit outside the signal changes.
 *   signal  the signal; factor and offset are not used.
 *   raw     the raw value; that of a ValueSigned signal is extended with its sign to 64 bits.
 *   data    the bytes of the frame.
 *   size    number of bytes at data.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilEncodeRaw(const CanSignalRecord* signal, uint64_t raw,
                                               uint8_t* data, size_t size);

/* Converts a raw value into a physical value. The position of the signal is not used.
 *   signal  the signal.
 *   raw     the raw value, as VexilDecodeRaw returns it. It is not checked that it fits the signal.
 *   value   receives the physical value.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout, FrameBadScaling or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilRawToValue(const CanSignalRecord* signal, uint64_t raw,
                                                double* value);

/* Converts a physical value into a raw value, rounded as by VexilEncodeValue. The position of the
 * signal is not used.
 *   signal  the signal.
 *   value   the physical value.
 *   raw     receives the raw value, as VexilEncodeRaw takes it.
 * Returns FrameOk, FrameNullArgument, FrameBadLayout, FrameBadScaling or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilValueToRaw(const CanSignalRecord* signal, double value,
                                                uint64_t* raw);

/* -- Multiplexing ----------------------------------------------------------------------------- */

/* Returns the first multiplexer of a list of signals, or null if there is none or signals is null.
 *   signals  all signals of a message.
 *   count    number of signals. */
VEXIL64_INLINE const CanSignalRecord* VexilFindSelector(const CanSignalRecord* signals,
                                                        size_t count);

/* Checks whether a signal is present in a frame.
 *   signal    the signal. Unless it is MultiplexSelected it is always present, and no other
 *             argument is used.
 *   selector  the multiplexer of the same message. Its bits, taken as an unsigned number, are
 *             compared with the multiplexValue of the signal.
 *   data      the bytes of the frame.
 *   size      number of bytes at data.
 * Returns FrameOk if the signal is present and FrameNotPresent if it is not. Returns
 * FrameNoSelector if selector is null or not a MultiplexSelector, FrameNullArgument if signal or
 * data is null, FrameBadLayout or FrameTooShort if the multiplexer cannot be decoded. A multiplexer
 * that is a floating-point number is a FrameBadLayout. Whether all bits of the signal are in the
 * frame is not checked. */
VEXIL64_INLINE VexilFrameResult VexilCheckPresence(const CanSignalRecord* signal,
                                                   const CanSignalRecord* selector,
                                                   const uint8_t* data, size_t size);

/* -- Results ---------------------------------------------------------------------------------- */

/* Returns a result in words, in English and without a full stop; never null.
 *   result  a result; "unknown result" for any other number. */
VEXIL64_INLINE const char* VexilFrameResultText(VexilFrameResult result);

/* -- Implementation --------------------------------------------------------------------------- */

/* C has no auto. NOLINTBEGIN(modernize-use-auto) */

/* A mask of the lowest bits, 1 to 64 of them. */
VEXIL64_INLINE uint64_t VexilFrameMask(uint32_t bits) {
    return ~VEXIL64_CAST(uint64_t, 0) >> (64 - bits);
}

VEXIL64_INLINE int VexilFrameIsFinite(double number) {
    return number >= -DBL_MAX && number <= DBL_MAX;
}

VEXIL64_INLINE int VexilFrameIsFloat(const CanSignalRecord* signal) {
    return signal->valueType == ValueFloat32 || signal->valueType == ValueFloat64;
}

VEXIL64_INLINE VexilFrameResult VexilFrameCheckLayout(const CanSignalRecord* signal) {
    if (!signal) {
        return FrameNullArgument;
    }
    if (signal->bitLength < 1 || signal->bitLength > 64 ||
        signal->byteOrder > ByteOrderLittleEndian || signal->valueType > ValueFloat64 ||
        (signal->valueType == ValueFloat32 && signal->bitLength != 32) ||
        (signal->valueType == ValueFloat64 && signal->bitLength != 64)) {
        return FrameBadLayout;
    }
    return FrameOk;
}

VEXIL64_INLINE VexilFrameResult VexilFrameCheckBounds(const CanSignalRecord* signal,
                                                      const uint8_t* data, size_t size) {
    /* The number of bits in the frame before the signal: big-endian signals begin at the most
     * significant bit of a byte. */
    const uint32_t before =
        signal->byteOrder == ByteOrderLittleEndian ? signal->startBit : signal->startBit ^ 7U;
    if (VEXIL64_CAST(uint64_t, before) + signal->bitLength > VEXIL64_CAST(uint64_t, size) * 8) {
        return FrameTooShort;
    }
    return data ? FrameOk : FrameNullArgument;
}

/* The least significant bit of a signal, as a number of the frame. Both directions of a loop over
 * the bytes of a signal begin there: upwards for little-endian signals, downwards for big-endian
 * ones. */
VEXIL64_INLINE uint64_t VexilFrameLowestBit(const CanSignalRecord* signal) {
    const uint64_t start = signal->startBit;
    return signal->byteOrder == ByteOrderLittleEndian ? start
                                                      : ((start ^ 7U) + signal->bitLength - 1) ^ 7U;
}

/* Precondition: the layout and the bounds were checked. */
VEXIL64_INLINE uint64_t VexilFrameGetBits(const CanSignalRecord* signal, const uint8_t* data) {
    const uint64_t lowest = VexilFrameLowestBit(signal);
    const uint8_t* byte = data + lowest / 8;
    uint64_t bits = VEXIL64_CAST(uint64_t, *byte) >> lowest % 8;
    uint32_t count = 8 - VEXIL64_CAST(uint32_t, lowest % 8);
    for (; count < signal->bitLength; count += 8) {
        byte = signal->byteOrder == ByteOrderLittleEndian ? byte + 1 : byte - 1;
        bits |= VEXIL64_CAST(uint64_t, *byte) << count;
    }
    return bits & VexilFrameMask(signal->bitLength);
}

/* Precondition: the layout and the bounds were checked. */
VEXIL64_INLINE void VexilFrameSetBits(const CanSignalRecord* signal, uint64_t bits, uint8_t* data) {
    const uint64_t lowest = VexilFrameLowestBit(signal);
    uint8_t* byte = data + lowest / 8;
    uint64_t mask = VexilFrameMask(signal->bitLength);
    uint32_t shift = VEXIL64_CAST(uint32_t, lowest % 8);
    bits &= mask;
    while (mask != 0) {
        *byte = VEXIL64_CAST(uint8_t, (*byte & ~(mask << shift)) | bits << shift);
        mask >>= 8 - shift;
        bits >>= 8 - shift;
        shift = 0;
        if (mask != 0) {
            byte = signal->byteOrder == ByteOrderLittleEndian ? byte + 1 : byte - 1;
        }
    }
}

VEXIL64_INLINE uint64_t VexilFrameExtendSign(const CanSignalRecord* signal, uint64_t bits) {
    const uint64_t sign = VEXIL64_CAST(uint64_t, 1) << (signal->bitLength - 1);
    return signal->valueType == ValueSigned ? (bits ^ sign) - sign : bits;
}

/* Rounds to the nearest integer, and away from zero from the middle between two. From 2^52 on,
 * every double is an integer. Calls nothing of <math.h>, which some systems have in a library of
 * its own. */
VEXIL64_INLINE double VexilFrameRound(double number) {
    double integer;
    if (!(number > -4503599627370496.0 && number < 4503599627370496.0)) {
        return number;
    }
    integer = VEXIL64_CAST(double, VEXIL64_CAST(int64_t, number));
    if (number - integer >= 0.5) {
        return integer + 1;
    }
    return integer - number >= 0.5 ? integer - 1 : integer;
}

VEXIL64_INLINE VexilFrameResult VexilDecodeRaw(const CanSignalRecord* signal, const uint8_t* data,
                                               size_t size, uint64_t* raw) {
    VexilFrameResult result = VexilFrameCheckLayout(signal);
    if (result == FrameOk) {
        result = VexilFrameCheckBounds(signal, data, size);
    }
    if (result == FrameOk && !raw) {
        result = FrameNullArgument;
    }
    if (result == FrameOk) {
        *raw = VexilFrameExtendSign(signal, VexilFrameGetBits(signal, data));
    }
    return result;
}

VEXIL64_INLINE VexilFrameResult VexilEncodeRaw(const CanSignalRecord* signal, uint64_t raw,
                                               uint8_t* data, size_t size) {
    VexilFrameResult result = VexilFrameCheckLayout(signal);
    if (result == FrameOk) {
        result = VexilFrameCheckBounds(signal, data, size);
    }
    if (result == FrameOk &&
        raw != VexilFrameExtendSign(signal, raw & VexilFrameMask(signal->bitLength))) {
        result = FrameOutOfRange;
    }
    if (result == FrameOk) {
        VexilFrameSetBits(signal, raw, data);
    }
    return result;
}

VEXIL64_INLINE VexilFrameResult VexilRawToValue(const CanSignalRecord* signal, uint64_t raw,
                                                double* value) {
    const VexilFrameResult result = VexilFrameCheckLayout(signal);
    double number;
    double scaled;
    if (result != FrameOk) {
        return result;
    }
    if (!value) {
        return FrameNullArgument;
    }
    if (!VexilFrameIsFinite(signal->factor) || !VexilFrameIsFinite(signal->offset)) {
        return FrameBadScaling;
    }
    if (signal->valueType == ValueFloat32) {
        const uint32_t bits = VEXIL64_CAST(uint32_t, raw);
        float single;
        memcpy(&single, &bits, sizeof single);
        number = VEXIL64_CAST(double, single);
    } else if (signal->valueType == ValueFloat64) {
        memcpy(&number, &raw, sizeof number);
    } else if (signal->valueType == ValueSigned) {
        number = VEXIL64_CAST(double, VEXIL64_CAST(int64_t, raw));
    } else {
        number = VEXIL64_CAST(double, raw);
    }
    scaled = number * signal->factor + signal->offset;
    if (VexilFrameIsFinite(number) && !VexilFrameIsFinite(scaled)) {
        return FrameOutOfRange;
    }
    *value = scaled;
    return FrameOk;
}

VEXIL64_INLINE VexilFrameResult VexilValueToRaw(const CanSignalRecord* signal, double value,
                                                uint64_t* raw) {
    const VexilFrameResult result = VexilFrameCheckLayout(signal);
    double number;
    if (result != FrameOk) {
        return result;
    }
    if (!raw) {
        return FrameNullArgument;
    }
    if (!VexilFrameIsFinite(signal->factor) || !VexilFrameIsFinite(signal->offset) ||
        !(signal->factor < 0 || signal->factor > 0)) {
        return FrameBadScaling;
    }
    number = (value - signal->offset) / signal->factor;
    if (VexilFrameIsFloat(signal)) {
        const double largest =
            signal->valueType == ValueFloat32 ? VEXIL64_CAST(double, FLT_MAX) : DBL_MAX;
        if (VexilFrameIsFinite(value) && !(number >= -largest && number <= largest)) {
            return FrameOutOfRange;
        }
        if (signal->valueType == ValueFloat32) {
            const float single = VEXIL64_CAST(float, number);
            uint32_t bits;
            memcpy(&bits, &single, sizeof bits);
            *raw = bits;
        } else {
            memcpy(raw, &number, sizeof number);
        }
        return FrameOk;
    }
    number = VexilFrameRound(number);
    if (signal->valueType == ValueSigned) {
        const double limit =
            VEXIL64_CAST(double, VEXIL64_CAST(uint64_t, 1) << (signal->bitLength - 1));
        if (!(number >= -limit && number < limit)) {
            return FrameOutOfRange;
        }
        *raw = VEXIL64_CAST(uint64_t, VEXIL64_CAST(int64_t, number));
    } else {
        const double limit =
            VEXIL64_CAST(double, VEXIL64_CAST(uint64_t, 1) << (signal->bitLength - 1)) * 2;
        if (!(number >= 0 && number < limit)) {
            return FrameOutOfRange;
        }
        *raw = VEXIL64_CAST(uint64_t, number);
    }
    return FrameOk;
}

VEXIL64_INLINE VexilFrameResult VexilDecodeValue(const CanSignalRecord* signal, const uint8_t* data,
                                                 size_t size, double* value) {
    uint64_t raw = 0;
    const VexilFrameResult result = VexilDecodeRaw(signal, data, size, &raw);
    return result == FrameOk ? VexilRawToValue(signal, raw, value) : result;
}

VEXIL64_INLINE VexilFrameResult VexilEncodeValue(const CanSignalRecord* signal, double value,
                                                 uint8_t* data, size_t size) {
    uint64_t raw = 0;
    const VexilFrameResult result = VexilValueToRaw(signal, value, &raw);
    return result == FrameOk ? VexilEncodeRaw(signal, raw, data, size) : result;
}

VEXIL64_INLINE double VexilFrameMagnitude(double number) {
    return number < 0 ? -number : number;
}

/* By how much encoding may move a value beyond a limit. */
VEXIL64_INLINE double VexilFrameSlack(const CanSignalRecord* signal, double limit) {
    if (signal->valueType == ValueFloat64) {
        return 0;
    }
    return signal->valueType == ValueFloat32
               ? VexilFrameMagnitude(limit) * VEXIL64_CAST(double, FLT_EPSILON)
               : VexilFrameMagnitude(signal->factor) / 2;
}

VEXIL64_INLINE uint8_t VexilIsWithinLimits(const CanSignalRecord* signal, double value) {
    const int isNumber = value <= 0 || value > 0;
    if (!signal || !isNumber) {
        return 0;
    }
    if (!(VexilFrameMagnitude(signal->minimum) > 0) &&
        !(VexilFrameMagnitude(signal->maximum) > 0)) {
        return 1;
    }
    return value >= signal->minimum - VexilFrameSlack(signal, signal->minimum) &&
                   value <= signal->maximum + VexilFrameSlack(signal, signal->maximum)
               ? 1
               : 0;
}

VEXIL64_INLINE const CanSignalRecord* VexilFindSelector(const CanSignalRecord* signals,
                                                        size_t count) {
    size_t i;
    for (i = 0; signals && i < count; ++i) {
        if (signals[i].multiplexType == MultiplexSelector) {
            return signals + i;
        }
    }
    return NULL;
}

VEXIL64_INLINE VexilFrameResult VexilCheckPresence(const CanSignalRecord* signal,
                                                   const CanSignalRecord* selector,
                                                   const uint8_t* data, size_t size) {
    uint64_t raw = 0;
    VexilFrameResult result;
    if (!signal) {
        return FrameNullArgument;
    }
    if (signal->multiplexType != MultiplexSelected) {
        return FrameOk;
    }
    if (!selector || selector->multiplexType != MultiplexSelector) {
        return FrameNoSelector;
    }
    result = VexilDecodeRaw(selector, data, size, &raw);
    if (result != FrameOk) {
        return result;
    }
    if (VexilFrameIsFloat(selector)) {
        return FrameBadLayout;
    }
    return (raw & VexilFrameMask(selector->bitLength)) == signal->multiplexValue ? FrameOk
                                                                                 : FrameNotPresent;
}

VEXIL64_INLINE const char* VexilFrameResultText(VexilFrameResult result) {
    switch (result) {
        case FrameOk:
            return "success";
        case FrameNullArgument:
            return "a pointer is null";
        case FrameBadLayout:
            return "length, byte order or value type of the signal is not valid";
        case FrameTooShort:
            return "the frame is too short for the signal";
        case FrameBadScaling:
            return "factor or offset of the signal is not valid";
        case FrameOutOfRange:
            return "the value is out of range";
        case FrameNotPresent:
            return "the multiplexer selects other signals";
        case FrameNoSelector:
            return "the message has no multiplexer";
    }
    return "unknown result";
}

/* NOLINTEND(modernize-use-auto) */

#undef VEXIL64_INLINE
#undef VEXIL64_CAST

#endif /* VEXIL64_FRAME_H */
