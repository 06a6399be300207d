# Checks the program on a page: it must be the example word for word, and the output on the page must be that
# of the example. Both are the first fenced block of their language.
#   cmake -DROOT=... -DDOCUMENT=... -DLANGUAGE=... -DEXAMPLE=... -DPROGRAM=... -DARGUMENTS=... -DWORK=...
#         -P shown_program.cmake
#     ARGUMENTS  the arguments of the program, separated by |; @ROOT@ is replaced

cmake_minimum_required(VERSION 3.25)

# Returns the text of the first fenced block of a language.
function(first_block language out)
    string(FIND "${document}" "\n```${language}\n" start)
    if(start EQUAL -1)
        message(FATAL_ERROR "${DOCUMENT} has no ${language} block")
    endif()
    string(LENGTH "\n```${language}\n" fence)
    math(EXPR start "${start} + ${fence}")
    string(SUBSTRING "${document}" ${start} -1 block)
    string(FIND "${block}" "\n```" end)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${block}" 0 ${end} block)
    set(${out} "${block}" PARENT_SCOPE)
endfunction()

function(expect_same shown actual what)
    if(NOT shown STREQUAL actual)
        message(FATAL_ERROR "${DOCUMENT} shows\n${shown}\nbut ${what} is\n${actual}")
    endif()
endfunction()

file(READ "${ROOT}/${DOCUMENT}" document)

# The page does not have the first comment of the example.
file(READ "${ROOT}/${EXAMPLE}" example)
string(FIND "${example}" "#include" start)
string(SUBSTRING "${example}" ${start} -1 example)
first_block(${LANGUAGE} shown)
expect_same("${shown}" "${example}" "the example")

string(REPLACE "|" ";" ARGUMENTS "${ARGUMENTS}")
string(REPLACE "@ROOT@" "${ROOT}" ARGUMENTS "${ARGUMENTS}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${PROGRAM}" ${ARGUMENTS}
    WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
first_block(text shown)
expect_same("${shown}" "${output}" "its output")
