# Installs a build into a folder that already has a file and an empty folder, uninstalls it, and checks that
# only these two are left.
#   cmake -DBUILD=... -DCONFIG=... -DUNINSTALL=... -DWORK=... -P uninstall.cmake
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
function(expect_left expected)
    file(GLOB_RECURSE left LIST_DIRECTORIES ON RELATIVE "${WORK}" "${WORK}/*")
    if(NOT left STREQUAL expected)
        message(FATAL_ERROR "Uninstalling leaves [${left}] instead of [${expected}]")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/usr/share")
file(WRITE "${WORK}/usr/include/other.h" "")
# Installs into two folders. Uninstalling must remove the files in both.
run("${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${WORK}/usr")
run("${CMAKE_COMMAND}" -E env "DESTDIR=${WORK}/staged"
    "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix /usr/local)
file(GLOB_RECURSE installed "${WORK}/*/vexil64.h")
list(LENGTH installed count)
if(NOT count EQUAL 2)
    message(FATAL_ERROR "The header was installed ${count} times instead of twice")
endif()
# The target "uninstall" removes all files that this build folder installed.
file(STRINGS "${BUILD}/installed.txt" lines)
list(FILTER lines INCLUDE REGEX "^[a-z]+ ${WORK}/")
list(JOIN lines "\n" lines)
file(WRITE "${WORK}.txt" "${lines}\n")
run("${CMAKE_COMMAND}" "-DLIST=${WORK}.txt" -P "${UNINSTALL}")
expect_left("usr;usr/include;usr/include/other.h;usr/share")
