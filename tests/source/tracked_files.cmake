# Checks that every file of the tree is of a known kind and at most 64 KiB, so that no generated file is
# committed.
#   cmake -DROOT=... -P tracked_files.cmake
# The files are those that git tracks. Without git, all files outside build folders.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/source_lines.cmake")

set(most_bytes 65536)
set(kinds "[.](c|cpp|h|hpp|cs|cmake|py|bash|typed|toml|md|txt|in|json|dict|dbc|abi|[135]|gitkeep|gitattributes|gitignore)$")
# The parts of the page that the tool writes, and the page that a test expects.
set(page_parts "^(tools/view/report/[a-z]+[.](mustache|css|js)|tests/tool/[a-z_]+[.]html)$")
# Pictures of the documents, which may be larger.
set(pictures "^docs/images/[a-z-]+[.]png$")
set(most_picture_bytes 200000)
set(named "(^|/)(LICENSE|[.]editorconfig|[.]clang-format|[.]clang-tidy|[.]ci/run|scripts/[a-z-]+)$")
# Inputs of the fuzz targets can have any name.
set(inputs "^fuzz/(corpus|regressions)/[a-z]+/[A-Za-z0-9_.]+$")
set(built "[.](profraw|profdata|gcda|gcno|log|zip|gz|o|a|so|dll|exe)$")

find_program(GIT git)
set(result 1)
if(GIT AND EXISTS "${ROOT}/.git")
    execute_process(COMMAND "${GIT}" -c "safe.directory=*" ls-files
        WORKING_DIRECTORY "${ROOT}" OUTPUT_VARIABLE files RESULT_VARIABLE result)
    string(STRIP "${files}" files)
    string(REPLACE "\n" ";" files "${files}")
endif()
if(NOT result EQUAL 0)
    file(GLOB_RECURSE files RELATIVE "${ROOT}" "${ROOT}/*")
    list(FILTER files EXCLUDE REGEX "^(build[^/]*|[.]git)/")
endif()

foreach(file IN LISTS files)
    if(NOT EXISTS "${ROOT}/${file}")
        continue() # about to be removed
    endif()
    file(SIZE "${ROOT}/${file}" size)
    if(file MATCHES "${built}" OR NOT file MATCHES "${kinds}|${named}|${inputs}|${page_parts}|${pictures}")
        fault("${file}" 0 "an unexpected kind of file")
    elseif(size GREATER most_picture_bytes OR (size GREATER most_bytes AND NOT file MATCHES "${pictures}"))
        fault("${file}" 0 "too large")
    endif()
endforeach()
end_check()
