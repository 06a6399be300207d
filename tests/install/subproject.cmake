# Configures a project that contains vexil64, and checks what it installs and what became of its cache.
#   cmake -DSOURCE=... -DPARENT=... -DWORK=... -DGENERATOR=... -P subproject.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${PARENT}" -B "${WORK}/build" -G "${GENERATOR}"
    "-DVEXIL64_SOURCE=${SOURCE}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${WORK}/build" --prefix "${WORK}/prefix"
    COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE installed RELATIVE "${WORK}/prefix" "${WORK}/prefix/*")
if(NOT installed STREQUAL "CMakeLists.txt")
    message(FATAL_ERROR "The parent installs [${installed}] and not its own file alone")
endif()
load_cache("${WORK}/build" READ_WITH_PREFIX parent_ CMAKE_BUILD_TYPE)
if(parent_CMAKE_BUILD_TYPE)
    message(FATAL_ERROR "The build type of the parent has become ${parent_CMAKE_BUILD_TYPE}")
endif()
