# Checks the program that a document shows: it is the example that is built, and the output beside it is
# what that example prints. Both are the first fenced block of their language.
#   cmake -DROOT=... -DDOCUMENT=... -DLANGUAGE=... -DEXAMPLE=... -DPROGRAM=... -DARGUMENTS=... -DWORK=...
#         -P shown_program.cmake
#     ARGUMENTS  what the program is called with, with | between the arguments; @ROOT@ is replaced

cmake_minimum_required(VERSION 3.25)

# Gives the text of the first fenced block of a language.
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

# The comment before the example is not shown.
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
