/* vexil64_frame - decodes and encodes the values of signals in the bytes of a CAN frame.
 * SPDX-License-Identifier: MIT
 *
 * Header only: a program that includes this file links no library for it. It compiles as C89 and
 * later and as C++98 and later, in both cases with <stdint.h>. The functions take signal records of
 * vexil64.h, as VexilGetCanSignalData fills them, and the data bytes of a frame.
 *
 * Conventions of all functions
 *
 *  1. Results. A function that can fail returns FrameOk, which is 0, or the reason of the failure.
 *     The functions of the library differ: they return 1 for success. A function that fails changes
 *     neither its output nor the frame.
 *  2. Frame. "size" is the number of bytes at "data": at most 8 in classic CAN, at most 64 in CAN
 *     FD. The functions have no limit, since transport protocols carry longer messages. A frame may
 *     be shorter than the dlc of its message, as long as it contains all bits of the signal. "data"
 *     may be null if "size" is 0.
 *  3. Bits. Bit b of a frame is bit b % 8 of byte b / 8, where bit 0 of a byte is the least
 *     significant one. In a little-endian signal, startBit is the least significant bit, and the
 *     other bits have the next higher numbers. In a big-endian signal, startBit is the most
 *     significant bit; the signal continues towards bit 0 of its byte, then with bit 7 of the next
 *     byte.
 *  4. Raw value. The bits of a signal as a uint64_t. The raw value of a ValueSigned signal is
 *     sign-extended to 64 bits, so a cast to int64_t gives the number. The raw value of a
 *     ValueFloat32 or ValueFloat64 signal is the IEEE 754 bit pattern.
 *  5. Physical value. number * factor + offset, calculated as double. The number is the raw value,
 *     or the floating-point number with this bit pattern. A double has 53 significant bits, so the
 *     physical value of a longer integer may be rounded: use the raw value where each bit counts.
 *     The last bit of a physical value can differ between compilers and processors, which may fuse
 *     the multiplication and the addition. Options such as -ffast-math, which assume that there are
 *     no infinities and NaNs, disable the checks for them.
 *  6. Multiplexing. Only VexilCheckPresence evaluates the multiplexer. All other functions treat
 *     every signal as present.
 *  7. Memory and threads. The functions allocate no memory and have no state, so several threads
 *     may call them at once. Pointers that are not null must be valid.
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
                              constants, a ValueFloat32 has not 32 bits or a ValueFloat64 has not
                              64 bits */
    FrameTooShort = 3,     /* the frame does not contain all bits of the signal */
    FrameBadScaling = 4,   /* factor or offset is infinite or not a number; when encoding, also a
                              factor of 0 */
    FrameOutOfRange = 5,   /* encoding: the value does not fit into the bits of the signal;
                              decoding: the physical value does not fit into a double */
    FrameNotPresent = 6,   /* the multiplexer selects other signals */
    FrameNoSelector = 7    /* the signal is multiplexed, but there is no multiplexer */
} VexilFrameResult;

/* -- Physical values -------------------------------------------------------------------------- */

/* Decodes the physical value of a signal in a frame.
 *
 * Parameters:
 *   signal      the signal.
 *   data, size  the frame.
 *   value       receives the physical value.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort, FrameBadScaling or FrameOutOfRange.
 * Notes:
 *   minimum and maximum are not applied. Infinities and NaNs of a floating-point signal are values,
 *   not failures. */
VEXIL64_INLINE VexilFrameResult VexilDecodeValue(const CanSignalRecord* signal, const uint8_t* data,
                                                 size_t size, double* value);

/* Encodes a physical value into a frame. Bits outside the signal do not change.
 *
 * Parameters:
 *   signal      the signal.
 *   value       the physical value.
 *   data, size  the frame.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort, FrameBadScaling or FrameOutOfRange.
 * Notes:
 *   The value is rounded to the nearest raw value, and halfway cases away from zero. For a
 *   ValueFloat32 signal the nearest float is encoded. minimum and maximum are not applied; see
 *   VexilIsWithinLimits. Infinities and NaNs can be encoded into floating-point signals only; for
 *   an integer signal the result is FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilEncodeValue(const CanSignalRecord* signal, double value,
                                                 uint8_t* data, size_t size);

/* Compares a physical value with the minimum and maximum of a signal.
 *
 * Parameters:
 *   signal  the signal; null returns 0.
 *   value   the physical value.
 * Returns:
 *   1  The value is within the limits, or both limits are 0, which in a DBC file means that the
 *      signal has no limits.
 *   0  The value is outside the limits or a NaN.
 * Notes:
 *   A value may exceed a limit by the rounding error of encoding: by half of factor for an integer
 *   signal, by FLT_EPSILON times the limit for a ValueFloat32, not at all for a ValueFloat64. */
