"""The records of vexil64.h, with the same field names."""
# SPDX-License-Identifier: MIT
import ctypes

from ._constants import LONG_TEXT_SIZE, SHORT_TEXT_SIZE

_ShortText = ctypes.c_char * SHORT_TEXT_SIZE
_LongText = ctypes.c_char * LONG_TEXT_SIZE


class DatabaseInfo(ctypes.Structure):
    protocolType: int
    busType: int
    _fields_ = [("protocolType", ctypes.c_uint32), ("busType", ctypes.c_uint32)]


class CanMessageRecord(ctypes.Structure):
    id: int
    name: bytes
    dlc: int
    longName: bytes
    transmitter: bytes
    signalCount: int
    comment: bytes
    sendType: bytes
    cycleTime: int
    _fields_ = [
        ("id", ctypes.c_uint32),
        ("name", _ShortText),
        ("dlc", ctypes.c_uint32),
        ("longName", _LongText),
        ("transmitter", _ShortText),
        ("signalCount", ctypes.c_uint64),
        ("comment", _LongText),
        ("sendType", _ShortText),
        ("cycleTime", ctypes.c_int32),
    ]


class CanSignalRecord(ctypes.Structure):
    name: bytes
    longName: bytes
    unit: bytes
    receiverList: bytes
    comment: bytes
    multiplexType: int
    multiplexValue: int
    startBit: int
    bitLength: int
    byteOrder: int
    valueType: int
    factor: float
    offset: float
    minimum: float
    maximum: float
    enumCount: int
    startValue: int
    inactiveValue: int
    unitUtf8: bytes
    _fields_ = [
        ("name", _ShortText),
        ("longName", _LongText),
        ("unit", _ShortText),
        ("receiverList", _LongText),
        ("comment", _LongText),
        ("multiplexType", ctypes.c_uint32),
        ("multiplexValue", ctypes.c_uint32),
        ("startBit", ctypes.c_uint32),
        ("bitLength", ctypes.c_uint32),
        ("byteOrder", ctypes.c_uint32),
        ("valueType", ctypes.c_uint32),
        ("factor", ctypes.c_double),
        ("offset", ctypes.c_double),
        ("minimum", ctypes.c_double),
        ("maximum", ctypes.c_double),
        ("enumCount", ctypes.c_uint32),
        ("startValue", ctypes.c_int32),
        ("inactiveValue", ctypes.c_int32),
        ("unitUtf8", _ShortText),
    ]


class CanEnumRecord(ctypes.Structure):
    value: int
    text: bytes
    _fields_ = [("value", ctypes.c_int32), ("text", _LongText)]


class ParseError(ctypes.Structure):
    code: int
    line: int
    text: bytes
    _fields_ = [("code", ctypes.c_uint32), ("line", ctypes.c_uint32), ("text", _LongText)]
