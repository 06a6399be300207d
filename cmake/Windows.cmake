# What a build for Windows has in addition: a library that needs no other files, its version
# resource, its import libraries, and for a cross build the dependencies and the emulator.

# The runtimes of the compiler go into the library and into the programs.
add_link_options(-static $<$<CONFIG:Release>:-s>)

if(CMAKE_CROSSCOMPILING)
    # The header packages of the building system serve here, too, but /usr/include must not: it would
    # bring the headers of another C library with it.
    find_path(utf8cpp_folder utf8cpp/utf8.h PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
    if(utf8cpp_folder)
        add_library(utf8cpp INTERFACE)
        target_include_directories(utf8cpp SYSTEM INTERFACE "${utf8cpp_folder}/utf8cpp")
    endif()
    find_path(dtl_folder dtl/dtl.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
    if(dtl_folder)
        file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/headers")
        file(CREATE_LINK "${dtl_folder}/dtl" "${PROJECT_BINARY_DIR}/headers/dtl" SYMBOLIC)
    endif()
    find_path(cli11_folder CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH)
    if(cli11_folder)
        file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/headers")
        file(CREATE_LINK "${cli11_folder}/CLI" "${PROJECT_BINARY_DIR}/headers/CLI" SYMBOLIC)
        add_library(CLI11::CLI11 INTERFACE IMPORTED)
        target_include_directories(CLI11::CLI11 INTERFACE "${PROJECT_BINARY_DIR}/headers")
    endif()
endif()

# The tests of a cross build: GoogleTest for the target, and Wine to run them.
if(CMAKE_CROSSCOMPILING AND VEXIL64_BUILD_TESTS)
    # Debian has GoogleTest for other systems as source.
    if(NOT EXISTS /usr/src/googletest/CMakeLists.txt)
        message(FATAL_ERROR "No sources of GoogleTest. Install the Debian package googletest.")
    endif()
    set(BUILD_GMOCK OFF)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL)

    if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
        find_program(wine NAMES wine64 PATHS /usr/lib/wine)
        find_program(wineserver NAMES wineserver64 wineserver PATHS /usr/lib/wine)
        if(NOT wine OR NOT wineserver)
            message(FATAL_ERROR "Wine was not found. Install the Debian package wine64.")
        endif()

        # Programs run with a Windows of their own in the build folder. Only under a locale of UTF-8
        # has Wine file names of all characters.
        set(CMAKE_CROSSCOMPILING_EMULATOR
            "${CMAKE_COMMAND}" -E env "WINEPREFIX=${PROJECT_BINARY_DIR}/wine" WINEDEBUG=-all
            WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml= LC_ALL=C.UTF-8 "${wine}")
        # The server of Wine outlives this command and must not keep its output open.
        add_custom_command(OUTPUT "${PROJECT_BINARY_DIR}/wine.stamp"
            COMMAND sh -c "exec timeout 300 \"$@\" >wine.log 2>&1"
                sh ${CMAKE_CROSSCOMPILING_EMULATOR} wineboot --init
            COMMAND "${CMAKE_COMMAND}" -E touch "${PROJECT_BINARY_DIR}/wine.stamp"
            WORKING_DIRECTORY "${PROJECT_BINARY_DIR}"
            COMMENT "Making the Windows that the tests run in" VERBATIM)
        add_custom_target(wine_prefix ALL DEPENDS "${PROJECT_BINARY_DIR}/wine.stamp")

        # One server for all tests: a program that starts while the server of another one ends, fails.
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR "' '" wine_command)
        configure_file("${PROJECT_SOURCE_DIR}/cmake/CTestCustom.cmake.in" CTestCustom.cmake @ONLY)
    endif()
endif()

# The name without a prefix, the version resource, what the runtime of the compiler lacks, and
# vexil64.lib, the import library in the form that other linkers take. MinGW's own, libvexil64.dll.a,
# is made by the linker.
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
