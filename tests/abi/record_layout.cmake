# Compares what record_layout prints with the layout that is the contract.
#   cmake -DPROGRAM=... -DEMULATOR=... -DEXPECTED=... -P record_layout.cmake
#     EMULATOR  the command that runs PROGRAM, with | between its parts
cmake_minimum_required(VERSION 3.25)
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")

execute_process(COMMAND ${EMULATOR} "${PROGRAM}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" output "${output}")
file(READ "${EXPECTED}" expected)
if(NOT output STREQUAL expected)
    message(FATAL_ERROR "The compiler lays out the records as\n${output}and not as\n${expected}")
endif()
