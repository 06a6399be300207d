"""Reading: networks as plain values, and errors."""
# SPDX-License-Identifier: MIT
import math
import os
import pickle
import threading

import pytest

import vexil64
from vexil64 import Bus, FileError, Message, Protocol, ResultCode, Signal, StatementError, Step


def write(folder, text, name="network.dbc"):
    path = folder / name
    path.write_bytes(text.encode())
    return path


def test_gives_each_field_of_a_message_and_its_signals(roof):
    assert roof.messages[1] == Message(
        id=802, name="RoofCommand", long_name="RoofCommand", dlc=2, transmitter="Door", comment="",
        send_type="", cycle_time=20, position=1, signals=[Signal(
            name="Move", long_name="Move", unit="", ascii_unit="", receivers="Roof",
            comment="What the driver asks for", multiplex_type=0, multiplex_value=0, start_bit=0,
            bit_length=2, byte_order=1, value_type=0, factor=1.0, offset=0.0, minimum=0.0,
            maximum=3.0, start_value=0, inactive_value=0,
            descriptions={0: "Stop", 1: "Open", 2: "Close"}, message_position=1, position=0)])


def test_gives_each_number_of_a_signal(tmp_path):
    signal = vexil64.read(write(tmp_path, """BO_ 2147483649 M: 8 A
 SG_ S m7 : 12|9@0- (0.5,-40) [-1.5|99.25] "\N{DEGREE SIGN}C" B,C
BA_DEF_ SG_ "GenSigStartValue" INT -99 99;
BA_ "GenSigStartValue" SG_ 2147483649 S -3;
BA_DEF_ SG_ "GenSigInactiveValue" INT -99 99;
BA_ "GenSigInactiveValue" SG_ 2147483649 S -4;
""")).messages[0].signals[0]
    assert signal[2:5] == ("\N{DEGREE SIGN}C", "_C", "B,C")
    assert signal[6:18] == (2, 7, 12, 9, 0, 1, 0.5, -40.0, -1.5, 99.25, -3, -4)


def test_splits_an_extended_id_into_frame_id_and_flag(tmp_path):
    network = vexil64.read(write(tmp_path, "BO_ 2147483649 X: 8 A\nBO_ 5 Y: 8 A\n"))
    assert [(m.id, m.frame_id, m.is_extended) for m in network.messages] == [
        (0x80000001, 1, True), (5, 5, False)]


def test_gives_the_refused_statements(roof):
    assert roof.errors == [
        StatementError(11, Step.MESSAGE_ID, roof.errors[0].text),
        StatementError(17, Step.SIGNAL_NAME, roof.errors[1].text)]
    assert roof.errors[0].first_line == "BO_ 0x321 RoofStatus: 1 Roof"


def test_text_is_str(powertrain):
    texts = [text for m, s in powertrain.signals() for text in (*m[1:3], *m[4:7], *s[:6])]
    assert len(texts) > 20 and {type(text) for text in texts} == {str}


def test_gives_the_protocol_and_the_bus(tmp_path):
    attributes = """BA_DEF_ "BusType" STRING ;
BA_ "BusType" "CAN FD";
BA_DEF_ "J1939PGN" INT 0 1;
BA_ "J1939PGN" 1;
"""
    network = vexil64.read(write(tmp_path, attributes))
    assert (network.protocol_type, network.bus_type) == (Protocol.J1939, Bus.CAN_FD)


def test_a_read_resets_the_bus_type(tmp_path, samples):
    vexil64.read(write(tmp_path, 'BA_DEF_ "BusType" STRING ;\nBA_ "BusType" "CAN FD";\n'))
    assert vexil64.read(samples / "roof.dbc").bus_type == Bus.CLASSIC_CAN


def test_finds_a_message_by_id_and_by_name(roof):
    assert roof.message(802) is roof.message("RoofCommand") is roof.messages[1]
    assert roof.message(800).signal("DoorOpen") is roof.messages[0].signals[0]


