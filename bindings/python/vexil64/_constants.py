"""The constants of vexil64.h and vexil64_frame.h."""
# SPDX-License-Identifier: MIT
from enum import IntEnum

SHORT_TEXT_SIZE = 33
LONG_TEXT_SIZE = 256
MAX_PATH_BUFFER_SIZE = 260
MAX_SIGNALS_PER_MESSAGE = 10000


class ResultCode(IntEnum):
    """The result code of a read or write."""

    READING = 0
    WRITING = 1
    CLOSED = 2
    PATH_TOO_LONG = 3
    PATH_INVALID = 4
    PATH_EMPTY = 5
    OPEN_FAILED = 6
    STREAM_ERROR = 8
    END_OF_FILE = 9


class Step(IntEnum):
    """The step of a BO_ or SG_ statement that failed."""

    MESSAGE_ID = 0
    MESSAGE_NAME = 1
    MESSAGE_SIZE = 2
    SIGNAL_NAME = 3
    SIGNAL_LAYOUT = 4
    SIGNAL_SCALING = 5
    SIGNAL_RANGE = 6


class Protocol(IntEnum):
    PLAIN_CAN = 0
    J1939 = 1
    NMEA = 2


class Bus(IntEnum):
    CLASSIC_CAN = 0
    CAN_FD = 1


class Multiplex(IntEnum):
    NONE = 0
    SELECTOR = 1
    SELECTED = 2


class ByteOrder(IntEnum):
    BIG_ENDIAN = 0
    LITTLE_ENDIAN = 1


class ValueType(IntEnum):
    UNSIGNED = 0
    SIGNED = 1
    FLOAT32 = 2
    FLOAT64 = 3


class Order(IntEnum):
    """The order of the messages in a written file."""

    BY_ID_DESCENDING = 0
    BY_NAME_ASCENDING = 1
    AS_STORED = 2


class FrameResult(IntEnum):
    """Why a value could not be decoded or encoded. FrameNullArgument, 1, cannot occur in Python."""

    OK = 0
    BAD_LAYOUT = 2
    TOO_SHORT = 3
    BAD_SCALING = 4
    OUT_OF_RANGE = 5
    NOT_PRESENT = 6
    NO_SELECTOR = 7
