# Makes the package of a build, unpacks it and compares its files with a list. Then builds and runs C hosts
# with only the files of the package: one for each library with which it can be linked, and one that finds
# the package through CMake.
#   cmake -DBUILD=... -DCONFIG=... -DCONTENTS=... -DC_COMPILER=... -DC_FLAGS=... -DCONSUMER=...
#         -DCMAKE_CONSUMER=... -DTOOLCHAIN=... -DGENERATOR=... -DSAMPLE=... -DLIBRARIES=...
#         -DEMULATOR=... -DWORK=... -P package_consumer.cmake
#     LIBRARIES, EMULATOR  files to link with, and the command that runs programs; both separated by |
cmake_minimum_required(VERSION 3.25)
string(REPLACE "|" ";" LIBRARIES "${LIBRARIES}")
string(REPLACE "|" ";" EMULATOR "${EMULATOR}")

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}/files")
execute_process(COMMAND "${CMAKE_CPACK_COMMAND}" --config "${BUILD}/CPackConfig.cmake" -C "${CONFIG}"
    -B "${WORK}" COMMAND_ERROR_IS_FATAL ANY)
file(GLOB archives "${WORK}/vexil64-*")
list(LENGTH archives count)
if(NOT count EQUAL 1)
    message(FATAL_ERROR "cpack made [${archives}] instead of one package")
endif()
file(ARCHIVE_EXTRACT INPUT "${archives}" DESTINATION "${WORK}")

# The package has one folder with the name of the package.
string(REGEX REPLACE "\\.(zip|tar\\.gz)$" "" folder "${archives}")
file(GLOB_RECURSE found RELATIVE "${folder}" "${folder}/*")
list(FILTER found EXCLUDE REGEX "vexil64Targets-[a-z]+\\.cmake$") # named after the configuration
file(STRINGS "${CONTENTS}" expected)
if(NOT found STREQUAL expected)
    message(FATAL_ERROR "The package has the files [${found}] instead of [${expected}]")
endif()

function(run)
    execute_process(COMMAND "${CMAKE_COMMAND}" -E env "LD_LIBRARY_PATH=${folder}/lib" ${EMULATOR} ${ARGN}
        WORKING_DIRECTORY "${WORK}" OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\r" "" output "${output}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

# Windows searches for the library in the folder of the program.
foreach(library IN LISTS LIBRARIES)
    execute_process(COMMAND "${C_COMPILER}" ${C_FLAGS} -std=c99 "-I${folder}/include" "${CONSUMER}"
        "${folder}/${library}" -o "${folder}/bin/c_consumer.exe" COMMAND_ERROR_IS_FATAL ANY)
    run("${folder}/bin/c_consumer.exe" files)
endforeach()

execute_process(COMMAND "${CMAKE_COMMAND}" -S "${CMAKE_CONSUMER}" -B "${WORK}/build" -G "${GENERATOR}"
    "-Dvexil64_DIR=${folder}/lib/cmake/vexil64" "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${folder}/bin"
    "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}" "-DCMAKE_C_COMPILER=${C_COMPILER}"
    "-DCMAKE_C_FLAGS=${C_FLAGS}" "-DCMAKE_BUILD_TYPE=${CONFIG}"
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/build" COMMAND_ERROR_IS_FATAL ANY)
file(GLOB consumer "${folder}/bin/consumer" "${folder}/bin/consumer.exe")
run("${consumer}" "${SAMPLE}")
if(NOT output STREQUAL "vexil64 1.33 reads 5 messages\n")
    message(FATAL_ERROR "The host prints: ${output}")
endif()

file(GLOB tool "${folder}/bin/vexil-dbc*")
run("${tool}" --version)
if(NOT output STREQUAL "1.33\n")
    message(FATAL_ERROR "The tool in the package prints: ${output}")
endif()