@pytest.mark.parametrize("key", [801, "Roof", None])
def test_a_message_that_is_missing_is_a_key_error(roof, key):
    with pytest.raises(KeyError, match="no message"):
        roof.message(key)


def test_a_signal_that_is_missing_is_a_key_error(roof):
    with pytest.raises(KeyError, match="DoorStatus has no signal 'Move'"):
        roof.messages[0].signal("Move")


def test_a_later_read_does_not_change_a_network(samples, roof):
    before = pickle.loads(pickle.dumps(roof.messages))
    vexil64.read(samples / "powertrain.dbc")
    assert roof.messages == before


def test_values_are_immutable(roof):
    with pytest.raises(AttributeError):
        roof.messages[0].name = "other"


@pytest.mark.parametrize("kind", [str, os.fsencode, lambda path: path])
def test_takes_each_kind_of_path(samples, kind):
    assert len(vexil64.read(kind(samples / "roof.dbc")).messages) == 2


def test_takes_a_path_with_non_ascii_characters(tmp_path):
    path = write(tmp_path, "BO_ 1 M: 8 A\n", "\N{SNOWMAN} \N{PILE OF POO}.dbc")
    assert vexil64.read(path).messages[0].name == "M"


def test_takes_a_path_of_259_bytes_and_no_more(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    path = "./" * 127 + "a.dbc"
    write(tmp_path, "BO_ 1 M: 8 A\n", "a.dbc")
    assert len(path) == 259
    assert vexil64.read(path).messages[0].name == "M"
    with pytest.raises(FileError, match="longer than 259 bytes") as caught:
        vexil64.read("/" + path)
    assert caught.value.code == ResultCode.PATH_TOO_LONG


@pytest.mark.parametrize("path, code, message", [
    ("", ResultCode.PATH_EMPTY, 'cannot read "": the path is empty (result code 5)'),
    ("a\0b", ResultCode.PATH_INVALID,
     'cannot read "a\\0b": the path is not valid UTF-8, or contains a NUL (result code 4)'),
    (b"a\xffb", ResultCode.PATH_INVALID,
     'cannot read "a\\xffb": the path is not valid UTF-8, or contains a NUL (result code 4)'),
    ("a\udcffb", ResultCode.PATH_INVALID,
     'cannot read "a\\xed\\xb3\\xbfb": the path is not valid UTF-8, or contains a NUL (result code 4)'),
    ("nowhere/n.dbc", ResultCode.OPEN_FAILED,
     'cannot read "nowhere/n.dbc": the system could not open the file (result code 6)'),
    ("/", ResultCode.STREAM_ERROR, 'cannot read "/": reading or writing failed (result code 8)'),
])
def test_a_file_that_cannot_be_read_is_a_file_error(path, code, message):
    with pytest.raises(FileError) as caught:
        vexil64.read(path)
    assert (caught.value.code, str(caught.value)) == (code, message)
    assert isinstance(caught.value, OSError)


@pytest.mark.parametrize("path", [None, 7, 1.5, ["a"]])
def test_a_path_of_another_type_is_a_type_error(path):
    with pytest.raises(TypeError):
        vexil64.read(path)


def test_concurrent_reads_give_the_right_networks(samples):
    expected = {name: vexil64.read(samples / name).messages for name in
                ("roof.dbc", "powertrain.dbc")}
    wrong = []

    def work(name):
        for _ in range(100):
            if vexil64.read(samples / name).messages != expected[name]:
                wrong.append(name)

    threads = [threading.Thread(target=work, args=[name]) for name in [*expected] * 2]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert wrong == []


def test_reads_every_file_of_the_corpus():
    folder = os.environ.get("VEXIL64_CORPUS")
    if not folder:
        pytest.skip("VEXIL64_CORPUS is not set")
    count = 0
    for path, _, names in os.walk(folder):
        for name in names:
            if name.endswith(".dbc"):
                network = vexil64.read(os.path.join(path, name))
                assert len(network.messages) == network._library.VexilGetNumCanMessages()
                for _, signal in network.signals():
                    assert signal.bit_length >= 0 and not math.isnan(signal.factor)
                count += 1
    assert count > 0
