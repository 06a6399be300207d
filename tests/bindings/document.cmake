# Functions for the tests of programs on pages. DOCUMENT is the file of a page, and document the part of
# its text that is not yet processed.

# Returns the next fenced block of a language and removes the text up to its end from document.
function(take_block language out)
    string(FIND "${document}" "\n```${language}\n" start)
    if(start EQUAL -1)
        message(FATAL_ERROR "${DOCUMENT} has too few ${language} blocks")
    endif()
    string(LENGTH "\n```${language}\n" fence)
    math(EXPR start "${start} + ${fence}")
    string(SUBSTRING "${document}" ${start} -1 rest)
    string(FIND "${rest}" "\n```" end)
    math(EXPR end "${end} + 1")
    string(SUBSTRING "${rest}" 0 ${end} block)
    string(SUBSTRING "${rest}" ${end} -1 rest)
    set(${out} "${block}" PARENT_SCOPE)
    set(document "\n${rest}" PARENT_SCOPE)
endfunction()

function(expect_same shown actual)
    if(NOT shown STREQUAL actual)
        message(FATAL_ERROR "${DOCUMENT} shows\n${shown}but must show\n${actual}")
    endif()
endfunction()
