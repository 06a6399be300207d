# What the project calls but does not contain. Each is a package of Debian, named when it is missing.

# Finds a CMake package that provides a target, or ends the configure step in one clear line.
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

# The same for a library that is headers alone and comes without a CMake package. Leaves the folder of
# the header in folder_of_<package>. A cross build finds it where Windows.cmake put it.
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
