# Runs compare.py on the samples and, where VEXIL64_CORPUS is set, on the files of that folder, with the Python
# of Debian, which has canmatrix where its package is installed. Without it says so and does nothing.
#   cmake -DTOOL=... -DSAMPLES=... -DWORK=... -P compare.cmake
cmake_minimum_required(VERSION 3.25)

set(python /usr/bin/python3)
execute_process(COMMAND "${python}" -c "import canmatrix.formats"
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 0)
    message("Skipped: no ${python} with canmatrix. Install the Debian package python3-canmatrix.")
    return()
endif()
file(GLOB files "${SAMPLES}/*.dbc")
set(folder "$ENV{VEXIL64_CORPUS}")
if(folder STREQUAL "")
    message("VEXIL64_CORPUS is not set: the samples alone are compared.")
else()
    file(GLOB real_files "${folder}/*.dbc")
    if(NOT real_files)
        message(FATAL_ERROR "no .dbc file in ${folder}")
    endif()
    list(APPEND files ${real_files})
endif()
execute_process(COMMAND "${python}" "${CMAKE_CURRENT_LIST_DIR}/compare.py" "${TOOL}" "${WORK}" ${files}
    COMMAND_ERROR_IS_FATAL ANY)
