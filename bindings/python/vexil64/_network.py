"""Networks: reading, appending and writing."""
# SPDX-License-Identifier: MIT
from ctypes import CDLL, byref, c_uint32, sizeof
from typing import Iterator, List, Sequence, Tuple, Union

from . import _fetch, _library
from ._constants import (LONG_TEXT_SIZE, MAX_SIGNALS_PER_MESSAGE, SHORT_TEXT_SIZE, Bus, ByteOrder,
                         Multiplex, Order, Protocol, ResultCode, ValueType)
from ._errors import FileError, StaleNetworkError
from ._model import Message, Signal, StatementError
from ._records import CanEnumRecord, CanMessageRecord, CanSignalRecord, DatabaseInfo
from ._text import Path, integer, path_bytes, path_text, real, text_bytes

# The number of reads and new networks so far. A network is current if it has this number.
_generation = 0


class Network:
    """A network in memory. Its messages, signals and errors are plain Python values.

    The library has one database, which holds the network that was read or created last. Only this
    network can be extended and written; for an older one, these methods raise StaleNetworkError.
    """

    def __init__(self, library: CDLL, generation: int) -> None:
        """Copies the content of the database. Use read and new instead."""
        info = DatabaseInfo()
        library.VexilGetDatabaseInfo(byref(info), sizeof(info))
        self._library = library
        self._generation = generation
        self._messages = _fetch.messages(library)
        self._errors = _fetch.errors(library)
        self.protocol_type: int = info.protocolType  # a Protocol; may be changed before a write
        self.bus_type: int = info.busType  # a Bus; may be changed before a write

    @property
    def messages(self) -> Sequence[Message]:
        """The messages, in the order of reading and appending."""
        return self._messages

    @property
    def errors(self) -> Sequence[StatementError]:
        """The statements that the library refused, in the order of the file."""
        return self._errors

    def message(self, key: Union[int, str]) -> Message:
        """Returns the first message with an id or a name. Raises KeyError if there is none."""
        for message in self._messages:
            if key in (message.id, message.name):
                return message
        raise KeyError(f"the network has no message {key!r}")

    def signals(self) -> Iterator[Tuple[Message, Signal]]:
        """Yields each signal with its message."""
        for message in self._messages:
            for signal in message.signals:
                yield message, signal

    def append_message(self, id: int, long_name: str, *, dlc: int = 0, transmitter: str = "",
                       comment: str = "") -> Message:
        """Adds a message at the end and returns it. Its name is made from long_name."""
        record = CanMessageRecord(
            id=integer("id", id, "uint32"),
            dlc=integer("dlc", dlc, "uint32"),
            longName=text_bytes("long_name", long_name, LONG_TEXT_SIZE),
            transmitter=text_bytes("transmitter", transmitter, SHORT_TEXT_SIZE),
            comment=text_bytes("comment", comment, LONG_TEXT_SIZE))
        with _library.lock:
            self._check_current()
            _expect(self._library.VexilAppendCanMessage(byref(record)))
            self._messages += _fetch.messages(self._library, len(self._messages))
        return self._messages[-1]

    def append_signal(self, message: Message, long_name: str, *, start_bit: int, bit_length: int,
                      byte_order: int = ByteOrder.LITTLE_ENDIAN,
                      value_type: int = ValueType.UNSIGNED, factor: float = 1, offset: float = 0,
                      minimum: float = 0, maximum: float = 0, unit: str = "", receivers: str = "",
                      comment: str = "", multiplex_type: int = Multiplex.NONE,
                      multiplex_value: int = 0, start_value: int = 0,
                      inactive_value: int = 0) -> Signal:
        """Adds a signal at the end of a message and returns it. Its name is made from long_name."""
        record = CanSignalRecord(
            longName=text_bytes("long_name", long_name, LONG_TEXT_SIZE),
            unit=text_bytes("unit", unit, SHORT_TEXT_SIZE),
            receiverList=text_bytes("receivers", receivers, LONG_TEXT_SIZE),
            comment=text_bytes("comment", comment, LONG_TEXT_SIZE),
            multiplexType=integer("multiplex_type", multiplex_type, "uint32"),
            multiplexValue=integer("multiplex_value", multiplex_value, "uint32"),
            startBit=integer("start_bit", start_bit, "uint32"),
            bitLength=integer("bit_length", bit_length, "uint32"),
            byteOrder=integer("byte_order", byte_order, "uint32"),
            valueType=integer("value_type", value_type, "uint32"),
            factor=real("factor", factor),
            offset=real("offset", offset),
            minimum=real("minimum", minimum),
            maximum=real("maximum", maximum),
            startValue=integer("start_value", start_value, "int32"),
            inactiveValue=integer("inactive_value", inactive_value, "int32"))
        # The library would change the type of such a signal to signed.
        for float_type, bits in ((ValueType.FLOAT32, 32), (ValueType.FLOAT64, 64)):
            if record.valueType == float_type and record.bitLength != bits:
                raise ValueError(f"bit_length of a {float_type.name} signal must be {bits}")
        with _library.lock:
            self._check_current()
            signals = self._signals_of(message)
            if len(signals) >= MAX_SIGNALS_PER_MESSAGE:
                raise ValueError(f"{message.name} already has {MAX_SIGNALS_PER_MESSAGE} signals")
            _expect(self._library.VexilAppendCanSignalToCanMessage(message.position, byref(record)))
            signals += _fetch.signals(self._library, message.position, len(signals))
        return signals[-1]

    def append_description(self, signal: Signal, value: int, text: str) -> None:
        """Adds a value description to a signal.

        If the value already has a description, the text is added to it after " - ".
        """
        record = CanEnumRecord(value=integer("value", value, "int32"),
                               text=text_bytes("text", text, LONG_TEXT_SIZE))
        with _library.lock:
            self._check_current()
            message, position = signal.message_position, signal.position
            if not (message < len(self._messages)
                    and position < len(self._messages[message].signals)
                    and self._messages[message].signals[position] is signal):
                raise ValueError(f"the signal {signal.name} is not part of this network")
            _expect(self._library.VexilAppendEnumToCanSignal(message, position, byref(record)))
            count = c_uint32()
            self._library.VexilGetNumEnumsInCanSignal(message, position, byref(count))
            found = _fetch.descriptions(self._library, message, position, count.value)
            assert isinstance(signal.descriptions, dict)
            signal.descriptions.update(found)

    def write(self, path: Path, order: int = Order.AS_STORED) -> None:
        """Writes the network to a file. Raises FileError if that fails.

        Signals of one message that share a name get a numbered suffix. In `messages`, a new Message
        with new signals then replaces this message.
        """
        utf8 = path_bytes("write", path)
        code = c_uint32()
        info = DatabaseInfo(integer("protocol_type", self.protocol_type, "uint32"),
                            integer("bus_type", self.bus_type, "uint32"))
        order = integer("order", order, "uint32")
        with _library.lock:
            self._check_current()
            self._library.VexilSetDatabaseInfo(byref(info), sizeof(info))
            success = self._library.VexilWriteDbcFile(utf8, len(utf8) + 1, order, byref(code))
            # If only the last line could not be written, the call succeeds with STREAM_ERROR.
            if not success or code.value != ResultCode.CLOSED:
                raise FileError("write", path_text(utf8), code.value)
            self._take_new_names()

    def _take_new_names(self) -> None:
        """Replaces only the messages whose signals were renamed."""
        for message in _fetch.messages(self._library):
            if message != self._messages[message.position]:
                self._messages[message.position] = message

    def _check_current(self) -> None:
        if self._generation != _generation:
            raise StaleNetworkError(
                "the library now holds another network; read or create this network again")

    def _signals_of(self, message: Message) -> List[Signal]:
        position = message.position
        if position >= len(self._messages) or self._messages[position] is not message:
            raise ValueError(f"the message {message.name} is not part of this network")
        assert isinstance(message.signals, list)
        return message.signals


