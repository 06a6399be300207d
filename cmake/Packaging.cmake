# What is installed: the library, its headers and what find_package(vexil64) needs. And the package
# that cpack makes of it.
include(CMakePackageConfigHelpers)

install(TARGETS vexil64
    EXPORT vexil64Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(FILES
        "${PROJECT_SOURCE_DIR}/include/vexil64.h"
        "${PROJECT_SOURCE_DIR}/include/vexil64.hpp"
        "${PROJECT_SOURCE_DIR}/include/vexil64_frame.h"
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
if(TARGET vexil-dbc)
    install(TARGETS vexil-dbc RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
endif()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vexil64")
install(EXPORT vexil64Targets
    NAMESPACE vexil64:: FILE vexil64Config.cmake
    DESTINATION ${package_dir} COMPONENT development)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vexil64ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/vexil64ConfigVersion.cmake"
    DESTINATION ${package_dir} COMPONENT development)

set(document_dir "${CMAKE_INSTALL_DOCDIR}")
set(CPACK_GENERATOR TGZ)
set(CPACK_SYSTEM_NAME "linux-${CMAKE_SYSTEM_PROCESSOR}")
if(WIN32)
    install(FILES "${PROJECT_BINARY_DIR}/vexil64.lib"
        DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    set(document_dir .)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_SYSTEM_NAME win64)
endif()
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/README.md"
    DESTINATION ${document_dir} COMPONENT runtime)
set(CPACK_STRIP_FILES ON)
include(CPack)
