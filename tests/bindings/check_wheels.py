#!/usr/bin/env python3
"""Checks the files of each wheel in a folder, and installs it with pip without network access.

    check_wheels.py FOLDER SAMPLE

Uses the installed wheels of this platform to read SAMPLE, a DBC file with two messages.
"""
# SPDX-License-Identifier: MIT
import os
import pathlib
import platform
import re
import subprocess
import sys
import tempfile
import zipfile

MODULES = {"__init__.py", "_constants.py", "_errors.py", "_fetch.py", "_frame.py", "_library.py",
           "_model.py", "_network.py", "_records.py", "_text.py", "py.typed"}
USE = """
import os, sys, vexil64
network = vexil64.read(sys.argv[1])
assert len(network.messages) == 2, network.messages
print(os.path.dirname(vexil64.load()._name) == os.path.dirname(vexil64.__file__))
"""


def check_files(wheel, library, magic):
    with zipfile.ZipFile(wheel) as archive:
        names = archive.namelist()
        package = {name[len("vexil64/"):] for name in names if name.startswith("vexil64/")}
        assert package == MODULES | {library}, package
        others = {name.split("/")[-1] for name in names if not name.startswith("vexil64/")}
        assert others == {"LICENSE", "METADATA", "RECORD", "WHEEL", "top_level.txt"}, others
        assert archive.read(f"vexil64/{library}").startswith(magic)
        info, = (name for name in names if name.endswith("/WHEEL"))
        assert b"Root-Is-Purelib: false" in archive.read(info)


def check_installed(wheel, tag, sample):
    with tempfile.TemporaryDirectory() as target:
        options = [] if "linux" in tag else ["--platform", tag, "--only-binary=:all:"]
        subprocess.run([sys.executable, "-m", "pip", "install", "--quiet", "--no-index", "--no-deps",
                        "--no-compile", "--disable-pip-version-check", "--root-user-action=ignore",
                        "--target", target, *options, str(wheel)], check=True)
        if "linux" not in tag:
            return
        environment = {"PATH": os.environ["PATH"], "PYTHONPATH": target}
        used = subprocess.run([sys.executable, "-c", USE, sample], env=environment, cwd=target,
                              capture_output=True, text=True, check=True).stdout
        assert used == "True\n", used


def main(folder, sample):
    wheels = sorted(pathlib.Path(folder).glob("*.whl"))
    assert wheels, f"there is no wheel in {folder}"
    for wheel in wheels:
        tag = re.fullmatch(r"vexil64-1\.33\.0-py3-none-(.*)\.whl", wheel.name).group(1)
        if tag == "win_amd64":
            check_files(wheel, "vexil64.dll", b"MZ")
        else:
            assert tag in {f"manylinux_2_34_{platform.machine()}", f"linux_{platform.machine()}"}, tag
            check_files(wheel, "libvexil64.so", b"\x7fELF")
        check_installed(wheel, tag, os.path.abspath(sample))
        print(f"{wheel.name}: installed" + (" and used" if "linux" in tag else ""))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
