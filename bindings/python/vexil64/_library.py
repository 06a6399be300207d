"""Finds the library, loads it, and declares its seventeen functions."""
# SPDX-License-Identifier: MIT
import ctypes
import os
import sys
import threading
from ctypes import POINTER, c_char_p, c_float, c_uint8, c_uint32, c_uint64, c_void_p
from typing import Any, Dict, List, Optional, Tuple, Union

from ._errors import LibraryError
from ._records import CanEnumRecord, CanMessageRecord, CanSignalRecord, ParseError

LIBRARY_VERSION = "1.33"
ENVIRONMENT_VARIABLE = "VEXIL64_LIBRARY"
FilePath = Union[str, "os.PathLike[str]"]

# The return type and the parameter types of each function. ctypes adds the NUL to a path.
FUNCTIONS: Dict[str, Tuple[Any, List[Any]]] = {
    "VexilGetLibraryVersion": (c_float, []),
    "VexilReadDbcFile": (c_uint8, [c_char_p, c_uint32, POINTER(c_uint32)]),
    "VexilClearData": (None, []),
    "VexilGetDatabaseInfo": (None, [c_void_p, c_uint64]),
    "VexilSetDatabaseInfo": (None, [c_void_p, c_uint64]),
    "VexilGetNumCanMessages": (c_uint64, []),
    "VexilGetCanMessageData": (c_uint8, [c_uint32, POINTER(CanMessageRecord)]),
    "VexilGetNumCanSignalsInCanMessage": (c_uint8, [c_uint32, POINTER(c_uint32)]),
    "VexilGetCanSignalData": (c_uint8, [c_uint32, c_uint32, POINTER(CanSignalRecord)]),
    "VexilGetNumEnumsInCanSignal": (c_uint8, [c_uint32, c_uint32, POINTER(c_uint32)]),
    "VexilGetCanSignalEnumData": (c_uint8, [c_uint32, c_uint32, c_uint32, POINTER(CanEnumRecord)]),
    "VexilAppendCanMessage": (c_uint8, [POINTER(CanMessageRecord)]),
    "VexilAppendCanSignalToCanMessage": (c_uint8, [c_uint32, POINTER(CanSignalRecord)]),
    "VexilAppendEnumToCanSignal": (c_uint8, [c_uint32, c_uint32, POINTER(CanEnumRecord)]),
    "VexilGetNumCanErrors": (c_uint64, []),
    "VexilGetErrorData": (c_uint8, [c_uint32, POINTER(ParseError)]),
    "VexilWriteDbcFile": (c_uint8, [c_char_p, c_uint32, c_uint32, POINTER(c_uint32)]),
}

# Held during every call, because calls of the library must not overlap.
lock = threading.RLock()
_loaded: Optional[ctypes.CDLL] = None


def _file_names() -> List[str]:
    if sys.platform == "win32":
        return ["vexil64.dll"]
    return ["libvexil64.so", "libvexil64.so.1"]


def _candidates() -> List[str]:
    """Returns the paths to try. The system searches for a name without a folder."""
    named = os.environ.get(ENVIRONMENT_VARIABLE)
    if named:
        return [os.path.abspath(named)]
    folder = os.path.dirname(os.path.abspath(__file__))
    beside = [os.path.join(folder, name) for name in _file_names()]
    return [path for path in beside if os.path.exists(path)] or _file_names()


def _open(candidates: List[str]) -> Tuple[ctypes.CDLL, str]:
    failures = []
    for path in candidates:
        try:
            return ctypes.CDLL(path), path
        except OSError as error:
            failures.append(f"{path}: {error}")
    raise LibraryError(
        "the vexil64 library cannot be loaded. Install it, or set the environment variable "
        f"{ENVIRONMENT_VARIABLE} to its path. Tried " + "; ".join(failures))


def _declare(library: ctypes.CDLL, path: str) -> None:
    for name, (result, arguments) in FUNCTIONS.items():
        try:
            function = getattr(library, name)
        except AttributeError:
            raise LibraryError(f"{path} is not the vexil64 library: it has no {name}") from None
        function.restype = result
        function.argtypes = arguments
    version = f"{library.VexilGetLibraryVersion():.2f}"
    if version != LIBRARY_VERSION:
        raise LibraryError(
            f"{path} is vexil64 {version}, but this package needs vexil64 {LIBRARY_VERSION}")


def load(path: Optional[FilePath] = None) -> ctypes.CDLL:
    """Loads the library unless it is loaded already, and returns it with its functions declared.

    Without a path, loads the file that the environment variable VEXIL64_LIBRARY names, else the one in
    the folder of this package, else the one that the system finds. Raises LibraryError if this fails,
    or if the library is already loaded from another path.
    """
    global _loaded
    with lock:
        if _loaded is None:
            library, found = _open(_candidates() if path is None else [os.path.abspath(path)])
            _declare(library, found)
            _loaded = library
        elif path is not None and not _same_file(path, _loaded._name):
            raise LibraryError(f"the library was already loaded from {_loaded._name}")
        return _loaded


def _same_file(a: FilePath, b: str) -> bool:
    return os.path.exists(a) and os.path.exists(b) and os.path.samefile(a, b)
