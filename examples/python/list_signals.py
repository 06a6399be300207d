#!/usr/bin/env python3
"""Prints a table of the signals of a DBC file, with the package vexil64.

    list_signals.py FILE
"""
# SPDX-License-Identifier: MIT
import sys

import vexil64

for message, signal in vexil64.read(sys.argv[1]).signals():
    print(f"{message.name:<12} {signal.name:<15} {signal.unit:<4} {signal.bit_length:>2} bits")
