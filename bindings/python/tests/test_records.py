"""The records have the layout of the C compiler, and the library reads and fills them correctly."""
# SPDX-License-Identifier: MIT
import ctypes
import subprocess

import pytest
from conftest import ROOT, program

import vexil64
from vexil64 import _library, _records

RECORDS = [_records.DatabaseInfo, _records.CanMessageRecord, _records.CanSignalRecord,
           _records.CanEnumRecord, _records.ParseError]


def layout():
    lines = []
    for record in RECORDS:
        lines.append(f"{record.__name__} {ctypes.sizeof(record)}\n")
        for name, _ in record._fields_:
            field = getattr(record, name)
            lines.append(f"{record.__name__}.{name} {field.offset} {field.size}\n")
    return "".join(lines)


def test_records_have_the_documented_layout():
    assert layout() == (ROOT / "tests" / "abi" / "record_layout.txt").read_text()


def test_records_have_the_layout_of_the_c_compiler():
    printed = subprocess.run([program("VEXIL64_RECORD_LAYOUT")], check=True, capture_output=True,
                             text=True).stdout
    assert layout() == printed


def test_every_exported_function_is_declared():
    exports = (ROOT / "tests" / "abi" / "exports.txt").read_text().split()
    assert sorted(_library.FUNCTIONS) == sorted(exports)
    assert len(exports) == 17


def filled(record, start):
    """Fills a record with a byte pattern. Each text ends with a NUL."""
    size = ctypes.sizeof(record)
    pattern = bytes(ord("a") + (start + i) % 26 for i in range(size))
    ctypes.memmove(ctypes.byref(record), pattern, size)
    for name, kind in record._fields_:
        if kind._type_ is ctypes.c_char:
            setattr(record, name, getattr(record, name)[:kind._length_ - 1])
    return record


def fields(record, names):
    return {name: getattr(record, name) for name in names}


def test_records_pass_through_the_library_unchanged():
    library = vexil64.load()
    library.VexilClearData()

    message = filled(_records.CanMessageRecord(), 0)
    signal = filled(_records.CanSignalRecord(), 3)
    signal.receiverList = b",".join(bytes([ord("a") + i]) * 31 for i in range(8))  # 255 bytes
    description = filled(_records.CanEnumRecord(), 7)
    assert library.VexilAppendCanMessage(ctypes.byref(message))
    assert library.VexilAppendCanSignalToCanMessage(0, ctypes.byref(signal))
    assert library.VexilAppendEnumToCanSignal(0, 0, ctypes.byref(description))

    got_message = _records.CanMessageRecord()
    got_signal = _records.CanSignalRecord()
    got_description = _records.CanEnumRecord()
    assert library.VexilGetCanMessageData(0, ctypes.byref(got_message))
    assert library.VexilGetCanSignalData(0, 0, ctypes.byref(got_signal))
    assert library.VexilGetCanSignalEnumData(0, 0, 0, ctypes.byref(got_description))

    carried = ["id", "dlc", "longName", "transmitter", "comment"]
    assert fields(got_message, carried) == fields(message, carried)
    assert got_message.name == message.longName[:32]
    assert got_message.signalCount == 1
    carried = ["longName", "unit", "receiverList", "comment", "multiplexType", "multiplexValue",
               "startBit", "bitLength", "byteOrder", "valueType", "factor", "offset", "minimum",
               "maximum", "startValue", "inactiveValue"]
    assert fields(got_signal, carried) == fields(signal, carried)
    assert got_signal.name == signal.longName[:32]
    assert got_signal.unitUtf8 == signal.unit
    assert got_signal.enumCount == 1
    assert bytes(got_description) == bytes(description)


@pytest.mark.parametrize("size", [0, 4, 8])
def test_the_database_info_passes_byte_by_byte(size):
    library = vexil64.load()
    library.VexilClearData()
    zero = _records.DatabaseInfo()
    library.VexilSetDatabaseInfo(ctypes.byref(zero), 8)
    info = _records.DatabaseInfo(0x01020304, 0x05060708)
    library.VexilSetDatabaseInfo(ctypes.byref(info), size)
    got = _records.DatabaseInfo(9, 9)
    library.VexilGetDatabaseInfo(ctypes.byref(got), 8)
    assert bytes(got) == bytes(info)[:size] + bytes(8 - size)
    library.VexilSetDatabaseInfo(ctypes.byref(zero), 8)


def test_a_parse_error_has_its_fields(samples):
    library = vexil64.load()
    path = bytes(samples / "roof.dbc")
    code = ctypes.c_uint32()
    assert library.VexilReadDbcFile(path, len(path) + 1, ctypes.byref(code))
    error = _records.ParseError()
    assert library.VexilGetNumCanErrors() == 2
    assert library.VexilGetErrorData(1, ctypes.byref(error))
    assert (error.code, error.line) == (vexil64.Step.SIGNAL_NAME, 17)
    assert error.text.startswith(b"SG_ Speed 2|6@1+")
