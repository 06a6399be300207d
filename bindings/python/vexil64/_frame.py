"""Decodes and encodes the values of signals in the bytes of a frame, by the rules of vexil64_frame.h.

A raw value is an int. It is negative for a negative number of a signed signal, and the IEEE 754 bit
pattern for a floating-point signal.
"""
# SPDX-License-Identifier: MIT
import math
import struct
import sys
from typing import Dict, Literal, Optional, Protocol, Tuple, Union

from ._constants import ByteOrder, FrameResult, Multiplex, ValueType
from ._errors import FrameError

Buffer = Union[bytes, bytearray, memoryview]

_FLOATS: Dict[int, Tuple[str, str]] = {ValueType.FLOAT32: ("<I", "<f"),
                                     ValueType.FLOAT64: ("<Q", "<d")}
_FLOAT_BITS: Dict[int, int] = {ValueType.FLOAT32: 32, ValueType.FLOAT64: 64}
_LARGEST_FLOAT = struct.unpack("<f", b"\xff\xff\x7f\x7f")[0]
_FLOAT_EPSILON = 2.0**-23


class Layout(Protocol):
    """The properties of a signal that the functions of this module use."""

    @property
    def name(self) -> str: ...
    @property
    def multiplex_type(self) -> int: ...
    @property
    def multiplex_value(self) -> int: ...
    @property
    def start_bit(self) -> int: ...
    @property
    def bit_length(self) -> int: ...
    @property
    def byte_order(self) -> int: ...
    @property
    def value_type(self) -> int: ...
    @property
    def factor(self) -> float: ...
    @property
    def offset(self) -> float: ...
    @property
    def minimum(self) -> float: ...
    @property
    def maximum(self) -> float: ...


def _check_layout(signal: Layout) -> None:
    length = signal.bit_length
    if (not 1 <= length <= 64 or signal.byte_order not in (0, 1)
            or not 0 <= signal.value_type <= ValueType.FLOAT64
            or _FLOAT_BITS.get(signal.value_type, length) != length):
        raise FrameError(signal.name, FrameResult.BAD_LAYOUT)


def _shift(signal: Layout, size: int) -> int:
    """Returns the position of the least significant bit of a signal in the frame as one integer.

    When the frame is converted to an integer in the byte order of the signal, the bits of the signal
    are adjacent.
    """
    if signal.byte_order == ByteOrder.LITTLE_ENDIAN:
        shift = signal.start_bit
        before = shift
    else:
        before = signal.start_bit ^ 7
        shift = 8 * size - before - signal.bit_length
    if before + signal.bit_length > 8 * size:
        raise FrameError(signal.name, FrameResult.TOO_SHORT)
    return shift


def _order(signal: Layout) -> Literal["little", "big"]:
    return "little" if signal.byte_order == ByteOrder.LITTLE_ENDIAN else "big"


def _bits(signal: Layout, data: Buffer) -> int:
    _check_layout(signal)
    shift = _shift(signal, len(data))
    number = int.from_bytes(data, _order(signal))
    return number >> shift & (1 << signal.bit_length) - 1


def decode_raw(signal: Layout, data: Buffer) -> int:
    """Returns the raw value of a signal in a frame."""
    bits = _bits(signal, data)
    if signal.value_type == ValueType.SIGNED and bits >> (signal.bit_length - 1):
        bits -= 1 << signal.bit_length
    return bits


def encode_raw(signal: Layout, raw: int, data: bytearray) -> None:
    """Encodes a raw value into a frame. Bits outside the signal do not change."""
    _check_layout(signal)
    size = len(data)
    shift = _shift(signal, size)
    length = signal.bit_length
    lowest = -(1 << (length - 1)) if signal.value_type == ValueType.SIGNED else 0
    if not lowest <= raw < lowest + (1 << length):
        raise FrameError(signal.name, FrameResult.OUT_OF_RANGE)
    mask = (1 << length) - 1
    order = _order(signal)
    number = int.from_bytes(data, order)
    number = number & ~(mask << shift) | (raw & mask) << shift
    data[:] = number.to_bytes(size, order)


