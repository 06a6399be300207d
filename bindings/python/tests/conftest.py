"""Fixtures and helpers of all tests.

VEXIL64_LIBRARY is the path of the library under test. VEXIL64_RECORD_LAYOUT and
VEXIL64_FRAME_ANSWERS are the paths of C programs, whose output is compared with that of the package.
A test whose program is not given is skipped.
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
