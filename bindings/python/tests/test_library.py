"""Finding and loading the library, and the errors."""
# SPDX-License-Identifier: MIT
import os
import pathlib
import shutil
import subprocess
import sys

import pytest
from conftest import ROOT

import vexil64

PACKAGE = pathlib.Path(vexil64.__file__).parent
LIBRARY = os.path.abspath(vexil64.load()._name)
SHOW = "import vexil64; print(vexil64.load()._name)"


def run(code, folder=None, **environment):
    """Runs Python code in a new process. Returns its output, or the last line of its error output."""
    clean = {name: value for name, value in os.environ.items()
             if name not in ("VEXIL64_LIBRARY", "LD_LIBRARY_PATH")}
    clean.update(environment, PYTHONPATH=str(folder or PACKAGE.parent))
    done = subprocess.run([sys.executable, "-c", code], env=clean, capture_output=True, text=True,
                          cwd=clean["PYTHONPATH"])  # the first folder in which Python searches for modules
    return (done.stdout or done.stderr).splitlines()[-1]


def compiled(tmp_path, source):
    """Compiles C code to a shared library. Skips the test without a compiler."""
    if not shutil.which("cc"):
        pytest.skip("there is no C compiler")
    path = tmp_path / "other.so"
    subprocess.run(["cc", "-shared", "-fPIC", "-xc", "-", "-o", path], input=source, text=True,
                   check=True)
    return path


def test_the_environment_variable_names_the_library():
    assert run(SHOW, VEXIL64_LIBRARY=LIBRARY) == LIBRARY


def test_the_library_is_found_beside_the_package(tmp_path):
    shutil.copytree(PACKAGE, tmp_path / "vexil64")
    beside = shutil.copy(LIBRARY, tmp_path / "vexil64")
    assert run(SHOW, tmp_path) == str(beside)


@pytest.mark.skipif(sys.platform != "linux", reason="LD_LIBRARY_PATH is of Linux")
def test_the_system_finds_the_library(tmp_path):
    shutil.copytree(PACKAGE, tmp_path / "vexil64", ignore=shutil.ignore_patterns("*.so"))
    assert run(SHOW, tmp_path, LD_LIBRARY_PATH=os.path.dirname(LIBRARY)) == "libvexil64.so"


def test_importing_needs_no_library():
    assert run("import vexil64; print(vexil64.__version__)",
               VEXIL64_LIBRARY="/nowhere.so") == vexil64.__version__


def test_the_package_has_the_version_of_the_project():
    project = (ROOT / "CMakeLists.txt").read_text()
    assert f"\n    VERSION {vexil64.__version__}\n" in project
    assert vexil64.__version__.startswith(vexil64.LIBRARY_VERSION + ".")


def test_a_missing_library_is_a_library_error():
    line = run(SHOW, VEXIL64_LIBRARY="/nowhere/libvexil64.so")
    assert line.startswith(
        "vexil64._errors.LibraryError: the vexil64 library cannot be loaded. Install it, or set the "
        "environment variable VEXIL64_LIBRARY to its path. Tried /nowhere/libvexil64.so: ")


def test_a_file_that_is_no_library_is_a_library_error(tmp_path):
    (tmp_path / "no.so").write_text("no library")
    assert "LibraryError: the vexil64 library cannot be loaded" in run(
        SHOW, VEXIL64_LIBRARY=str(tmp_path / "no.so"))


def test_another_library_is_a_library_error(tmp_path):
    other = compiled(tmp_path, "int Other(void) { return 0; }")
    assert run(SHOW, VEXIL64_LIBRARY=str(other)) == (
        f"vexil64._errors.LibraryError: {other} is not the vexil64 library: "
        "it has no VexilGetLibraryVersion")


def test_a_library_of_another_version_is_a_library_error(tmp_path):
    names = [name for name in vexil64._library.FUNCTIONS if name != "VexilGetLibraryVersion"]
    other = compiled(tmp_path, "float VexilGetLibraryVersion(void) { return 1.32f; }\n" + "".join(
        f"void {name}(void) {{}}\n" for name in names))
    assert run(SHOW, VEXIL64_LIBRARY=str(other)) == (
        f"vexil64._errors.LibraryError: {other} is vexil64 1.32, but this package needs vexil64 1.33")


def test_loading_the_same_library_again_returns_it():
    assert vexil64.load(LIBRARY) is vexil64.load()


def test_loading_another_library_is_a_library_error(tmp_path):
    copy = shutil.copy(LIBRARY, tmp_path)
    with pytest.raises(vexil64.LibraryError, match="already loaded from"):
        vexil64.load(copy)
    with pytest.raises(vexil64.LibraryError, match="already loaded from"):
        vexil64.load(tmp_path / "nowhere.so")