VEXIL64_INLINE uint8_t VexilIsWithinLimits(const CanSignalRecord* signal, double value);

/* -- Raw values ------------------------------------------------------------------------------- */

/* Decodes the raw value of a signal in a frame.
 *
 * Parameters:
 *   signal      the signal; factor and offset are not used.
 *   data, size  the frame.
 *   raw         receives the raw value.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout or FrameTooShort. */
VEXIL64_INLINE VexilFrameResult VexilDecodeRaw(const CanSignalRecord* signal, const uint8_t* data,
                                               size_t size, uint64_t* raw);

/* Encodes a raw value into a frame. Bits outside the signal do not change.
 *
 * Parameters:
 *   signal      the signal; factor and offset are not used.
 *   raw         the raw value; sign-extended to 64 bits for a ValueSigned signal.
 *   data, size  the frame.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout, FrameTooShort or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilEncodeRaw(const CanSignalRecord* signal, uint64_t raw,
                                               uint8_t* data, size_t size);

/* Converts a raw value into a physical value.
 *
 * Parameters:
 *   signal  the signal; startBit is not used.
 *   raw     the raw value, as VexilDecodeRaw returns it; not checked against bitLength.
 *   value   receives the physical value.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout, FrameBadScaling or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilRawToValue(const CanSignalRecord* signal, uint64_t raw,
                                                double* value);

/* Converts a physical value into a raw value, with the rounding of VexilEncodeValue.
 *
 * Parameters:
 *   signal  the signal; startBit is not used.
 *   value   the physical value.
 *   raw     receives the raw value, in the form that VexilEncodeRaw takes.
 * Returns:
 *   FrameOk, FrameNullArgument, FrameBadLayout, FrameBadScaling or FrameOutOfRange. */
VEXIL64_INLINE VexilFrameResult VexilValueToRaw(const CanSignalRecord* signal, double value,
                                                uint64_t* raw);

/* -- Multiplexing ----------------------------------------------------------------------------- */

/* Returns the first multiplexer in an array of signals.
 *
 * Parameters:
 *   signals  all signals of a message; may be null.
 *   count    number of signals.
 * Returns:
 *   A pointer into the array, or null if it contains no MultiplexSelector. */
VEXIL64_INLINE const CanSignalRecord* VexilFindSelector(const CanSignalRecord* signals,
                                                        size_t count);

/* Checks whether a signal is present in a frame.
 *
 * Parameters:
 *   signal      the signal. A signal that is not MultiplexSelected is always present; the other
 *               arguments are not used then.
 *   selector    the multiplexer of the same message, from VexilFindSelector; may be null.
 *   data, size  the frame.
 * Returns:
 *   FrameOk            The signal is present.
 *   FrameNotPresent    The signal is not present.
 *   FrameNoSelector    selector is null or not a MultiplexSelector.
 *   FrameNullArgument  signal or data is null.
 *   FrameBadLayout     The multiplexer cannot be decoded, or it is a floating-point signal.
 *   FrameTooShort      The frame does not contain all bits of the multiplexer.
 * Notes:
 *   The bits of the multiplexer, as an unsigned number, are compared with the multiplexValue of the
 *   signal. Whether the frame contains the bits of the signal is not checked. */
VEXIL64_INLINE VexilFrameResult VexilCheckPresence(const CanSignalRecord* signal,
                                                   const CanSignalRecord* selector,
                                                   const uint8_t* data, size_t size);

/* -- Results ---------------------------------------------------------------------------------- */

/* Returns the description of a result.
 *
 * Parameters:
 *   result  a result.
 * Returns:
 *   A phrase in English without a full stop, "unknown result" for other numbers; never null. */
VEXIL64_INLINE const char* VexilFrameResultText(VexilFrameResult result);

/* -- Implementation --------------------------------------------------------------------------- */

/* C has no auto. NOLINTBEGIN(modernize-use-auto) */

/* Returns a mask of the lowest bits. Precondition: 1 to 64 bits. */
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
    /* Number of bits of the frame before the signal. A big-endian signal counts the bits of a byte
     * from the most significant one. */
    const uint32_t before =
        signal->byteOrder == ByteOrderLittleEndian ? signal->startBit : signal->startBit ^ 7U;
    if (VEXIL64_CAST(uint64_t, before) + signal->bitLength > VEXIL64_CAST(uint64_t, size) * 8) {
        return FrameTooShort;
    }
    return data ? FrameOk : FrameNullArgument;
}

/* Returns the number of the least significant bit of a signal. The loops over the bytes of a signal
 * start there: towards higher bytes for little-endian signals, towards lower bytes for big-endian
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

/* Rounds to the nearest integer, and halfway cases away from zero. From 2^52 on, every double is an
 * integer. Calls no function of <math.h>, for which some systems need a further library. */
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

/* Returns how far rounding can move an encoded value beyond a limit. */
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
