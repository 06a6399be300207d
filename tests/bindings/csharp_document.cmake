# Checks the programs in docs/csharp.md. The first one must be the example and print the output on the
# page. The second one is the body of a program that writes engine.dbc.
#   cmake -DBINDING=... -DDOCUMENT=... -DEXAMPLE=... -DLIBRARY=... -DSAMPLE=... -DWORK=...
#         -P csharp_document.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/mono.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/document.cmake")
require_mono()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
cmake_path(GET LIBRARY PARENT_PATH folder)
file(READ "${DOCUMENT}" document)

take_block(csharp shown)
file(READ "${EXAMPLE}" example)
string(FIND "${example}" "using System;" start)
string(SUBSTRING "${example}" ${start} -1 example)
expect_same("${shown}" "${example}")
compile("${WORK}/example.exe" "${EXAMPLE}" "${BINDING}")
run_mono("${folder}" "${WORK}/example.exe" "${SAMPLE}")
take_block(text shown)
expect_same("${shown}" "${output}")

take_block(csharp body)
file(WRITE "${WORK}/body.cs" "using Vexil64; static class Program { static void Main() {\n${body}} }\n")
compile("${WORK}/body.exe" "${WORK}/body.cs" "${BINDING}")
run_mono("${folder}" "${WORK}/body.exe")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The second program fails: ${errors}")
endif()
file(STRINGS "${WORK}/engine.dbc" lines REGEX "^BO_ 291 Engine_data: 8|SG_ Gear : 16[|]4@1|^VAL_ 291 Gear 1 \"First\"")
list(LENGTH lines count)
if(NOT count EQUAL 3)
    message(FATAL_ERROR "The second program writes other lines than expected: ${lines}")
endif()
