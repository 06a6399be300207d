#!/usr/bin/env python3
"""Prints the messages and signals of a DBC file. Loads vexil64 through ctypes, without the package.

    read_dbc.py FILE LIBRARY

LIBRARY is the path of vexil64.dll or libvexil64.so.
"""
# SPDX-License-Identifier: MIT
import ctypes
import os
import sys
from ctypes import POINTER, c_char, c_double, c_int32, c_uint8, c_uint32, c_uint64

SHORT_TEXT = c_char * 33
LONG_TEXT = c_char * 256


class CanMessageRecord(ctypes.Structure):
    _fields_ = [
        ("id", c_uint32),
        ("name", SHORT_TEXT),
        ("dlc", c_uint32),
        ("longName", LONG_TEXT),
        ("transmitter", SHORT_TEXT),
        ("signalCount", c_uint64),
        ("comment", LONG_TEXT),
        ("sendType", SHORT_TEXT),
        ("cycleTime", c_int32),
    ]


class CanSignalRecord(ctypes.Structure):
    _fields_ = [
        ("name", SHORT_TEXT),
        ("longName", LONG_TEXT),
        ("unit", SHORT_TEXT),
        ("receiverList", LONG_TEXT),
        ("comment", LONG_TEXT),
        ("multiplexType", c_uint32),
        ("multiplexValue", c_uint32),
        ("startBit", c_uint32),
        ("bitLength", c_uint32),
        ("byteOrder", c_uint32),
        ("valueType", c_uint32),
        ("factor", c_double),
        ("offset", c_double),
        ("minimum", c_double),
        ("maximum", c_double),
        ("enumCount", c_uint32),
        ("startValue", c_int32),
        ("inactiveValue", c_int32),
        ("unitUtf8", SHORT_TEXT),
    ]


class ParseError(ctypes.Structure):
    _fields_ = [("code", c_uint32), ("line", c_uint32), ("text", LONG_TEXT)]


assert ctypes.sizeof(CanMessageRecord) == 640
assert ctypes.sizeof(CanSignalRecord) == 944
assert ctypes.sizeof(ParseError) == 264


def load(library):
    """Loads the library and declares its functions."""
    vexil = ctypes.CDLL(os.path.abspath(library))
    for name, result, *arguments in [
        ("VexilReadDbcFile", c_uint8, ctypes.c_char_p, c_uint32, POINTER(c_uint32)),
        ("VexilGetCanMessageData", c_uint8, c_uint32, POINTER(CanMessageRecord)),
        ("VexilGetCanSignalData", c_uint8, c_uint32, c_uint32, POINTER(CanSignalRecord)),
        ("VexilGetErrorData", c_uint8, c_uint32, POINTER(ParseError)),
    ]:
        function = getattr(vexil, name)
        function.restype = result
        function.argtypes = arguments
    return vexil


def read(vexil, path):
    """Reads a file into the library. Raises OSError with the result code if that fails."""
    utf8 = path.encode("utf-8")
    code = c_uint32()
    # The size of the buffer includes the NUL.
    if not vexil.VexilReadDbcFile(utf8, len(utf8) + 1, ctypes.byref(code)):
        raise OSError(f"{path} cannot be read, result code {code.value}")


def records(fetch, record_type, *indexes):
    """Yields the records that a function returns for the indexes 0, 1, 2 and so on."""
    record = record_type()
    index = 0
    while fetch(*indexes, index, ctypes.byref(record)):
        yield index, record
        index += 1


def text(array):
    return array.decode("utf-8")


def main(path, library):
    vexil = load(library)
    read(vexil, path)
    for m, message in records(vexil.VexilGetCanMessageData, CanMessageRecord):
        print(f"{message.id} {text(message.longName)} from {text(message.transmitter)}, "
              f"every {message.cycleTime} ms")
        for _, signal in records(vexil.VexilGetCanSignalData, CanSignalRecord, m):
            print(f"    {text(signal.name):<18} {signal.bitLength:2} bits, "
                  f'{signal.minimum:.10g} to {signal.maximum:.10g} "{text(signal.unitUtf8)}"')
    for _, error in records(vexil.VexilGetErrorData, ParseError):
        print(f"line {error.line} refused: {text(error.text).splitlines()[0]}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.stdout.reconfigure(encoding="utf-8")
    main(sys.argv[1], sys.argv[2])
