# Checks the C# code in docs/windows.md, the body of a Main: it must print the output on the page.
#   cmake -DBINDING=... -DDOCUMENT=... -DLIBRARY=... -DSAMPLE=... -DWORK=... -P windows_document.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/mono.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/document.cmake")
require_mono()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
file(COPY_FILE "${SAMPLE}" "${WORK}/network.dbc")
cmake_path(GET LIBRARY PARENT_PATH folder)
file(READ "${DOCUMENT}" document)

take_block(csharp body)
file(WRITE "${WORK}/body.cs"
    "using System; using Vexil64; static class Program { static void Main() {\n${body}} }\n")
compile("${WORK}/body.exe" "${WORK}/body.cs" "${BINDING}")
run_mono("${folder}" "${WORK}/body.exe")
take_block(text shown)
expect_same("${shown}" "${output}")
