"""Converts records of the library into plain values.

Most of the time of a read is spent here. So a function reuses one record for all items, texts are
read as ctypes arrays, which end at the NUL, and the numbers of a signal are unpacked in one call.
Precondition of all functions: the caller holds the lock.
"""
# SPDX-License-Identifier: MIT
import struct
from ctypes import CDLL, byref
from typing import Dict, List

from ._model import Message, Signal, StatementError
from ._records import CanEnumRecord, CanMessageRecord, CanSignalRecord, ParseError

# The fields from multiplexType to inactiveValue. The four padding bytes align factor to 8 bytes.
_NUMBERS = struct.Struct("=6I4x4dIii")
_NUMBERS_AT = CanSignalRecord.multiplexType.offset  # type: ignore[attr-defined]


def descriptions(library: CDLL, message: int, signal: int, count: int) -> Dict[int, str]:
    found = {}
    record = CanEnumRecord()
    for index in range(count):
        # Not an error: a text that cannot be cut at a character fails alone.
        if library.VexilGetCanSignalEnumData(message, signal, index, byref(record)):
            found[record.value] = record.text.decode()
    return found


def signals(library: CDLL, message: int, first: int = 0) -> List[Signal]:
    """Returns the signals of a message from an index on."""
    found = []
    record = CanSignalRecord()
    reference = byref(record)
    fetch = library.VexilGetCanSignalData
    unpack = _NUMBERS.unpack_from
    make = tuple.__new__  # faster than Signal(...), which calls it
    index = first
    while fetch(message, index, reference):
        (multiplex_type, multiplex_value, start_bit, bit_length, byte_order, value_type, factor,
         offset, minimum, maximum, enum_count, start_value, inactive_value) = unpack(
             record, _NUMBERS_AT)
        found.append(make(Signal, (
            record.name.decode(), record.longName.decode(), record.unitUtf8.decode(),
            record.unit.decode(), record.receiverList.decode(), record.comment.decode(),
            multiplex_type, multiplex_value, start_bit, bit_length, byte_order, value_type, factor,
            offset, minimum, maximum, start_value, inactive_value,
            descriptions(library, message, index, enum_count) if enum_count else {},
            message, index)))
        index += 1
    return found


def messages(library: CDLL, first: int = 0) -> List[Message]:
    """Returns the messages from an index on."""
    found = []
    record = CanMessageRecord()
    reference = byref(record)
    index = first
    while library.VexilGetCanMessageData(index, reference):
        found.append(Message(
            record.id, record.name.decode(), record.longName.decode(), record.dlc,
            record.transmitter.decode(), record.comment.decode(), record.sendType.decode(),
            record.cycleTime, signals(library, index) if record.signalCount else [], index))
        index += 1
    return found


def errors(library: CDLL) -> List[StatementError]:
    found: List[StatementError] = []
    record = ParseError()
    while library.VexilGetErrorData(len(found), byref(record)):
        # The last byte of the statement is missing in the text, so its last character may be cut.
        found.append(StatementError(record.line, record.code, record.text.decode("utf-8", "ignore")))
    return found
