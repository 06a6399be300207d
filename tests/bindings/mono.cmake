# Functions for the tests in C#, which use the compiler and the runtime of Mono.
find_program(MCS mcs)
find_program(MONO mono)

# Skips the test if Mono is missing.
macro(require_mono)
    if(NOT MCS OR NOT MONO)
        message("Skipped: no mcs or mono on this machine. Install the Debian package mono-mcs.")
        return()
    endif()
endmacro()

# compile(PROGRAM SOURCE...)
function(compile program)
    execute_process(COMMAND "${MCS}" -nologo -warn:4 -warnaserror "-out:${program}" ${ARGN}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# Runs a program in the folder WORK. FOLDER is where it finds the library. Sets result, output and errors.
#   run_mono(FOLDER PROGRAM ARGUMENT...)
macro(run_mono folder)
    execute_process(
        COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${folder}" LC_ALL=C.UTF-8 "${MONO}" ${ARGN}
        WORKING_DIRECTORY "${WORK}"
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
endmacro()
