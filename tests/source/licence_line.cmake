# Checks that each source file names its licence once, in a comment on a line of its own. Licence scanners
# read this line, and a formatter that joins comment lines would hide it.
#   cmake -DROOT=... -P licence_line.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/source_lines.cmake")

set(tag "SPDX-License-Identifier")
set(whole_line "^(//|#| [*]|/[*]) ${tag}: MIT( [*]/)?$")

source_files(files include src tools examples tests bench fuzz)
# The faulty tree is test data, not source of the project.
list(FILTER files EXCLUDE REGEX "^tests/source/faulty_tree/")
file(GLOB_RECURSE others RELATIVE "${ROOT}"
    "${ROOT}/bindings/*.cs" "${ROOT}/bindings/*.py" "${ROOT}/bindings/*.cpp" "${ROOT}/bindings/*.c"
    "${ROOT}/examples/*.cs" "${ROOT}/examples/*.py" "${ROOT}/cmake/*.rc.in")
list(APPEND files ${others})

foreach(file IN LISTS files)
    read_lines("${ROOT}/${file}" lines)
    set(number 0)
    set(count 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(NOT line MATCHES "${tag}")
            continue()
        endif()
        math(EXPR count "${count} + 1")
        if(NOT line MATCHES "${whole_line}")
            fault("${file}" ${number} "the licence shares its line with other text")
        endif()
    endforeach()
    if(count EQUAL 0)
        fault("${file}" 0 "does not name its licence")
    elseif(count GREATER 1)
        fault("${file}" 0 "names its licence ${count} times")
    endif()
endforeach()
end_check()
