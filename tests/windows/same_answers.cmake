# Compares the results of the libraries for Linux and Windows for each file: records, errors, and the file
# written in each order.
#   cmake -DLINUX_DUMP=... -DWINDOWS_DUMP=... -DEMULATOR=... -DFILES=... -DWORK=... -P same_answers.cmake
#     EMULATOR  the command that runs WINDOWS_DUMP; its parts are separated by |
#     FILES     patterns of file names, separated by |; by default, all files in the folder that the
#               environment variable VEXIL64_CORPUS names
cmake_minimum_required(VERSION 3.25)
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")
string(REPLACE "|" ";" FILES "${FILES}")
if(NOT FILES)
    if("$ENV{VEXIL64_CORPUS}" STREQUAL "")
        message("VEXIL64_CORPUS is not set: set it to a folder of .dbc files to compare them, too.")
        return()
    endif()
    set(FILES "$ENV{VEXIL64_CORPUS}/*.dbc")
endif()

foreach(pattern IN LISTS FILES)
    file(GLOB found "${pattern}")
    if(NOT found)
        message(FATAL_ERROR "No file matches ${pattern}")
    endif()
    list(APPEND files ${found})
endforeach()

function(run)
    execute_process(COMMAND ${ARGN} WORKING_DIRECTORY "${WORK}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(file IN LISTS files)
    file(REMOVE_RECURSE "${WORK}")
    file(MAKE_DIRECTORY "${WORK}/linux" "${WORK}/windows")
    # Windows reads a carriage return and line feed as a line feed. Linux gets the file without the former.
    run(sed "s/\\r$//" "${file}" OUTPUT_FILE linux.dbc)
    file(COPY_FILE "${file}" "${WORK}/windows.dbc")
    run("${LINUX_DUMP}" linux.dbc linux)
    run(${EMULATOR} "${WINDOWS_DUMP}" windows.dbc windows)
    # The library does not write a database without messages.
    file(GLOB outputs RELATIVE "${WORK}/linux" "${WORK}/linux/*")
    file(GLOB windows_outputs RELATIVE "${WORK}/windows" "${WORK}/windows/*")
    if(NOT "records.txt" IN_LIST outputs OR NOT outputs STREQUAL windows_outputs)
        message(FATAL_ERROR "From ${file}, Linux makes [${outputs}] and Windows [${windows_outputs}]")
    endif()
    foreach(output IN LISTS outputs)
        set(ignore_eol "")
        if(output MATCHES "dbc$")
            set(ignore_eol --ignore-eol)
        endif()
        execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files ${ignore_eol}
            "linux/${output}" "windows/${output}" WORKING_DIRECTORY "${WORK}" RESULT_VARIABLE result)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "${output} of ${file} differs: see ${WORK}")
        endif()
    endforeach()
endforeach()
list(LENGTH files count)
message("${count} files compared")
