# External dependencies. Each is a Debian package, which the error message names if it is missing.

# Finds a CMake package that provides a target, or stops the configure step with one clear line.
function(vexil64_require package target debian_package)
    find_package(${package} QUIET)
    # utf8-cpp 4 exports its target in a namespace, utf8-cpp 3 without one.
    if(NOT TARGET ${target} AND TARGET ${package}::${target})
        add_library(${target} ALIAS ${package}::${target})
    endif()
    if(NOT TARGET ${target})
        message(FATAL_ERROR "${package} was not found. Install the Debian package ${debian_package}.")
    endif()
endfunction()

# The same for a header-only library without a CMake package. Stores the folder of the header in
# folder_of_<package>. A cross build finds it in the folder that Windows.cmake made.
function(vexil64_require_header header debian_package)
    set(only "")
    if(CMAKE_CROSSCOMPILING)
        set(only PATHS "${PROJECT_BINARY_DIR}/headers" NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    endif()
    find_path(folder_of_${debian_package} "${header}" ${only})
    if(NOT folder_of_${debian_package})
        message(FATAL_ERROR "${header} was not found. Install the Debian package ${debian_package}.")
    endif()
endfunction()
