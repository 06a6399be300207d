"""Decoding and encoding give the results of vexil64_frame.h."""
# SPDX-License-Identifier: MIT
import math
import random
import struct
import subprocess

import pytest
from conftest import program

import vexil64
from vexil64 import FrameError, FrameResult, Multiplex

CASES = 20000
LARGEST_FLOAT = (2 - 2**-23) * 2.0**127
NO_TEXT = {field: "" for field in ("name", "long_name", "unit", "ascii_unit", "receivers", "comment")}


def signal(start_bit=0, bit_length=8, byte_order=1, value_type=0, factor=1.0, offset=0.0,
           minimum=0.0, maximum=0.0, multiplex_type=0, multiplex_value=0):
    return vexil64.Signal(
        **NO_TEXT, start_bit=start_bit, bit_length=bit_length, byte_order=byte_order,
        value_type=value_type, factor=factor, offset=offset, minimum=minimum, maximum=maximum,
        multiplex_type=multiplex_type, multiplex_value=multiplex_value, start_value=0,
        inactive_value=0, descriptions={}, message_position=0, position=0)


SELECTOR = signal(multiplex_type=Multiplex.SELECTOR)


def bits_of(number):
    return struct.pack(">d", number).hex()


def any_number(rng):
    return rng.choice([
        rng.uniform(-300, 300), float(rng.randint(-300, 300)), rng.randint(-600, 600) / 2,
        struct.unpack("<d", rng.randbytes(8))[0], 0.0, math.inf, -math.inf, math.nan,
        2.0**rng.randint(-1074, 1023),
        rng.choice([-1, 1]) * rng.choice([LARGEST_FLOAT, math.nextafter(LARGEST_FLOAT, math.inf)])])


def any_case(rng):
    """Returns a random signal, value, raw value and frame. Most combinations are valid."""
    size = rng.choice([1, 2, 3, 8, 8, 8, 12, 64])
    value_type = rng.choice([0, 0, 1, 1, 2, 3, 4 if rng.random() < 0.05 else 0])
    length = {2: 32, 3: 64}.get(value_type) or rng.randint(1, 64)
    if rng.random() < 0.03:
        length = rng.choice([0, 31, 65, 2**32 - 1])
    start = rng.randint(0, 8 * size) if rng.random() < 0.5 else rng.choice([0, 7])
    if rng.random() < 0.02:
        start = 2**32 - 1
    factor = rng.choice([1.0, 1.0, 0.5, -0.25, 0.1, 1e300, 0.0, any_number(rng)])
    offset = rng.choice([0.0, 0.0, -40.0, 0.3, any_number(rng)])
    case = signal(start, length, rng.randint(0, 1) if rng.random() < 0.98 else 2, value_type, factor,
                  offset, any_number(rng), any_number(rng), rng.randint(0, 3), rng.randint(0, 3))
    raw = rng.choice([rng.randint(0, 255), rng.getrandbits(64), 2**64 - rng.randint(1, 200)])
    data = rng.choice([rng.randbytes(size), bytes([rng.randint(0, 3)]) + bytes(size - 1)])
    return case, any_number(rng), raw, data


def question(case, value, raw, data):
    numbers = [case.start_bit, case.bit_length, case.byte_order, case.value_type]
    doubles = [case.factor, case.offset, case.minimum, case.maximum]
    return " ".join([*map(str, numbers), *map(bits_of, doubles), str(case.multiplex_type),
                     str(case.multiplex_value), bits_of(value), str(raw), data.hex()])


def result_of(function, form=str):
    try:
        return f"0:{form(function())}"
    except FrameError as error:
        return str(int(error.result))


def unsigned(raw):
    return str(raw % 2**64)


