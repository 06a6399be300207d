# Runs the example in Python on each sample: it prints what the example in C does. Without a Python it
# says so and does nothing.
#   cmake -DPYTHON=... -DEMULATOR=... -DEXAMPLE=... -DC_EXAMPLE=... -DLIBRARY=... -DSAMPLES=...
#         -DWORK=... -P python_example.cmake
#     EMULATOR  the command that runs PYTHON and C_EXAMPLE, with | between its parts
cmake_minimum_required(VERSION 3.25)
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")

file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND ${EMULATOR} "${PYTHON}" -c "import ctypes"
    WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE result OUTPUT_QUIET ERROR_QUIET)
if(NOT result EQUAL 0)
    message("Skipped: no Python with ctypes, ${PYTHON}, on this system")
    return()
endif()

file(GLOB samples "${SAMPLES}/*.dbc")
list(LENGTH samples count)
if(count LESS 2)
    message(FATAL_ERROR "There are no samples in ${SAMPLES}")
endif()
foreach(sample IN LISTS samples)
    execute_process(COMMAND ${EMULATOR} "${C_EXAMPLE}" "${sample}" again.dbc
        WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE expected COMMAND_ERROR_IS_FATAL ANY)
    execute_process(COMMAND ${EMULATOR} "${PYTHON}" "${EXAMPLE}" "${sample}" "${LIBRARY}"
        WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    if(NOT output STREQUAL expected)
        message(FATAL_ERROR "For ${sample} the example prints\n${output}and not\n${expected}")
    endif()
endforeach()
