# Compiles the tests of Vexil64.cs with mcs. Runs them under mono with the right library, without a
# library, and with a library of another version. Without Mono, reports that the test is skipped.
#   cmake -DBINDING=... -DTESTS=... -DLIBRARY=... -DOTHER_VERSION=... -DRECORD_LAYOUT=...
#         -DFRAME_ANSWERS=... -DLAYOUT_FILE=... -DSAMPLES=... -DWORK=... -P csharp_tests.cmake
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/mono.cmake")
require_mono()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/files")
file(GLOB sources "${TESTS}/*.cs")
list(LENGTH sources count)
if(count LESS 5)
    message(FATAL_ERROR "There are no tests in ${TESTS}")
endif()
compile("${WORK}/tests.exe" ${sources} "${BINDING}")

cmake_path(GET LIBRARY PARENT_PATH folder)
run_mono("${folder}" "${WORK}/tests.exe" "${RECORD_LAYOUT}" "${FRAME_ANSWERS}" "${LAYOUT_FILE}"
    "${SAMPLES}" "${WORK}/files")
message("${output}")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The tests failed: ${errors}")
endif()

# Without arguments, the program loads the library and prints the error.
function(expect_refusal folder reason)
    run_mono("${folder}" "${WORK}/tests.exe")
    string(FIND "${output}" "LibraryException: ${reason}" at)
    if(NOT at EQUAL 0)
        message(FATAL_ERROR "Expected <${reason}>, but the program prints\n${output}${errors}")
    endif()
endfunction()
expect_refusal("" "the vexil64 library was not found. Put vexil64.dll or libvexil64.so into the folder of the program")
cmake_path(GET OTHER_VERSION PARENT_PATH folder)
expect_refusal("${folder}" "the library is vexil64 1.32, but this program needs vexil64 1.33")
file(COPY_FILE "${FRAME_ANSWERS}" "${WORK}/files/libvexil64.so")
expect_refusal("${WORK}/files" "the vexil64 library was not found")
