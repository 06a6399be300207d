# Installs a build for Windows, then builds and runs a project that finds the package there and links with
# vexil64.lib, like MSVC.
#   cmake -DBUILD=... -DCONFIG=... -DCONSUMER=... -DGENERATOR=... -DEMULATOR=... -DWORK=...
#         -P msvc_consumer.cmake
#     EMULATOR  the command that runs programs; its parts are separated by |
cmake_minimum_required(VERSION 3.25)
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")

find_program(CLANG clang)
find_program(LLD lld-link)
if(NOT CLANG OR NOT LLD)
    message("Skipped: clang and lld are not installed")
    return()
endif()

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${WORK}/prefix")
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G "${GENERATOR}"
    "-DCMAKE_TOOLCHAIN_FILE=${CONSUMER}/clang_msvc.cmake" "-DCMAKE_BUILD_TYPE=${CONFIG}"
    "-Dvexil64_DIR=${WORK}/prefix/lib/cmake/vexil64"
    "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${WORK}/prefix/bin")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
file(READ "${WORK}/build/import_library.txt" import_library)
if(NOT import_library STREQUAL "${WORK}/prefix/lib/vexil64.lib")
    message(FATAL_ERROR "The host is linked with ${import_library}")
endif()
run(${EMULATOR} "${WORK}/prefix/bin/host.exe")