def raw_to_value(signal: Layout, raw: int) -> float:
    """Converts a raw value into a physical value."""
    _check_layout(signal)
    if not (math.isfinite(signal.factor) and math.isfinite(signal.offset)):
        raise FrameError(signal.name, FrameResult.BAD_SCALING)
    formats = _FLOATS.get(signal.value_type)
    if formats:
        pattern = raw & (1 << signal.bit_length) - 1
        number: float = struct.unpack(formats[1], struct.pack(formats[0], pattern))[0]
    else:
        number = float(raw)
    value = number * signal.factor + signal.offset
    if math.isfinite(number) and not math.isfinite(value):
        raise FrameError(signal.name, FrameResult.OUT_OF_RANGE)
    return value


def value_to_raw(signal: Layout, value: float) -> int:
    """Converts a physical value into the nearest raw value; halfway cases away from zero."""
    _check_layout(signal)
    factor = signal.factor
    if not (math.isfinite(factor) and math.isfinite(signal.offset)) or factor == 0:
        raise FrameError(signal.name, FrameResult.BAD_SCALING)
    number = (value - signal.offset) / factor
    formats = _FLOATS.get(signal.value_type)
    if formats:
        return _float_to_raw(signal, value, number, formats)
    if not math.isfinite(number):
        raise FrameError(signal.name, FrameResult.OUT_OF_RANGE)
    raw = _rounded(number)
    lowest = -(1 << (signal.bit_length - 1)) if signal.value_type == ValueType.SIGNED else 0
    if not lowest <= raw < lowest + (1 << signal.bit_length):
        raise FrameError(signal.name, FrameResult.OUT_OF_RANGE)
    return raw


def _float_to_raw(signal: Layout, value: float, number: float, formats: Tuple[str, str]) -> int:
    largest = _LARGEST_FLOAT if signal.value_type == ValueType.FLOAT32 else sys.float_info.max
    if math.isfinite(value) and not abs(number) <= largest:
        raise FrameError(signal.name, FrameResult.OUT_OF_RANGE)
    raw: int = struct.unpack(formats[0], struct.pack(formats[1], number))[0]
    return raw


def _rounded(number: float) -> int:
    """Rounds to the nearest integer, and halfway cases away from zero."""
    whole = int(number)
    rest = number - whole
    if rest >= 0.5:
        return whole + 1
    return whole - 1 if rest <= -0.5 else whole


def decode(signal: Layout, data: Buffer) -> float:
    """Returns the physical value of a signal in a frame."""
    return raw_to_value(signal, decode_raw(signal, data))


def encode(signal: Layout, value: float, data: bytearray) -> None:
    """Encodes a physical value into a frame. Bits outside the signal do not change."""
    encode_raw(signal, value_to_raw(signal, value), data)


def is_within_limits(signal: Layout, value: float) -> bool:
    """Returns whether a physical value is within minimum and maximum; True if both are 0.

    A value may exceed a limit by the rounding error of encoding.
    """
    if math.isnan(value):
        return False
    # Written so that a NaN counts as 0.
    if not abs(signal.minimum) > 0 and not abs(signal.maximum) > 0:
        return True

    def slack(limit: float) -> float:
        if signal.value_type == ValueType.FLOAT64:
            return 0.0
        if signal.value_type == ValueType.FLOAT32:
            return abs(limit) * _FLOAT_EPSILON
        return abs(signal.factor) / 2

    return (value >= signal.minimum - slack(signal.minimum)
            and value <= signal.maximum + slack(signal.maximum))


def is_present(signal: Layout, selector: Optional[Layout], data: Buffer) -> bool:
    """Returns whether a signal is present in a frame.

    `selector` is the multiplexer of the same message. Raises FrameError if it is missing or cannot be
    decoded.
    """
    if signal.multiplex_type != Multiplex.SELECTED:
        return True
    if selector is None or selector.multiplex_type != Multiplex.SELECTOR:
        raise FrameError(signal.name, FrameResult.NO_SELECTOR)
    bits = _bits(selector, data)
    if selector.value_type in _FLOATS:
        raise FrameError(selector.name, FrameResult.BAD_LAYOUT)
    return bits == signal.multiplex_value
