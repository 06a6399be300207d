"""Messages, signals and refused statements as plain values."""
# SPDX-License-Identifier: MIT
from typing import Dict, Iterable, Mapping, NamedTuple, Optional, Sequence

from ._frame import Buffer, decode, encode, is_present
from ._constants import Multiplex

_EXTENDED = 0x80000000
# The longest message of a transport protocol on CAN, ISO 15765-2.
_LARGEST_MESSAGE = 4095


class StatementError(NamedTuple):
    """A BO_ or SG_ statement that the library refused; see ParseError in vexil64.h."""

    line: int
    step: int  # a Step
    text: str  # at most 254 bytes of the statement

    @property
    def first_line(self) -> str:
        """The first line of text."""
        return self.text.split("\n", 1)[0]


class Signal(NamedTuple):
    """A signal of a message. CanSignalRecord in vexil64.h documents the fields."""

    name: str
    long_name: str
    unit: str
    ascii_unit: str
    receivers: str  # separated by commas
    comment: str
    multiplex_type: int  # a Multiplex
    multiplex_value: int
    start_bit: int
    bit_length: int
    byte_order: int  # a ByteOrder
    value_type: int  # a ValueType
    factor: float
    offset: float
    minimum: float
    maximum: float
    start_value: int
    inactive_value: int
    descriptions: Mapping[int, str]  # by raw value
    message_position: int  # index of the message in the network
    position: int  # index of the signal in the message


class Message(NamedTuple):
    """A message. CanMessageRecord in vexil64.h documents the fields."""

    id: int  # bit 31 is set for extended ids
    name: str
    long_name: str
    dlc: int  # payload size in bytes
    transmitter: str
    comment: str
    send_type: str
    cycle_time: int  # by custom in milliseconds
    signals: Sequence[Signal]
    position: int  # index of the message in the network

    @property
    def frame_id(self) -> int:
        """The id without bit 31."""
        return self.id & ~_EXTENDED

    @property
    def is_extended(self) -> bool:
        return self.id & _EXTENDED != 0

    @property
    def selector(self) -> Optional[Signal]:
        """The first multiplexer, if there is one."""
        return next((s for s in self.signals if s.multiplex_type == Multiplex.SELECTOR), None)

    def signal(self, name: str) -> Signal:
        """Returns the first signal with a name. Raises KeyError if there is none."""
        return _first((s for s in self.signals if s.name == name), f"{self.name} has no signal", name)

    def decode(self, data: Buffer) -> Dict[str, float]:
        """Returns the physical values of the signals that are present in a frame.

        Raises FrameError if one of these signals or the multiplexer cannot be decoded.
        """
        selector = self.selector
        return {s.name: decode(s, data) for s in self.signals if is_present(s, selector, data)}

    def encode(self, values: Mapping[str, float], data: Optional[Buffer] = None) -> bytes:
        """Returns a copy of `data` into which the physical values of signals are encoded.

        Without `data`, starts with `dlc` zero bytes; raises ValueError if `dlc` is above 4095. Raises
        KeyError if the message has no signal with a name, FrameError if a value cannot be encoded.
        """
        if data is None and self.dlc > _LARGEST_MESSAGE:
            raise ValueError(f"{self.name} has {self.dlc} bytes, which is too long for a frame")
        frame = bytearray(self.dlc) if data is None else bytearray(data)
        for name, value in values.items():
            encode(self.signal(name), value, frame)
        return bytes(frame)


def _first(signals: Iterable[Signal], what: str, name: str) -> Signal:
    for signal in signals:
        return signal
    raise KeyError(f"{what} {name!r}")
