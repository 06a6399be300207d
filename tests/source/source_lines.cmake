# What the checks of the source tree share.

# Gives the lines of a file as a list that CMake can walk: one element for each line, with what has a
# meaning in lists replaced. "(" stands for "[", ")" for "]", "," for ";" and "/" for a backslash.
function(read_lines file out)
    file(READ "${file}" text)
    string(REPLACE "\\" "/" text "${text}")
    string(REPLACE "[" "(" text "${text}")
    string(REPLACE "]" ")" text "${text}")
    string(REPLACE ";" "," text "${text}")
    string(REPLACE "\n" ";" text "${text}")
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# The C and C++ files below the folders of ROOT, with their paths from ROOT, in order. A tree without
# any would pass every check, so there must be some.
function(source_files out)
    set(files "")
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE found RELATIVE "${ROOT}"
            "${ROOT}/${folder}/*.h" "${ROOT}/${folder}/*.hpp" "${ROOT}/${folder}/*.cpp" "${ROOT}/${folder}/*.c")
        list(APPEND files ${found})
    endforeach()
    list(SORT files)
    if(NOT files)
        message(FATAL_ERROR "No sources below ${ROOT}")
    endif()
    set(${out} "${files}" PARENT_SCOPE)
endfunction()

# Notes a fault; end_check reports all of them.
macro(fault file line text)
    string(APPEND faults "${file}:${line}: ${text}\n")
endmacro()

macro(end_check)
    if(faults)
        message("${faults}")
        message(FATAL_ERROR "The rules are in ${CMAKE_CURRENT_LIST_FILE}.")
    endif()
endmacro()
