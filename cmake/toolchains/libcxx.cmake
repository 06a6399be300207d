# Builds with clang and libc++ under the memory sanitizer. Memory that was written by code without the
# sanitizer counts as uninitialised, so the build uses the libc++ and GoogleTest that scripts/make-libcxx
# compiled with it.
#   cmake --toolchain cmake/toolchains/libcxx.cmake ...
set(CMAKE_C_COMPILER clang-16)
set(CMAKE_CXX_COMPILER clang++-16)

get_filename_component(libcxx "${CMAKE_CURRENT_LIST_DIR}/../../build/libcxx-root" ABSOLUTE)
list(PREPEND CMAKE_PREFIX_PATH "${libcxx}")

set(CMAKE_C_FLAGS_INIT "-fsanitize=memory -fsanitize-memory-track-origins")
string(JOIN " " CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT}"
    "-stdlib++-isystem ${libcxx}/include/c++/v1" -D_LIBCPP_ENABLE_ASSERTIONS=1)
foreach(kind EXE SHARED)
    # A program that is linked as C must name the C++ libraries itself.
    string(JOIN " " CMAKE_${kind}_LINKER_FLAGS_INIT
        --start-no-unused-arguments -stdlib=libc++ --end-no-unused-arguments
        "-L${libcxx}/lib" "-Wl,-rpath,${libcxx}/lib")
endforeach()
