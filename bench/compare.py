#!/usr/bin/env python3
"""Compares the .dbc files that vexil64 and other Python libraries can read, and the time that they take.

    compare.py FOLDER...

vexil64 is the package in bindings/python. Other libraries are compared if they are installed: canmatrix
(Debian's python3-canmatrix), and cantools (pip install cantools) in its two modes. A file counts as refused
if reading it raises an exception. With each library, a read produces every message, signal and text as Python
objects, so the processor times are comparable.
"""
# SPDX-License-Identifier: MIT
import contextlib
import importlib.metadata
import logging
import pathlib
import sys
import time
import warnings

import vexil64


def read_with_vexil64(path):
    """Reads a file with vexil64 and uses every object."""
    network = vexil64.read(path)
    for message, signal in network.signals():
        _ = message.name, signal.name, signal.unit, signal.comment, signal.descriptions


def readers():
    """Yields the name of each library, with its version, and a function that reads a path."""
    yield "vexil64", read_with_vexil64
    try:
        import canmatrix.formats
        yield ("canmatrix",  # Debian's package has no version number
               lambda path: canmatrix.formats.loadp_flat(str(path)))
    except ImportError:
        print("canmatrix is not installed", file=sys.stderr)
    try:
        import cantools.database
        version = importlib.metadata.version("cantools")
        yield f"cantools {version}", cantools.database.load_file
        yield (f"cantools {version}, strict=False",
               lambda path: cantools.database.load_file(path, strict=False))
    except ImportError:
        print("cantools is not installed", file=sys.stderr)


def measure(read, files):
    """Returns the files that a function refuses, and its seconds for each of the other files."""
    refused, seconds = [], {}
    for path in files:
        start = time.process_time()
        try:
            with contextlib.redirect_stdout(sys.stderr):  # canmatrix prints messages about lines
                read(path)
            seconds[path] = time.process_time() - start
        except Exception:  # each library has its own exceptions
            refused.append(path)
    return refused, seconds


def main(folders):
    """Prints a table with a line for each library."""
    files = sorted(path for folder in folders for path in pathlib.Path(folder).rglob("*.dbc"))
    if not files:
        sys.exit("There are no .dbc files.")
    logging.disable(logging.CRITICAL)
    warnings.simplefilter("ignore")
    print(f"{len(files)} files, {sum(path.stat().st_size for path in files) / 1e6:.2f} MB\n")
    print(f"| {'Library':<30} | Reads | Refuses | Time over that of vexil64, same files |")
    print(f"|{'-' * 32}|------:|--------:|------:|")
    own = None
    for name, read in readers():
        measure(read, files[:1])  # the first use of a library loads more of it
        refused, seconds = measure(read, files)
        own = own or seconds
        common = [path for path in seconds if path in own]
        ratio = sum(seconds[path] for path in common) / sum(own[path] for path in common)
        print(f"| {name:<30} | {len(seconds)} | {len(refused)} | {ratio:.1f} |")
        for path in refused:
            print(f"{name} refuses {path}", file=sys.stderr)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    main(sys.argv[1:])
