"""Turns the records of the library into plain values.

Most of the time of a read is spent here, so each record type has one buffer, texts go through the
arrays of ctypes, which stop at the NUL, and the numbers of a signal are unpacked in one call.
Precondition of all functions: the lock is held.
"""
# SPDX-License-Identifier: MIT
import struct
from ctypes import CDLL, byref
from typing import Dict, List

from ._model import Message, Signal, StatementError
from ._records import CanEnumRecord, CanMessageRecord, CanSignalRecord, ParseError

# From multiplexType to inactiveValue; factor has an offset that is a multiple of eight.
_NUMBERS = struct.Struct("=6I4x4dIii")
_NUMBERS_AT = CanSignalRecord.multiplexType.offset  # type: ignore[attr-defined]


def descriptions(library: CDLL, message: int, signal: int, count: int) -> Dict[int, str]:
    found = {}
    record = CanEnumRecord()
    for index in range(count):
        # Fails for a text that cannot be cut at a character, and the next one may be sound.
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
    make = tuple.__new__  # what Signal(...) calls in the end
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
        # The text lacks its last byte, which may be a part of a character.
        found.append(StatementError(record.line, record.code, record.text.decode("utf-8", "ignore")))
    return found
