# What is installed: the library, its header and what find_package(vexil64) needs.
include(CMakePackageConfigHelpers)

install(TARGETS vexil64
    EXPORT vexil64Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(FILES "${PROJECT_SOURCE_DIR}/include/vexil64.h"
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
