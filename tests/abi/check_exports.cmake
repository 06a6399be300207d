# Compares the checked-in list of exported names with the library and with the public header. Each
# of the three must hold the same names, and nothing else.
#   cmake -DNM=... -DLIBRARY=... -DHEADER=... -DNAMES=... -P check_exports.cmake

cmake_minimum_required(VERSION 3.25)

# Ends the check if two sorted lists of names differ, and says by which.
function(expect_same_names what names)
    set(missing ${expected})
    list(REMOVE_ITEM missing ${names})
    list(REMOVE_ITEM names ${expected})
    if(missing OR names)
        message(FATAL_ERROR "${what}: missing [${missing}], not on the list [${names}]")
    endif()
endfunction()

file(STRINGS "${NAMES}" expected)
set(sorted ${expected})
list(SORT sorted)
list(REMOVE_DUPLICATES sorted)
if(NOT sorted STREQUAL expected)
    message(FATAL_ERROR "${NAMES} is not sorted, or holds a name twice")
endif()
list(LENGTH expected count)
if(NOT count EQUAL 17)
    message(FATAL_ERROR "${NAMES} holds ${count} names and not 17")
endif()

execute_process(COMMAND "${NM}" -D --defined-only --format=posix "${LIBRARY}"
    OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")
list(TRANSFORM symbols REPLACE " .*" "")
expect_same_names("${LIBRARY}" "${symbols}")

file(READ "${HEADER}" header)
string(REGEX MATCHALL "\nVEXIL64_API [^(;]*" declared "${header}")
list(TRANSFORM declared REPLACE ".*[ *\n]" "")
expect_same_names("${HEADER}" "${declared}")
