# Installs a build into an empty folder, then builds and runs a project that finds the package there.
#   cmake -DBUILD=... -DCONFIG=... -DCONSUMER=... -DWORK=... -DGENERATOR=... -DLANGUAGE=...
#         -DCOMPILER=... -DFLAGS=... -DTOOLCHAIN=... -DSAMPLE=... -P install_consumer.cmake
cmake_minimum_required(VERSION 3.25)

function(run)
    execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE "${WORK}")
run("${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${WORK}/prefix")
# If the library uses another standard library, the host must use the same one.
set(how_to_compile "-DCMAKE_${LANGUAGE}_COMPILER=${COMPILER}" "-DCMAKE_${LANGUAGE}_FLAGS=${FLAGS}")
if(TOOLCHAIN)
    set(how_to_compile "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
endif()
run("${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${WORK}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${WORK}/prefix" ${how_to_compile} "-DCMAKE_BUILD_TYPE=${CONFIG}")
run("${CMAKE_COMMAND}" --build "${WORK}/build" --config "${CONFIG}")

# The program must work without the build folder from which the library was installed.
execute_process(COMMAND "${WORK}/build/consumer" "${SAMPLE}"
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
if(NOT output STREQUAL "vexil64 1.33 reads 5 messages\n")
    message(FATAL_ERROR "The consumer prints: ${output}")
endif()
