"""Appending to networks and writing them."""
# SPDX-License-Identifier: MIT
import os

import pytest

import vexil64
from vexil64 import (Bus, ByteOrder, FileError, Multiplex, Order, Protocol, ResultCode,
                     StaleNetworkError, ValueType)


@pytest.fixture
def network():
    return vexil64.new()


@pytest.fixture
def message(network):
    return network.append_message(291, "Engine data")


def test_an_appended_message_has_its_fields(network):
    message = network.append_message(291, "Engine data", dlc=8, transmitter="ECU1", comment="Fast")
    assert message is network.messages[0]
    assert message == vexil64.Message(291, "Engine_data", "Engine data", 8, "ECU1", "Fast",
                                      message.send_type, 0, [], 0)


def test_an_appended_signal_has_its_fields(network, message):
    signal = network.append_signal(
        message, "Gear", start_bit=16, bit_length=4, byte_order=ByteOrder.BIG_ENDIAN,
        value_type=ValueType.SIGNED, factor=2, offset=-1, minimum=-1, maximum=8.5,
        unit="\N{MICRO SIGN}s", receivers="ABS,ESP", comment="Which", start_value=-1,
        inactive_value=-2, multiplex_type=Multiplex.SELECTED, multiplex_value=3)
    assert signal is message.signals[0] is network.messages[0].signals[0]
    assert signal == vexil64.Signal("Gear", "Gear", "\N{MICRO SIGN}s", "_s", "ABS,ESP", "Which", 2,
                                    3, 16, 4, 0, 1, 2.0, -1.0, -1.0, 8.5, -1, -2, {}, 0, 0)


def test_an_appended_description_is_in_its_signal(network, message):
    signal = network.append_signal(message, "Gear", start_bit=0, bit_length=4)
    network.append_description(signal, 3, "Third")
    network.append_description(signal, -1, "Reverse")
    network.append_description(signal, 3, "3rd")
    assert signal.descriptions == {-1: "Reverse", 3: "Third - 3rd"}


def test_a_written_network_is_read_again(tmp_path, network, message):
    signal = network.append_signal(message, "Gear", start_bit=16, bit_length=4, unit="1")
    network.append_description(signal, 1, "First")
    network.append_message(5, "Second", dlc=1)
    network.bus_type = Bus.CAN_FD
    network.protocol_type = Protocol.J1939
    network.write(tmp_path / "a.dbc")
    again = vexil64.read(tmp_path / "a.dbc")
    assert [m.name for m in again.messages] == ["Engine_data", "Second"]
    assert again.messages[0].signals[0].descriptions == {1: "First"}
    assert (again.bus_type, again.protocol_type) == (Bus.CAN_FD, Protocol.J1939)


@pytest.mark.parametrize("order, names", [
    (Order.BY_ID_DESCENDING, ["C", "A", "B"]),
    (Order.BY_NAME_ASCENDING, ["A", "B", "C"]),
    (Order.AS_STORED, ["B", "C", "A"]),
])
def test_writes_in_the_given_order(tmp_path, network, order, names):
    for id, name in [(1, "B"), (9, "C"), (5, "A")]:
        network.append_message(id, name)
    network.write(tmp_path / "a.dbc", order)
    assert [m.name for m in vexil64.read(tmp_path / "a.dbc").messages] == names


def test_a_read_network_can_be_extended(tmp_path, roof):
    roof.append_signal(roof.message("DoorStatus"), "Locked", start_bit=8, bit_length=1)
    roof.write(tmp_path / "a.dbc")
    again = vexil64.read(tmp_path / "a.dbc")
    assert [s.name for s in again.message(800).signals] == ["DoorOpen", "WindowPosition", "Locked"]


def test_a_write_updates_the_names_of_renamed_signals(tmp_path, network, message):
    other = network.append_message(5, "Other")
    for _ in range(2):
        network.append_signal(message, "Same", start_bit=0, bit_length=1)
    network.write(tmp_path / "a.dbc")
    names = [s.name for s in network.messages[0].signals]
    assert len(set(names)) == 2
    assert names == [s.name for s in vexil64.read(tmp_path / "a.dbc").messages[0].signals]
    assert network.messages[1] is other


def test_an_empty_network_is_not_written(tmp_path, network):
    with pytest.raises(FileError, match="there is no message to write") as caught:
        network.write(tmp_path / "a.dbc")
    assert caught.value.code == ResultCode.CLOSED
    assert not (tmp_path / "a.dbc").exists()


def test_writing_to_a_folder_is_a_file_error(tmp_path, network, message):
    with pytest.raises(FileError, match=r"result code 6\)") as caught:
        network.write(tmp_path)
    assert caught.value.path == str(tmp_path)


@pytest.mark.skipif(not os.path.exists("/dev/full"), reason="this system has no /dev/full")
def test_a_write_that_fails_is_a_file_error(network, message):
    with pytest.raises(FileError) as caught:
        network.write("/dev/full")
    assert caught.value.code == ResultCode.STREAM_ERROR


