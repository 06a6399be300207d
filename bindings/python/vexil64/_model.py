"""What a network is made of, as plain values."""
# SPDX-License-Identifier: MIT
from typing import Dict, Iterable, Mapping, NamedTuple, Optional, Sequence

from ._frame import Buffer, decode, encode, is_present
from ._constants import Multiplex

_EXTENDED = 0x80000000
# The longest message of a transport protocol on CAN, ISO 15765-2.
_LARGEST_MESSAGE = 4095


class StatementError(NamedTuple):
    """A statement that could not be read."""

    line: int
    step: int  # a Step
    text: str  # the front of the statement

    @property
    def first_line(self) -> str:
        return self.text.split("\n", 1)[0]


class Signal(NamedTuple):
    """A signal of a message. Immutable; the fields are described in vexil64.h."""

    name: str
    long_name: str
    unit: str
    ascii_unit: str
    receivers: str  # with commas between them
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
    message_position: int  # where the message is in the network
    position: int  # where the signal is in the message


class Message(NamedTuple):
    """A message. Immutable; the fields are described in vexil64.h."""

    id: int  # bit 31 marks an extended frame
    name: str
    long_name: str
    dlc: int  # size in bytes
    transmitter: str
    comment: str
    send_type: str
    cycle_time: int  # milliseconds
    signals: Sequence[Signal]
    position: int  # where the message is in the network

    @property
    def frame_id(self) -> int:
        """The id without the mark of an extended frame."""
        return self.id & ~_EXTENDED

    @property
    def is_extended(self) -> bool:
        return self.id & _EXTENDED != 0

    @property
    def selector(self) -> Optional[Signal]:
        """The multiplexer, if there is one."""
        return next((s for s in self.signals if s.multiplex_type == Multiplex.SELECTOR), None)

    def signal(self, name: str) -> Signal:
        """Returns the first signal of a name. Raises KeyError."""
        return _first((s for s in self.signals if s.name == name), f"{self.name} has no signal", name)

    def decode(self, data: Buffer) -> Dict[str, float]:
        """Returns the physical values of the signals that are present in a frame.

        Raises FrameError if the frame is too short for one of them, or a signal is not valid.
        """
        selector = self.selector
        return {s.name: decode(s, data) for s in self.signals if is_present(s, selector, data)}

    def encode(self, values: Mapping[str, float], data: Optional[Buffer] = None) -> bytes:
        """Returns a frame with the physical values of some signals.

        The other bits are those of `data`, or 0 in a frame of `dlc` bytes. Raises KeyError for the
        name of a signal that the message does not have, FrameError for a value that does not fit.
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
