# Checks the exports and imports of the DLL: it exports exactly the names of the list, and imports only from
# DLLs that are parts of Windows.
#   cmake -DOBJDUMP=... -DLIBRARY=... -DNAMES=... -P check_dll.cmake
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${OBJDUMP}" -p "${LIBRARY}" OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)

# Lines of the form "\t[  16] VexilWriteDbcFile", the table of names.
file(STRINGS "${NAMES}" expected)
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [^+\n][^\n]*" exported "${headers}")
list(TRANSFORM exported REPLACE "\n\t\\[ *[0-9]+\\] " "")
if(NOT exported STREQUAL expected)
    message(FATAL_ERROR "${LIBRARY} exports [${exported}] instead of [${expected}]")
endif()

string(REGEX MATCHALL "DLL Name: [^\n]*" imported "${headers}")
list(TRANSFORM imported REPLACE "DLL Name: " "")
list(TRANSFORM imported TOUPPER)
list(SORT imported)
if(NOT imported STREQUAL "KERNEL32.DLL;MSVCRT.DLL")
    message(FATAL_ERROR "${LIBRARY} imports from [${imported}]")
endif()
