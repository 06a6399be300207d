"""The programs in docs/python.md run and print the output on the page."""
# SPDX-License-Identifier: MIT
import re
import subprocess
import sys

from conftest import ROOT

import vexil64

DOCUMENT = (ROOT / "docs" / "python.md").read_text(encoding="utf-8")
EXAMPLE = ROOT / "examples" / "python" / "list_signals.py"


def blocks(language):
    return re.findall(rf"^```{language}\n(.*?)^```$", DOCUMENT, re.DOTALL | re.MULTILINE)


def test_shows_the_example():
    assert blocks("python")[0] == EXAMPLE.read_text()[EXAMPLE.read_text().index("import sys"):]


def test_shows_what_the_example_prints():
    printed = subprocess.run([sys.executable, EXAMPLE, ROOT / "samples" / "roof.dbc"], check=True,
                             capture_output=True, encoding="utf-8").stdout
    assert blocks("text") == [printed]


def test_shows_how_to_append_and_write(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    exec(blocks("python")[1], {"vexil64": vexil64})
    signal = vexil64.read("engine.dbc").message(291).signal("Gear")
    assert (signal.start_bit, signal.descriptions) == (16, {-1: "Reverse"})


def test_shows_how_to_decode_and_encode(monkeypatch):
    monkeypatch.chdir(ROOT)
    load, decode, encode = blocks("python")[2].splitlines()
    names = {"vexil64": vexil64}
    exec(load, names)
    code, _, shown = decode.partition("#")
    assert eval(code, names) == eval(shown)
    assert eval(encode, names) == bytes.fromhex("01e8030000000000")


def test_lists_every_name_of_the_package():
    names = set(vexil64.__all__) - {"LIBRARY_VERSION", "MAX_SIGNALS_PER_MESSAGE"}
    # The page documents these types by their fields.
    described = {"Message", "Signal", "StatementError", "Step", "Multiplex", "ByteOrder",
                 "FrameResult"}
    assert {name for name in names - described if not re.search(rf"\b{name}\b", DOCUMENT)} == set()
