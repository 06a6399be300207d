#!/usr/bin/env python3
"""Compares what canmatrix reads of files and of the same files rewritten by vexil-dbc.

    compare.py VEXIL_DBC FOLDER FILE...

Each file is rewritten into FOLDER. canmatrix reads both, and must find the same messages, signals, value
descriptions and comments, but for the changes that vexil-dbc reports. Each of those is an exact change of what
canmatrix found in the original: nothing else may differ. Files that canmatrix cannot read are counted and named.
"""
# SPDX-License-Identifier: MIT
import collections
import contextlib
import io
import json
import logging
import os
import re
import subprocess
import sys

PLACEHOLDER = "Marrowby"  # the node that a written file has where there is none
LONGEST_NAME = 32


class Report:
    """What vexil-dbc reports of a file that it rewrites: the causes, and the statements with a finding."""

    def __init__(self, tool, path, written):
        check = self.run(tool, "check", "--json", "--all", path)
        file, = json.loads(check)["files"]
        self.statements = file["statements"]
        self.causes = {cause for cause in file["causes"]}
        rewrite = self.run(tool, "rewrite", path, written).decode()
        self.causes |= set(re.findall(r"^ +\d+  ([a-z0-9-]+) ", rewrite, re.M))

    @staticmethod
    def run(*command):
        done = subprocess.run(command, capture_output=True, check=False)
        if done.returncode not in (0, 1):
            sys.exit(f"{' '.join(command)} failed: {done.stderr.decode()}")
        return done.stdout

    def has(self, *causes):
        return not self.causes.isdisjoint(causes)

    def texts(self, keyword, *fates):
        return [statement["text"] for statement in self.statements
                if statement["keyword"] == keyword and statement["fate"] in fates]

    def lost(self, keyword, pattern):
        """The names or ids of the statements that are in no written file."""
        found = (re.match(pattern, text) for text in self.texts(keyword, "refused", "dropped"))
        return {match.group(1) for match in found if match}


def identifier(name):
    """The name as a written file has it."""
    name = re.sub(r"[^A-Za-z0-9_]", "_", name)[:LONGEST_NAME]
    return "_" + name[1:] if name[:1].isdigit() else name


def ten_digits(number):
    return float(f"{float(number):.10g}")


class Expectation:
    """What canmatrix must find in a written file, made from what it found in the original."""

    def __init__(self, report):
        self.report = report
        self.lost_messages = report.lost("BO_", r"BO_ +(\d+)")
        self.lost_signals = report.lost("SG_", r"SG_ +([^ :]+)")
        self.open_descriptions = [text for text in report.texts("VAL_", "kept", "changed")
                                  if not text.rstrip().endswith(";")]

    def name(self, name):
        changes = self.report.has("name-cut", "name-made-identifier")
        return identifier(name) if changes else name

    def number(self, number):
        return ten_digits(number) if self.report.has("more-than-ten-digits") else float(number)

    def range(self, signal):
        bounds = [self.number(signal.min), self.number(signal.max)]
        return sorted(bounds) if self.report.has("range-reversed") else bounds

    def unit(self, unit):
        changes = self.report.has("unit-folded", "unit-written-in-ascii")
        return re.sub(r"[^\x00-\x7F]", "_", unit) if changes else unit

    def nodes(self, names):
        names = [name for name in names if name]
        return names if names or not self.report.has("placeholder-node") else [PLACEHOLDER]

    def senders(self, names):
        return self.nodes(names[:1] if self.report.has("second-senders") else names)

    def values(self, message_id, signal):
        if signal.is_float and self.report.has("descriptions-of-float"):
            return {}
        # canmatrix passes over a statement without a semicolon.
        for text in self.open_descriptions:
            if re.match(rf"VAL_ +{message_id} +{signal.name}\s", text):
                return {int(value): label for value, label in re.findall(r'(-?\d+) +"([^"]*)"', text)}
        return signal.values

    def signal(self, message_id, signal):
        return {
            "name": self.name(signal.name),
            "start bit": signal.start_bit,
            "length": signal.size,
            "byte order": signal.is_little_endian,
            "sign": signal.is_signed,
            "float": signal.is_float,
            "factor": self.number(signal.factor),
            "offset": self.number(signal.offset),
            "range": self.range(signal),
            "unit": self.unit(signal.unit),
            "receivers": self.nodes(signal.receivers),
            "multiplexing": (signal.is_multiplexer, signal.multiplex, signal.mux_val),
            "values": self.values(message_id, signal),
            "comment": signal.comment or "",
        }

    def message(self, message):
        message_id = message.arbitration_id.to_compound_integer()
        return message_id, {
            "name": self.name(message.name),
            "size": message.size,
            "senders": self.senders(message.transmitters),
            "comment": message.comment or "",
            "signals": [self.signal(message_id, signal) for signal in message.signals
                        if signal.name not in self.lost_signals],
        }

    def network(self, network):
        return dict(self.message(message) for message in network.frames
                    if str(message.arbitration_id.to_compound_integer()) not in self.lost_messages)


