"""What the tests share: the folders of the project, and a network to work on.

VEXIL64_LIBRARY names the library under test. VEXIL64_RECORD_LAYOUT and VEXIL64_FRAME_ANSWERS name
programs in C to compare with; a test without its program is skipped.
"""
# SPDX-License-Identifier: MIT
import os
import pathlib

import pytest

import vexil64

ROOT = pathlib.Path(__file__).resolve().parents[3]


@pytest.fixture
def samples():
    return ROOT / "samples"


@pytest.fixture
def roof(samples):
    return vexil64.read(samples / "roof.dbc")


@pytest.fixture
def powertrain(samples):
    return vexil64.read(samples / "powertrain.dbc")


def program(variable):
    """Returns the path that an environment variable gives, or skips the test."""
    path = os.environ.get(variable)
    if not path:
        pytest.skip(f"{variable} is not set")
    return path
