"""Reads and writes DBC files, which describe CAN bus networks, and decodes frames.

    network = vexil64.read("network.dbc")
    for message, signal in network.signals():
        print(message.name, signal.name, signal.unit)
"""
# SPDX-License-Identifier: MIT
from ._constants import (MAX_SIGNALS_PER_MESSAGE, Bus, ByteOrder, FrameResult, Multiplex, Order,
                         Protocol, ResultCode, Step, ValueType)
from ._errors import FileError, FrameError, LibraryError, StaleNetworkError, VexilError
from ._frame import (decode, decode_raw, encode, encode_raw, is_present, is_within_limits,
                     raw_to_value, value_to_raw)
from ._library import LIBRARY_VERSION, load
from ._model import Message, Signal, StatementError
from ._network import Network, new, read

__version__ = "1.33.0"

__all__ = [
    "Bus", "ByteOrder", "FileError", "FrameError", "FrameResult", "LIBRARY_VERSION", "LibraryError",
    "MAX_SIGNALS_PER_MESSAGE", "Message", "Multiplex", "Network", "Order", "Protocol", "ResultCode",
    "Signal", "StaleNetworkError", "StatementError", "Step", "ValueType", "VexilError", "decode",
    "decode_raw", "encode", "encode_raw", "is_present", "is_within_limits", "load", "new",
    "raw_to_value", "read", "value_to_raw",
]
