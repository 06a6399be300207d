"""The exceptions of the package."""
# SPDX-License-Identifier: MIT
from ._constants import FrameResult, ResultCode

_FILE_REASONS = {
    ResultCode.CLOSED: "there is no message to write",
    ResultCode.PATH_TOO_LONG: "the path is longer than 259 bytes",
    ResultCode.PATH_INVALID: "the path is not valid UTF-8, or contains a NUL",
    ResultCode.PATH_EMPTY: "the path is empty",
    ResultCode.OPEN_FAILED: "the system could not open the file",
}

_FRAME_REASONS = {
    FrameResult.OK: "success",
    FrameResult.BAD_LAYOUT: "length, byte order or value type of the signal is not valid",
    FrameResult.TOO_SHORT: "the frame is too short for the signal",
    FrameResult.BAD_SCALING: "factor or offset of the signal is not valid",
    FrameResult.OUT_OF_RANGE: "the value is out of range",
    FrameResult.NOT_PRESENT: "the multiplexer selects other signals",
    FrameResult.NO_SELECTOR: "the message has no multiplexer",
}


class VexilError(Exception):
    """Base class of the exceptions of this package."""


class LibraryError(VexilError):
    """The library is missing, cannot be loaded, or has another version than this package needs."""


class StaleNetworkError(VexilError):
    """The one database of the library now holds another network."""


class FileError(VexilError, OSError):
    """A file could not be read or written. `code` is the result code, `path` the path."""

    def __init__(self, action: str, path: str, code: int) -> None:
        self.code = ResultCode(code)
        self.path = path
        reason = _FILE_REASONS.get(self.code, "reading or writing failed")
        super().__init__(f'cannot {action} "{path}": {reason} (result code {code})')


class FrameError(VexilError, ValueError):
    """A value could not be decoded or encoded. `result` is the reason, `signal` a signal name."""

    def __init__(self, signal: str, result: FrameResult) -> None:
        self.result = result
        self.signal = signal
        super().__init__(f"{signal}: {_FRAME_REASONS[result]}")
