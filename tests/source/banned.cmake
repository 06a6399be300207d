# Checks that the library does none of what it must never do to its host, and keeps the style that
# every file of src keeps.
#   cmake -DROOT=... -P banned.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/source_lines.cmake")

set(edge "(^|[^A-Za-z0-9_])")
set(printing "(iostream|cout|cerr|clog|v?f?printf|puts|fputs|putchar|perror)")
set(ending "(abort|exit|_Exit|quick_exit|terminate|raise)")

# Notes a fault if the line matches.
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
        # Neither texts nor comments count, nor does a deleted function, the header of bad_alloc or an
        # object that is made in memory which something else owns.
        string(REGEX REPLACE "'/?.'" "' '" code "${line}")
        string(REGEX REPLACE "\"(/\"|[^\"])*\"" "\"\"" code "${code}")
        string(REGEX REPLACE "//.*" "" code "${code}")
        string(REGEX REPLACE "= *delete|^#include <new>$|::new [(][^)]" "" code "${code}")

        ban("${edge}${printing}($|[^A-Za-z0-9_])" "the library prints nothing")
        ban("${edge}${ending} *[(]" "the library never ends its host")
        ban("${edge}(new|delete)($|[^A-Za-z0-9_])" "owners release by scope: no new, no delete")
        ban("^ *# *define" "src has no macros")
        if(NOT file STREQUAL "src/text/file.cpp")
            ban("^ *# *(if|elif)" "platforms differ in src/text/file.cpp alone")
        endif()
    endforeach()
endforeach()
end_check()
