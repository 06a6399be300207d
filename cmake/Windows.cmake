# Additions for Windows: a library that needs no other files, its version resource, its import
# libraries, and for a cross build the dependencies and the emulator.

# Links the runtimes of the compiler statically into the library and the programs.
add_link_options(-static $<$<CONFIG:Release>:-s>)

if(CMAKE_CROSSCOMPILING)
    # Headers that are installed on the building system are used here as well. /usr/include itself must
    # not be searched: it also has the headers of another C library.
    find_path(utf8cpp_folder utf8cpp/utf8.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
    if(utf8cpp_folder)
        add_library(utf8cpp INTERFACE)
        target_include_directories(utf8cpp SYSTEM INTERFACE "${utf8cpp_folder}/utf8cpp")
    endif()
    # Header libraries with a folder of their own get a link in a folder that contains nothing else.
    set(headers_folder "${PROJECT_BINARY_DIR}/headers")
    file(MAKE_DIRECTORY "${headers_folder}")
    foreach(header CLI/CLI.hpp dtl/dtl.hpp fmt/core.h kainjow/mustache.hpp nlohmann/json.hpp)
        string(REGEX REPLACE "/.*" "" folder "${header}")
        find_path(folder_of_${folder} "${header}" PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
        if(folder_of_${folder})
            file(CREATE_LINK "${folder_of_${folder}}/${folder}" "${headers_folder}/${folder}" SYMBOLIC)
        endif()
    endforeach()
    foreach(library CLI11::CLI11:CLI fmt::fmt-header-only:fmt nlohmann_json::nlohmann_json:nlohmann)
        string(REGEX REPLACE ":[^:]*$" "" target "${library}")
        string(REGEX REPLACE ".*:" "" folder "${library}")
        if(folder_of_${folder})
            add_library(${target} INTERFACE IMPORTED)
            target_include_directories(${target} INTERFACE "${headers_folder}")
        endif()
    endforeach()
    if(TARGET fmt::fmt-header-only)
        target_compile_definitions(fmt::fmt-header-only INTERFACE FMT_HEADER_ONLY=1)
    endif()
endif()

# The tests of a cross build: GoogleTest for the target, and Wine to run them.
if(CMAKE_CROSSCOMPILING AND VEXIL64_BUILD_TESTS)
    # For other systems, Debian has GoogleTest only as source.
    if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
        message(FATAL_ERROR "The sources of GoogleTest were not found. Install the Debian package googletest.")
    endif()
    block()
        set(BUILD_GMOCK OFF)
        set(BUILD_SHARED_LIBS OFF)
        set(INSTALL_GTEST OFF)
        add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)
    endblock()

    if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
        find_program(wine NAMES wine64 PATHS /usr/lib/wine)
        find_program(wineserver NAMES wineserver64 wineserver PATHS /usr/lib/wine)
        if(NOT wine OR NOT wineserver)
            message(FATAL_ERROR "Wine was not found. Install the Debian package wine64.")
        endif()

        # Programs run in a Wine prefix in the build folder. Wine supports all characters in file names
        # only under a UTF-8 locale.
        set(CMAKE_CROSSCOMPILING_EMULATOR
            "${CMAKE_COMMAND}" -E env "WINEPREFIX=${PROJECT_BINARY_DIR}/wine" WINEDEBUG=-all
            WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml= LC_ALL=C.UTF-8 "${wine}")
        # The Wine server runs longer than this command and must not keep its output open.
        add_custom_command(OUTPUT "${PROJECT_BINARY_DIR}/wine.stamp"
            COMMAND sh -c "exec timeout 300 \"$@\" >wine.log 2>&1"
                sh ${CMAKE_CROSSCOMPILING_EMULATOR} wineboot --init
            COMMAND "${CMAKE_COMMAND}" -E touch "${PROJECT_BINARY_DIR}/wine.stamp"
            WORKING_DIRECTORY "${PROJECT_BINARY_DIR}"
            COMMENT "Making the Wine prefix for the tests" VERBATIM)
        add_custom_target(wine_prefix ALL DEPENDS "${PROJECT_BINARY_DIR}/wine.stamp")

        # All tests share one server: a program fails if it starts while the server of another one ends.
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR "' '" wine_command)
        configure_file("${PROJECT_SOURCE_DIR}/cmake/CTestCustom.cmake.in" CTestCustom.cmake @ONLY)
    endif()
endif()

# Sets the name without a prefix and adds the version resource, functions that the runtime of the
# compiler lacks, and vexil64.lib, the import library for other linkers. The linker makes MinGW's own
# import library, libvexil64.dll.a.
function(vexil64_windows_library target)
    set(resource "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/vexil64.rc.in" "${resource}" @ONLY)
    target_sources(${target} PRIVATE "${resource}" "${PROJECT_SOURCE_DIR}/cmake/mingw_once.c")
    target_link_options(${target} PRIVATE LINKER:--wrap=pthread_once)
    set_target_properties(${target} PROPERTIES PREFIX "")

    find_program(llvm_dlltool NAMES llvm-dlltool llvm-dlltool-14)
    if(NOT llvm_dlltool)
        message(FATAL_ERROR "llvm-dlltool was not found. Install the Debian package llvm.")
    endif()
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND "${llvm_dlltool}" --machine i386:x86-64
            --input-def "${CMAKE_CURRENT_BINARY_DIR}/${target}.def"
            --output-lib "${PROJECT_BINARY_DIR}/${target}.lib"
        BYPRODUCTS "${PROJECT_BINARY_DIR}/${target}.lib"
        VERBATIM)
endfunction()
