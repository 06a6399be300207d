# Compiles the public headers in every version of C and C++ that they promise, with the warnings that
# strict programs use, and runs the program of vexil64_frame.h. Without the compiler it says so and does
# nothing, unless REQUIRED is set.
#   cmake -DC_COMPILER=... -DCXX_COMPILER=... -DINCLUDE=... -DWORK=... [-DRUN=ON] [-DREQUIRED=ON]
#         -P header_standards.cmake
#     RUN  whether the programs of the compiler run on this system
cmake_minimum_required(VERSION 3.25)

set(sources "${CMAKE_CURRENT_LIST_DIR}/standards")
set(warnings -Wall -Wextra -pedantic-errors -Wconversion -Wsign-conversion -Wshadow -Wcast-qual
    -Wcast-align -Wundef -Wfloat-equal -Wdouble-promotion -Werror)
set(c_warnings -Wstrict-prototypes -Wmissing-prototypes -Wdeclaration-after-statement)
set(cpp_warnings -Wold-style-cast)

foreach(compiler "${C_COMPILER}" "${CXX_COMPILER}")
    find_program(found NAMES "${compiler}" NO_CACHE)
    if(NOT found AND REQUIRED)
        message(FATAL_ERROR "There is no ${compiler}")
    elseif(NOT found)
        message("Skipped: no ${compiler} on this system")
        return()
    endif()
    unset(found)
endforeach()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

# Compiles a source with a compiler, a standard and further options. With a warning, the test ends.
function(compile source compiler standard)
    execute_process(COMMAND "${compiler}" "-std=${standard}" -O2 ${warnings} ${ARGN} "-I${INCLUDE}"
        "${sources}/${source}" RESULT_VARIABLE result ERROR_VARIABLE reported)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${compiler} -std=${standard} refuses ${source}:\n${reported}")
    endif()
endfunction()

function(check_frame_header compiler standard)
    set(program "${WORK}/frame_header-${standard}.exe")
    compile(frame_header.c "${compiler}" "${standard}" ${ARGN} -o "${program}")
    if(RUN)
        execute_process(COMMAND "${program}" RESULT_VARIABLE result OUTPUT_VARIABLE output)
        if(NOT result EQUAL 0)
            message(FATAL_ERROR "Compiled by ${compiler} -std=${standard}:\n${output}")
        endif()
    endif()
endfunction()

foreach(standard c89 c99 c11 c17)
    compile(library_header.c "${C_COMPILER}" ${standard} ${c_warnings} -c -o "${WORK}/library.o")
    check_frame_header("${C_COMPILER}" ${standard} ${c_warnings})
endforeach()
foreach(standard c++98 c++11 c++14 c++17 c++20)
    compile(library_header.c "${CXX_COMPILER}" ${standard} ${cpp_warnings} -x c++ -c
        -o "${WORK}/library.o")
    check_frame_header("${CXX_COMPILER}" ${standard} ${cpp_warnings} -x c++)
endforeach()
foreach(standard c++17 c++20 c++2b)
    compile(cpp_header.cpp "${CXX_COMPILER}" ${standard} ${cpp_warnings} -c -o "${WORK}/cpp.o")
endforeach()
