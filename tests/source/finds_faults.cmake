# Runs a check on a tree with errors and compares its report with the expected one.
#   cmake -DCHECK=... -DROOT=... -DEXPECTED=... -P finds_faults.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND "${CMAKE_COMMAND}" "-DROOT=${ROOT}" -P "${CHECK}"
    RESULT_VARIABLE result ERROR_VARIABLE reported)
if(result EQUAL 0)
    message(FATAL_ERROR "${CHECK} accepts a tree with errors")
endif()
string(REGEX REPLACE "\n+CMake Error.*" "\n" reported "${reported}")
file(READ "${EXPECTED}" expected)
if(NOT reported STREQUAL expected)
    message("${reported}")
    message(FATAL_ERROR "The report differs from ${EXPECTED}.")
endif()