class Unchanged(Expectation):
    """What canmatrix found in the written file itself, in the same form."""

    def __init__(self):
        self.lost_messages = self.lost_signals = set()
        self.open_descriptions = []
        self.report = self

    @staticmethod
    def has(*_):
        return False


def differences(expected, found, place):
    """Compares two networks. Returns a line for each difference."""
    if isinstance(expected, dict) and isinstance(found, dict):
        return ([f"{place}, {key}: missing" for key in expected.keys() - found.keys()] +
                [f"{place}, {key}: added" for key in found.keys() - expected.keys()] +
                [line for key in expected.keys() & found.keys()
                 for line in differences(expected[key], found[key], f"{place}, {key}")])
    if isinstance(expected, list) and isinstance(found, list) and len(expected) == len(found):
        return [line for index, (one, other) in enumerate(zip(expected, found))
                for line in differences(one, other, f"{place} {index}")]
    return [] if expected == found else [f"{place}: {found!r} and not {expected!r}"]


def read(path):
    """Reads a file with canmatrix, as UTF-8 if it is that.

    Returns the network and the number of statements that canmatrix passed over.
    """
    import canmatrix.formats
    with open(path, "rb") as file:
        data = file.read()
    try:
        data.decode("utf-8")
        encoding = "utf-8"
    except UnicodeDecodeError:
        encoding = "iso-8859-1"
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed):
        network, = canmatrix.formats.loadp(path, dbcImportEncoding=encoding,
                                           dbcImportCommentEncoding=encoding).values()
    return network, printed.getvalue().count("error with line")


def compare(tool, folder, path, counts):
    written = os.path.join(folder, os.path.basename(path))
    report = Report(tool, path, written)
    try:
        original, passed_over = read(path)
    except Exception as error:  # whatever it fails with
        print(f"{path}: canmatrix cannot read it: {error!r}")
        counts["unreadable files"] += 1
        return []
    expected = Expectation(report).network(original)
    found = Unchanged().network(read(written)[0])
    lines = differences(expected, found, path)
    if not lines and list(expected) != list(found):
        lines = [f"{path}: the messages have another order"]
    counts["files"] += 1
    counts["statements that canmatrix passed over"] += passed_over
    counts["messages"] += len(found)
    for message in found.values():
        counts["signals"] += len(message["signals"])
        counts["value descriptions"] += sum(len(signal["values"]) for signal in message["signals"])
        counts["comments"] += sum(bool(each["comment"]) for each in [message, *message["signals"]])
    return lines


def main(tool, folder, files):
    logging.disable()  # of formats that this test does not need
    os.makedirs(folder, exist_ok=True)
    counts = collections.Counter()
    lines = [line for path in files for line in compare(tool, folder, path, counts)]
    print("compared:", ", ".join(f"{count} {what}" for what, count in counts.items()))
    for line in lines[:50]:
        print(line)
    if lines or not counts["signals"]:
        sys.exit(f"{len(lines)} differences")


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