def _expect(success: int) -> None:
    """Raises StaleNetworkError for a failed call.

    The arguments were checked, so a call fails only if other code of this process, which does not use
    this package, changed the database.
    """
    if not success:
        raise StaleNetworkError("other code of this process changed the database of the library")


def _start(library: CDLL) -> int:
    """Clears the database and returns the number of the new network.

    A clear keeps the bus type, so it is set to that of an empty network.
    """
    global _generation
    _generation += 1
    info = DatabaseInfo(Protocol.PLAIN_CAN, Bus.CLASSIC_CAN)
    library.VexilClearData()
    library.VexilSetDatabaseInfo(byref(info), sizeof(info))
    return _generation


def read(path: Path) -> Network:
    """Reads a DBC file and returns its network.

    Raises FileError if the file cannot be read, LibraryError if the library cannot be loaded. Refused
    BO_ and SG_ statements do not make a read fail: they are in `errors` of the network.
    """
    library = _library.load()
    utf8 = path_bytes("read", path)
    code = c_uint32()
    with _library.lock:
        generation = _start(library)
        if not library.VexilReadDbcFile(utf8, len(utf8) + 1, byref(code)):
            raise FileError("read", path_text(utf8), code.value)
        return Network(library, generation)


def new() -> Network:
    """Returns an empty network. Raises LibraryError if the library cannot be loaded."""
    library = _library.load()
    with _library.lock:
        return Network(library, _start(library))