def answer(case, value, raw, data):
    """Returns the line that frame_answers.c prints for a question."""
    # In C, a raw value is unsigned and sign-extended to 64 bits.
    number = raw - 2**64 if case.value_type == 1 and raw >> 63 else raw

    def encoded(encode, argument):
        frame = bytearray(data)
        encode(case, argument, frame)
        return frame.hex()

    def presence():
        if not vexil64.is_present(case, SELECTOR, data):
            raise FrameError("", FrameResult.NOT_PRESENT)

    return " ".join([
        result_of(lambda: vexil64.decode_raw(case, data), unsigned),
        result_of(lambda: vexil64.decode(case, data), bits_of),
        result_of(lambda: encoded(vexil64.encode_raw, number)),
        result_of(lambda: encoded(vexil64.encode, value)),
        result_of(lambda: vexil64.raw_to_value(case, number), bits_of),
        result_of(lambda: vexil64.value_to_raw(case, value), unsigned),
        result_of(presence).split(":")[0],
        str(int(vexil64.is_within_limits(case, value)))])


def test_gives_the_same_results_as_the_header():
    rng = random.Random(64)
    cases = [any_case(rng) for _ in range(CASES)]
    questions = "".join(question(*case) + "\n" for case in cases)
    printed = subprocess.run([program("VEXIL64_FRAME_ANSWERS")], input=questions, check=True,
                             capture_output=True, text=True).stdout.splitlines()
    answers = [answer(*case) for case in cases]
    assert len(printed) == CASES
    # The random cases must produce every result.
    results = {part.split(":")[0] for line in printed for part in line.split()[:-1]}
    assert results == set("023456")
    different = [(question(*case), got, expected)
                 for case, got, expected in zip(cases, answers, printed) if got != expected]
    assert different == []


@pytest.mark.parametrize("case, frame", [
    (signal(0, 12, 1), "5b0a"), (signal(4, 12, 1), "b0a5"),
    (signal(7, 12, 0), "a5b0"), (signal(3, 12, 0), "0a5b")])
def test_numbers_bits_as_the_documentation_shows(case, frame):
    data = bytearray(2)
    vexil64.encode_raw(case, 0xA5B, data)
    assert data.hex() == frame
    assert vexil64.decode_raw(case, bytes(data)) == 0xA5B


def test_raw_values_of_signed_signals_are_negative():
    case = signal(0, 4, 1, 1)
    assert vexil64.decode_raw(case, b"\xff") == -1
    assert vexil64.value_to_raw(case, -8) == -8
    with pytest.raises(FrameError, match="out of range"):
        vexil64.value_to_raw(case, 8)


def test_a_frame_error_has_result_and_signal():
    with pytest.raises(FrameError) as caught:
        vexil64.decode(signal(1, 8)._replace(name="Speed"), b"\0")
    assert (caught.value.result, caught.value.signal) == (FrameResult.TOO_SHORT, "Speed")
    assert str(caught.value) == "Speed: the frame is too short for the signal"
    assert isinstance(caught.value, ValueError)


def test_a_multiplexed_signal_needs_a_multiplexer():
    with pytest.raises(FrameError) as caught:
        vexil64.is_present(signal(multiplex_type=Multiplex.SELECTED), None, b"\0")
    assert caught.value.result == FrameResult.NO_SELECTOR


def test_a_message_decodes_the_signals_that_are_present(powertrain):
    message = powertrain.message(512)
    assert message.decode(bytes.fromhex("01e8030000000000")) == {
        "Page": 1.0, "BoostPressure": 100.0}


def test_encoding_a_message_reverses_decoding(powertrain):
    message = powertrain.message(512)
    frame = message.encode({"Page": 1, "BoostPressure": 100})
    assert frame.hex() == "01e8030000000000"
    assert message.encode({"Page": 2}, frame).hex() == "02e8030000000000"


def test_a_message_refuses_values_that_it_cannot_encode(powertrain):
    message = powertrain.message(512)
    with pytest.raises(KeyError, match="Diagnostics has no signal 'Speed'"):
        message.encode({"Speed": 1})
    with pytest.raises(FrameError, match="Page: the value is out of range"):
        message.encode({"Page": 256})
    with pytest.raises(TypeError):
        message.encode({"Page": "1"})
    with pytest.raises(ValueError, match="too long for a frame"):
        message._replace(dlc=2**32 - 1).encode({})
