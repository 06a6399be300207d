# Functions for the checks of the source tree.

# Returns the lines of a file as a CMake list. Characters with a meaning in lists are replaced: "[" by "(",
# "]" by ")", ";" by "," and a backslash by "/".
function(read_lines file out)
    file(READ "${file}" text)
    string(REPLACE "\\" "/" text "${text}")
    string(REPLACE "[" "(" text "${text}")
    string(REPLACE "]" ")" text "${text}")
    string(REPLACE ";" "," text "${text}")
    string(REPLACE "\n" ";" text "${text}")
    set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Returns the sorted paths of the C and C++ files in folders of ROOT, relative to ROOT. Fails if there are none,
# because an empty tree would pass every check.
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

# Records an error. end_check reports all errors.
macro(fault file line text)
    string(APPEND faults "${file}:${line}: ${text}\n")
endmacro()

macro(end_check)
    if(faults)
        message("${faults}")
        message(FATAL_ERROR "The rules are in ${CMAKE_CURRENT_LIST_FILE}.")
    endif()
endmacro()
