# Configures a project that contains vexil64, and checks that it installs only its own files and that its cache
# variables are unchanged.
#   cmake -DSOURCE=... -DPARENT=... -DWORK=... -DGENERATOR=... -P subproject.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${PARENT}" -B "${WORK}/build" -G "${GENERATOR}"
    "-DVEXIL64_SOURCE=${SOURCE}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${WORK}/build" --prefix "${WORK}/prefix"
    COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE installed RELATIVE "${WORK}/prefix" "${WORK}/prefix/*")
if(NOT installed STREQUAL "CMakeLists.txt")
    message(FATAL_ERROR "The parent installs [${installed}] instead of only its own file")
endif()
foreach(variable CMAKE_BUILD_TYPE BUILD_SHARED_LIBS)
    load_cache("${WORK}/build" READ_WITH_PREFIX parent_ ${variable})
    if(parent_${variable})
        message(FATAL_ERROR "${variable} of the parent was changed to ${parent_${variable}}")
    endif()
endforeach()
