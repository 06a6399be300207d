# Checks the program that README.md shows: it is the example that is built, and the output beside it
# is what that example prints.
#   cmake -DROOT=... -DPROGRAM=... -DWORK=... -P readme.cmake

cmake_minimum_required(VERSION 3.25)

# Gives the text of the first fenced block of a language.
function(first_block language out)
    string(FIND "${readme}" "\n```${language}\n" start)
    if(start EQUAL -1)
        message(FATAL_ERROR "README.md has no ${language} block")
    endif()
    string(LENGTH "\n```${language}\n" fence)
    math(EXPR start "${start} + ${fence}")
    string(SUBSTRING "${readme}" ${start} -1 block)
    string(FIND "${block}" "\n```" end)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${block}" 0 ${end} block)
    set(${out} "${block}" PARENT_SCOPE)
endfunction()

function(expect_same shown actual what)
    if(NOT shown STREQUAL actual)
        message(FATAL_ERROR "README.md shows\n${shown}\nbut ${what} is\n${actual}")
    endif()
endfunction()

file(READ "${ROOT}/README.md" readme)

# The comment in front of the example is not shown.
file(READ "${ROOT}/examples/read_and_write.c" example)
string(FIND "${example}" "#include" start)
string(SUBSTRING "${example}" ${start} -1 example)
first_block(c shown)
expect_same("${shown}" "${example}" "the example")

file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND "${PROGRAM}" "${ROOT}/samples/roof.dbc" roof.dbc
    WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
first_block(text shown)
expect_same("${shown}" "${output}" "its output")