def test_a_stale_network_is_refused(tmp_path, roof):
    message = roof.messages[0]
    vexil64.new()
    with pytest.raises(StaleNetworkError):
        roof.write(tmp_path / "a.dbc")
    with pytest.raises(StaleNetworkError):
        roof.append_message(1, "M")
    with pytest.raises(StaleNetworkError):
        roof.append_signal(message, "S", start_bit=0, bit_length=1)
    with pytest.raises(StaleNetworkError):
        roof.append_description(message.signals[0], 1, "one")


def test_values_of_another_network_are_refused(samples, roof):
    message = roof.messages[0]
    again = vexil64.read(samples / "roof.dbc")
    with pytest.raises(ValueError, match="DoorStatus is not part of this network"):
        again.append_signal(message, "S", start_bit=0, bit_length=1)
    with pytest.raises(ValueError, match="DoorOpen is not part of this network"):
        again.append_description(message.signals[0], 1, "one")


def test_texts_of_the_maximum_size_are_accepted(network):
    message = network.append_message(1, "x" * 255, transmitter="y" * 32, comment="\xe4" * 127)
    assert (message.long_name, message.transmitter, message.comment) == (
        "x" * 255, "y" * 32, "\xe4" * 127)


@pytest.mark.parametrize("fields, error, reason", [
    ({"long_name": "a\0b"}, ValueError, "long_name contains a NUL"),
    ({"long_name": "x" * 256}, ValueError, "long_name has 256 bytes; the maximum is 255"),
    ({"comment": "\xe4" * 128}, ValueError, "comment has 256 bytes; the maximum is 255"),
    ({"transmitter": "x" * 33}, ValueError, "transmitter has 33 bytes; the maximum is 32"),
    ({"comment": "\ud800"}, ValueError, "comment has a character that UTF-8 cannot encode"),
    ({"long_name": b"M"}, TypeError, "long_name must be a str, not bytes"),
    ({"long_name": None}, TypeError, "long_name must be a str, not NoneType"),
    ({"id": -1}, ValueError, "id is -1; it must be from 0 to 4294967295"),
    ({"id": 2**32}, ValueError, "id is 4294967296; it must be from 0 to 4294967295"),
    ({"id": "1"}, TypeError, "id must be an int, not str"),
    ({"dlc": 8.0}, TypeError, "dlc must be an int, not float"),
])
def test_a_message_with_a_bad_field_is_refused(network, fields, error, reason):
    with pytest.raises(error) as caught:
        network.append_message(**{"id": 1, "long_name": "M", **fields})
    assert str(caught.value).startswith(reason)
    assert len(network.messages) == network._library.VexilGetNumCanMessages() == 0


@pytest.mark.parametrize("fields, error, reason", [
    ({"unit": "x" * 33}, ValueError, "unit has 33 bytes; the maximum is 32"),
    ({"receivers": "A\0"}, ValueError, "receivers contains a NUL"),
    ({"factor": "1"}, TypeError, "factor must be a float, not str"),
    ({"maximum": 10**400}, ValueError, "maximum is too large for a float"),
    ({"start_value": 2**31}, ValueError,
     "start_value is 2147483648; it must be from -2147483648 to 2147483647"),
    ({"start_bit": -1}, ValueError, "start_bit is -1; it must be from 0 to 4294967295"),
    ({"value_type": 2}, ValueError, "bit_length of a FLOAT32 signal must be 32"),
    ({"value_type": 3}, ValueError, "bit_length of a FLOAT64 signal must be 64"),
])
def test_a_signal_with_a_bad_field_is_refused(network, message, fields, error, reason):
    with pytest.raises(error) as caught:
        network.append_signal(
            message, **{"long_name": "S", "start_bit": 0, "bit_length": 1, **fields})
    assert str(caught.value) == reason
    assert message.signals == []


def test_a_description_with_a_bad_field_is_refused(network, message):
    signal = network.append_signal(message, "S", start_bit=0, bit_length=1)
    with pytest.raises(ValueError, match="text contains a NUL"):
        network.append_description(signal, 1, "\0")
    with pytest.raises(ValueError, match="value is 2147483648"):
        network.append_description(signal, 2**31, "x")
    assert signal.descriptions == {}


def test_a_message_takes_10000_signals_and_no_more(network, message):
    for position in range(vexil64.MAX_SIGNALS_PER_MESSAGE):
        network.append_signal(message, f"S{position}", start_bit=0, bit_length=1)
    with pytest.raises(ValueError, match="Engine_data already has 10000 signals"):
        network.append_signal(message, "S", start_bit=0, bit_length=1)
    assert len(message.signals) == 10000


def test_a_database_that_other_code_cleared_is_detected(network, message):
    vexil64.load().VexilClearData()
    with pytest.raises(StaleNetworkError, match="other code of this process changed"):
        network.append_signal(message, "S", start_bit=0, bit_length=1)
