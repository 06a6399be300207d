# Runs compare.py with the Python of Debian, for which canmatrix is a package. Without canmatrix, reports
# that the test is skipped.
#   cmake -DPROGRAM=... -DWORK=... -P compare.cmake
cmake_minimum_required(VERSION 3.25)

set(python /usr/bin/python3)
execute_process(COMMAND "${python}" -c "import canmatrix.formats"
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 0)
    message("Skipped: no ${python} with canmatrix. Install the Debian package python3-canmatrix.")
    return()
endif()
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${python}" "${CMAKE_CURRENT_LIST_DIR}/compare.py" "${PROGRAM}" "${WORK}"
    COMMAND_ERROR_IS_FATAL ANY)
