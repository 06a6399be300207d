# Configures and compiles with a CMake package of utf8-cpp in the form of version 4, which is made from the
# headers of the installed version.
#   cmake -DSOURCE=... -DWORK=... -DCXX_COMPILER=... -DHEADERS=... -P newer_utf8cpp.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK}")
file(WRITE "${WORK}/package/utf8cppConfig.cmake"
    "add_library(utf8cpp::utf8cpp INTERFACE IMPORTED)\n"
    "target_include_directories(utf8cpp::utf8cpp SYSTEM INTERFACE \"${HEADERS}\")\n")
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G Ninja
    "-Dutf8cpp_DIR=${WORK}/package" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
    -DCMAKE_BUILD_TYPE=Debug COMMAND_ERROR_IS_FATAL ANY)
# Compiles a source that includes utf8-cpp.
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/build"
    --target src/CMakeFiles/vexil64_core.dir/text/utf8_text.cpp.o COMMAND_ERROR_IS_FATAL ANY)
