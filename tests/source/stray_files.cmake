# Checks that tracked_files.cmake finds each kind of stray file.
#   cmake -DCHECK=... -DWORK=... -P stray_files.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE "${WORK}")
string(REPEAT "x" 65536 largest)
foreach(good src/good.cpp LICENSE scripts/do-it fuzz/corpus/read/any_name samples/a.dbc build/b.o
        tools/view/report/a.css tests/tool/a.html)
    file(WRITE "${WORK}/${good}" "${largest}")
endforeach()
string(REPEAT "x" 200000 largest_picture)
file(WRITE "${WORK}/docs/images/a-picture.png" "${largest_picture}")
execute_process(COMMAND "${CMAKE_COMMAND}" "-DROOT=${WORK}" -P "${CHECK}"
    RESULT_VARIABLE result ERROR_VARIABLE reported)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The check reports errors in a correct tree:\n${reported}")
endif()

foreach(stray default.profraw docs/core docs/page.html fuzz/corpus/read/a.o src/picture.png)
    file(WRITE "${WORK}/${stray}" "")
endforeach()
file(WRITE "${WORK}/docs/large.txt" "${largest}x")
file(WRITE "${WORK}/docs/images/large.png" "${largest_picture}x")
execute_process(COMMAND "${CMAKE_COMMAND}" "-DROOT=${WORK}" -P "${CHECK}"
    RESULT_VARIABLE result ERROR_VARIABLE reported)
string(REGEX REPLACE "\n+CMake Error.*" "\n" reported "${reported}")
set(expected "default.profraw:0: an unexpected kind of file
docs/core:0: an unexpected kind of file
docs/images/large.png:0: too large
docs/large.txt:0: too large
docs/page.html:0: an unexpected kind of file
fuzz/corpus/read/a.o:0: an unexpected kind of file
src/picture.png:0: an unexpected kind of file
")
if(result EQUAL 0 OR NOT reported STREQUAL expected)
    message(FATAL_ERROR "The check reports other errors than expected:\n${reported}")
endif()
