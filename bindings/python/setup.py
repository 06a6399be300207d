"""Tags the wheel for every Python 3 and for the platform of the library in it."""
# SPDX-License-Identifier: MIT
import os

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel


class BinaryDistribution(Distribution):
    """Makes the wheel platform-specific, because it contains the library."""

    def has_ext_modules(self):
        return True


class PlatformWheel(bdist_wheel):
    def get_tag(self):
        # No default: every wheel contains a library.
        return "py3", "none", os.environ["VEXIL64_WHEEL_PLATFORM"]


setup(distclass=BinaryDistribution, cmdclass={"bdist_wheel": PlatformWheel})
