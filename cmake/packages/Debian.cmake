# The three Debian packages: libvexil64-1 with the library, libvexil64-dev to build with it, and
# vexil-dbc, the tool. finish_debs.cmake adds the files that Debian requires in each.

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL library development)
if(TARGET vexil-dbc)
    list(APPEND CPACK_COMPONENTS_ALL tool)
endif()
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_BINARY_DIR}/finish_debs.cmake")

# Each package has a summary of its own, in the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "${VEXIL64_MAINTAINER}")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SOURCE vexil64)
# Dependencies follow from the symbols. The three packages depend on each other in the same version.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}")
set(library_package "libvexil64-${PROJECT_VERSION_MAJOR}")
set(same_version "${library_package} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
# A trigger calls ldconfig, so cpack need not add scripts for it. It adds none whose names are listed
# here, and ignores that these files do not exist.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    "${PROJECT_BINARY_DIR}/debian/triggers" no_file/postinst no_file/postrm)
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "reads and writes DBC files, shared library
vexil64 reads the DBC files that describe CAN bus networks, with their
messages, signals, comments and value descriptions, and writes them again.

This package has the shared library for programs that were built with it.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libvexil64-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "reads and writes DBC files, development files
vexil64 reads the DBC files that describe CAN bus networks, with their
messages, signals, comments and value descriptions, and writes them again.

This package has the headers for C and C++, one of which decodes and encodes
frames, the files for pkg-config and CMake, documents and examples.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME vexil-dbc)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${same_version}")
set(CPACK_COMPONENT_TOOL_DESCRIPTION "checks, shows and compares DBC files
vexil-dbc checks the DBC files that describe CAN bus networks: it reports the
statements that the library vexil64 cannot use. It also rewrites a file with
its messages in the order of their ids or names.")

# The control files and documents of the packages.
file(WRITE "${PROJECT_BINARY_DIR}/debian/triggers" "activate-noawait ldconfig\n")
configure_file("${CMAKE_CURRENT_LIST_DIR}/changelog.in" debian/changelog @ONLY)
configure_file("${CMAKE_CURRENT_LIST_DIR}/finish_debs.cmake.in" finish_debs.cmake @ONLY)
