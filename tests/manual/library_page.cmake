# Compares the prototypes of the manual page with those of the header.
#   cmake -DPAGE=... -DHEADER=... -P library_page.cmake
cmake_minimum_required(VERSION 3.25)

file(READ "${HEADER}" text)
string(REGEX MATCHALL "\nVEXIL64_API [^;]*" declared "${text}")
set(expected "")
foreach(prototype IN LISTS declared)
    string(REGEX REPLACE "[ \n]+" " " prototype "${prototype}")
    string(REGEX REPLACE "^ VEXIL64_API " "" prototype "${prototype}")
    string(APPEND expected "${prototype}\n")
endforeach()

# A type in a line with Ft, then the name and the arguments, each in quotes, in a line with Fn.
file(READ "${PAGE}" text)
string(REGEX MATCHALL "\n[.]Ft [^\n]*\n[.]Fn [^\n]*" shown "${text}")
set(found "")
foreach(prototype IN LISTS shown)
    string(REGEX REPLACE "\n[.]Ft ([^\n]*)\n[.]Fn ([A-Za-z]+) \"(.*)\"$" "\\1 \\2(\\3)"
        prototype "${prototype}")
    string(REPLACE "\" \"" ", " prototype "${prototype}")
    string(APPEND found "${prototype}\n")
endforeach()
if(NOT found STREQUAL expected OR expected STREQUAL "")
    message(FATAL_ERROR "${PAGE} shows\n${found}but the header declares\n${expected}")
endif()
