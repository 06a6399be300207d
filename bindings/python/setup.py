"""Names the wheel: any Python 3, and the platform of the library in it."""
# SPDX-License-Identifier: MIT
import os

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel


class BinaryDistribution(Distribution):
    """Nothing is compiled here, but the library belongs to the modules of a platform."""

    def has_ext_modules(self):
        return True


class PlatformWheel(bdist_wheel):
    def get_tag(self):
        # There is no wheel without a library, so there is no default.
        return "py3", "none", os.environ["VEXIL64_WHEEL_PLATFORM"]


setup(distclass=BinaryDistribution, cmdclass={"bdist_wheel": PlatformWheel})
