# Runs the tests of the Python package with the Python of Debian. Without pytest, reports that the test is
# skipped.
#   cmake -DPACKAGE=... -DLIBRARY=... -DRECORD_LAYOUT=... -DFRAME_ANSWERS=... -P python_tests.cmake
cmake_minimum_required(VERSION 3.25)

set(python /usr/bin/python3)
execute_process(COMMAND "${python}" -c "import pytest"
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 0)
    message("Skipped: no ${python} with pytest. Install the Debian package python3-pytest.")
    return()
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E env
        "PYTHONPATH=${PACKAGE}" PYTHONDONTWRITEBYTECODE=1
        "VEXIL64_LIBRARY=${LIBRARY}"
        "VEXIL64_RECORD_LAYOUT=${RECORD_LAYOUT}"
        "VEXIL64_FRAME_ANSWERS=${FRAME_ANSWERS}"
        "${python}" -m pytest -p no:cacheprovider -q -rs "${PACKAGE}/tests"
    COMMAND_ERROR_IS_FATAL ANY)
