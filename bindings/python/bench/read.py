#!/usr/bin/env python3
"""Measures the conversion of records into Python values, as a ratio to the library calls alone.

    read.py [FILE]

Reads FILE, or else a generated network of 20,000 signals. VEXIL64_LIBRARY is the path of the library.
Each figure is the shortest processor time of 20 runs.
"""
# SPDX-License-Identifier: MIT
import ctypes
import os
import sys
import tempfile
import time

import vexil64
from vexil64 import _fetch, _records

MESSAGES = 2000
SIGNALS = 10
RUNS = 20


def make_network(path):
    with open(path, "w", encoding="utf-8") as file:
        for m in range(MESSAGES):
            file.write(f"BO_ {m + 1} Message{m}: 64 Gateway\n")
            for s in range(SIGNALS):
                file.write(f' SG_ Signal{m}_{s} : {8 * s}|8@1+ (0.5,-40) [-40|87.5] "km/h" A,B\n')
        for m in range(MESSAGES):
            file.write(f'CM_ SG_ {m + 1} Signal{m}_0 "What signal 0 of message {m} means";\n')
            file.write(f'VAL_ {m + 1} Signal{m}_1 0 "Off" 1 "On" 2 "Error" ;\n')


def call_alone(library):
    """Fetches every record without converting it."""
    message = ctypes.byref(_records.CanMessageRecord())
    record = _records.CanSignalRecord()
    signal = ctypes.byref(record)
    description = ctypes.byref(_records.CanEnumRecord())
    m = 0
    while library.VexilGetCanMessageData(m, message):
        s = 0
        while library.VexilGetCanSignalData(m, s, signal):
            for e in range(record.enumCount):
                library.VexilGetCanSignalEnumData(m, s, e, description)
            s += 1
        m += 1


def best(function, *arguments):
    times = []
    for _ in range(RUNS):
        start = time.process_time()
        function(*arguments)
        times.append(time.process_time() - start)
    return min(times)


def main(path):
    library = vexil64.load()
    network = vexil64.read(path)
    signals = sum(1 for _ in network.signals())
    alone = best(call_alone, library)
    values = best(_fetch.messages, library)
    whole = best(vexil64.read, path)
    print(f"{len(network.messages)} messages, {signals} signals")
    print(f"fetching all records                {1e3 * alone:8.1f} ms   1.0")
    print(f"fetching and converting them        {1e3 * values:8.1f} ms   {values / alone:.1f}")
    print(f"vexil64.read, with reading the file {1e3 * whole:8.1f} ms   {whole / alone:.1f}")


if __name__ == "__main__":
    if len(sys.argv) > 1:
        main(sys.argv[1])
    else:
        with tempfile.TemporaryDirectory() as folder:
            made = os.path.join(folder, "network.dbc")
            make_network(made)
            main(made)
