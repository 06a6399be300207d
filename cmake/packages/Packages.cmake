# The packages that cpack makes: a TGZ for Linux, a ZIP for Windows, three DEBs of a build with
# VEXIL64_DISTRIBUTION, and the archive of the sources.

set(VEXIL64_MAINTAINER "vexil64 developers <developers@vexil64.invalid>" CACHE STRING
    "Who maintains the Debian packages, as a name and an address")

set(CPACK_PACKAGE_VENDOR "vexil64 developers")
set(CPACK_STRIP_FILES ON)
set(CPACK_THREADS 1) # an archive has the same bytes each time
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_SYSTEM_NAME win64)
elseif(VEXIL64_DISTRIBUTION)
    set(CPACK_GENERATOR DEB)
    include(packages/Debian)
else()
    set(CPACK_GENERATOR TGZ)
    set(CPACK_SYSTEM_NAME "linux-${CMAKE_SYSTEM_PROCESSOR}")
endif()

# The sources: the files that git tracks, copied when cpack runs.
set(CPACK_SOURCE_GENERATOR TGZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME "vexil64-${PROJECT_VERSION}")
set(CPACK_SOURCE_INSTALLED_DIRECTORIES "${PROJECT_BINARY_DIR}/source_tree;/")
set(CPACK_SOURCE_IGNORE_FILES "")
set(CPACK_SOURCE_STRIP_FILES OFF)
configure_file(cmake/packages/copy_sources.cmake.in copy_sources.cmake @ONLY)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_BINARY_DIR}/copy_sources.cmake")
include(CPack)
