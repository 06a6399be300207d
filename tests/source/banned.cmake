# Checks that src has no code that prints or ends the process, no new or delete, no macros, and
# conditional code only in one file.
#   cmake -DROOT=... -P banned.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/source_lines.cmake")

set(edge "(^|[^A-Za-z0-9_])")
set(printing "(iostream|cout|cerr|clog|v?f?printf|puts|fputs|putchar|perror)")
set(ending "(abort|exit|_Exit|quick_exit|terminate|raise)")

# Reports the line if it matches.
macro(ban pattern reason)
    if(code MATCHES "${pattern}")
        fault("${file}" ${number} "${reason}")
    endif()
endmacro()

source_files(files src)
foreach(file IN LISTS files)
    read_lines("${ROOT}/${file}" lines)
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        # Leaves out literals, comments, deleted functions, the header of bad_alloc, and objects that
        # are constructed in memory with another owner.
        string(REGEX REPLACE "'/?.'" "' '" code "${line}")
        string(REGEX REPLACE "\"(/\"|[^\"])*\"" "\"\"" code "${code}")
        string(REGEX REPLACE "//.*" "" code "${code}")
        string(REGEX REPLACE "= *delete|^#include <new>$|::new [(][^)]" "" code "${code}")

        ban("${edge}${printing}($|[^A-Za-z0-9_])" "the library must not print")
        ban("${edge}${ending} *[(]" "the library must not end the process")
        ban("${edge}(new|delete)($|[^A-Za-z0-9_])" "memory is owned by values: no new or delete")
        ban("^ *# *define" "src has no macros")
        if(NOT file STREQUAL "src/text/file.cpp")
            ban("^ *# *(if|elif)" "conditional code belongs in src/text/file.cpp")
        endif()
    endforeach()
endforeach()
end_check()
