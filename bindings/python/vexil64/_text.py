"""Checks and converts arguments: texts, numbers and paths."""
# SPDX-License-Identifier: MIT
import operator
import os
from typing import Union

from ._constants import MAX_PATH_BUFFER_SIZE, ResultCode
from ._errors import FileError

Path = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]

_RANGES = {"uint32": (0, 2**32 - 1), "int32": (-(2**31), 2**31 - 1)}


def text_bytes(field: str, text: str, array_size: int) -> bytes:
    """Returns a text as bytes for an array of a record. ctypes adds the NUL."""
    if not isinstance(text, str):
        raise TypeError(f"{field} must be a str, not {type(text).__name__}")
    try:
        data = text.encode()
    except UnicodeEncodeError as error:
        raise ValueError(f"{field} has a character that UTF-8 cannot encode: {error}") from None
    if b"\0" in data:
        raise ValueError(f"{field} contains a NUL")
    if len(data) >= array_size:
        raise ValueError(f"{field} has {len(data)} bytes; the maximum is {array_size - 1}")
    return data


def integer(field: str, number: int, kind: str) -> int:
    """Returns a number after checking that it fits its field. ctypes would drop the upper bits."""
    try:
        value = operator.index(number)
    except TypeError:
        raise TypeError(f"{field} must be an int, not {type(number).__name__}") from None
    lowest, highest = _RANGES[kind]
    if not lowest <= value <= highest:
        raise ValueError(f"{field} is {value}; it must be from {lowest} to {highest}")
    return value


def real(field: str, number: float) -> float:
    if not isinstance(number, (int, float)):
        raise TypeError(f"{field} must be a float, not {type(number).__name__}")
    try:
        return float(number)
    except OverflowError:
        raise ValueError(f"{field} is too large for a float") from None


def path_bytes(action: str, path: Path) -> bytes:
    """Returns a path as UTF-8. Raises FileError for a path that the library would refuse or cut."""
    plain = os.fspath(path)
    data = plain.encode("utf-8", "surrogatepass") if isinstance(plain, str) else plain
    if b"\0" in data or not _is_utf8(data):
        raise FileError(action, path_text(data), ResultCode.PATH_INVALID)
    if len(data) >= MAX_PATH_BUFFER_SIZE:
        raise FileError(action, path_text(data), ResultCode.PATH_TOO_LONG)
    return data


def _is_utf8(data: bytes) -> bool:
    try:
        data.decode()
    except UnicodeDecodeError:
        return False
    return True


def path_text(path: bytes) -> str:
    return path.decode("utf-8", "backslashreplace").replace("\0", "\\0")
