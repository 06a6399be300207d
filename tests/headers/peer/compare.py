#!/usr/bin/env python3
"""Compares the values of signals in random frames with those that canmatrix decodes.

    compare.py FRAME_VALUES FOLDER

FRAME_VALUES is the program that decodes with vexil64, FOLDER is for the network that both read.
"""
# SPDX-License-Identifier: MIT
import math
import os
import random
import subprocess
import sys

MESSAGES = 400
FRAMES_PER_MESSAGE = 20
SIZES = [1, 2, 3, 5, 8, 12, 16, 24, 32, 48, 64]


def random_network(rng):
    """Returns a DBC file of messages with one signal each, at random positions."""
    lines = ['VERSION ""', "", "NS_ :", "", "BS_:", "", "BU_: Node", ""]
    value_types = []
    for message in range(1, MESSAGES + 1):
        size = rng.choice(SIZES)
        value_type = rng.choice([0, 0, 0, 1, 2])
        length = {1: 32, 2: 64}.get(value_type) or rng.randint(1, min(64, 8 * size))
        if length > 8 * size:
            length, value_type = 8 * size, 0
        little_endian = rng.randint(0, 1)
        before = rng.randint(0, 8 * size - length)
        start = before if little_endian else before ^ 7
        sign = "-" if value_type else rng.choice("+-")
        factor = rng.choice(["1", "0.5", "0.1", "2", "-0.25"])
        offset = rng.choice(["0", "-40", "1.5"])
        lines += [f"BO_ {message} Message{message}: {size} Node",
                  f" SG_ Signal : {start}|{length}@{little_endian}{sign} ({factor},{offset}) [0|0] "
                  '"" Node', ""]
        if value_type:
            value_types.append(f"SIG_VALTYPE_ {message} Signal : {value_type};")
    return "\n".join(lines + value_types) + "\n"


def close(a, b):
    return math.isclose(a, b, rel_tol=1e-12, abs_tol=1e-9) or (math.isnan(a) and math.isnan(b))


def main(frame_values, folder):
    import canmatrix.formats

    rng = random.Random(64)
    path = os.path.join(folder, "network.dbc")
    with open(path, "w", encoding="utf-8") as file:
        file.write(random_network(rng))
    network, = canmatrix.formats.loadp(path).values()
    frames = []
    expected = []
    for frame in network.frames:
        for _ in range(FRAMES_PER_MESSAGE):
            data = bytes(rng.getrandbits(8) for _ in range(frame.size))
            frames.append((frame.arbitration_id.id, data.hex()))
            expected.append(float(frame.decode(data)["Signal"].phys_value))
    printed = subprocess.run([frame_values, path], check=True, capture_output=True, text=True,
                             input="".join(f"{id} {data}\n" for id, data in frames)).stdout
    values = [line.split() for line in printed.splitlines()]
    assert len(values) == len(frames) == MESSAGES * FRAMES_PER_MESSAGE, len(values)
    differences = 0
    for (id, data), value, (printed_id, name, decoded) in zip(frames, expected, values):
        if (printed_id, name) != (str(id), "Signal") or not close(float(decoded), value):
            print(f"message {id}, bytes {data}: {decoded} and not {value}")
            differences += 1
    sys.exit(1 if differences else 0)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
