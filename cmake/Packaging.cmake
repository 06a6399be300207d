# Installation of the library, its headers, the files for find_package(vexil64) and pkg-config, the tool
# and the documents. cmake/packages defines the packages that cpack makes from it.
include(CMakePackageConfigHelpers)
include(Uninstall)

option(VEXIL64_DISTRIBUTION
    "Build for the packages of a distribution: with the SONAME libvexil64.so.1, without run paths" OFF)
if(VEXIL64_DISTRIBUTION)
    # The build folder still has libvexil64.so, as a link.
    set_target_properties(vexil64 PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    if(TARGET vexil-dbc)
        set_target_properties(vexil-dbc PROPERTIES INSTALL_RPATH "")
    endif()
endif()

# Installs files of the project below a folder. Uninstalling removes that folder as well.
#   vexil64_install(component folder file...)
function(vexil64_install component folder)
    vexil64_note_folder("${folder}")
    list(TRANSFORM ARGN PREPEND "${PROJECT_SOURCE_DIR}/" REGEX "^[^/]")
    install(FILES ${ARGN} DESTINATION "${folder}" COMPONENT ${component})
endfunction()

foreach(folder ${CMAKE_INSTALL_LIBDIR} ${CMAKE_INSTALL_BINDIR})
    vexil64_note_folder(${folder})
endforeach()
install(TARGETS vexil64
    EXPORT vexil64Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT library
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
vexil64_install(development ${CMAKE_INSTALL_INCLUDEDIR}
    include/vexil64.h include/vexil64.hpp include/vexil64_frame.h)
if(WIN32 AND BUILD_SHARED_LIBS)
    vexil64_install(development ${CMAKE_INSTALL_LIBDIR} "${PROJECT_BINARY_DIR}/vexil64.lib")
endif()
if(TARGET vexil-dbc)
    install(TARGETS vexil-dbc RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()

# The CMake package.
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/vexil64")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/vexil64ConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
vexil64_install(development ${package_dir}
    cmake/vexil64Config.cmake "${PROJECT_BINARY_DIR}/vexil64ConfigVersion.cmake")
install(EXPORT vexil64Targets
    NAMESPACE vexil64:: DESTINATION ${package_dir} COMPONENT development)

# The file of pkg-config. Its prefix is relative to the file, so that an installation can be moved.
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH prefix_from_pkgconfig
    "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}/.")
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig "${prefix_from_pkgconfig}")
file(RELATIVE_PATH pkgconfig_libdir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH pkgconfig_includedir "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
set(pkgconfig_flags "")
set(pkgconfig_libraries "")
if(NOT BUILD_SHARED_LIBS)
    set(pkgconfig_flags " -DVEXIL64_STATIC")
    # Every compiler adds the libraries of C and its own.
    set(libraries ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
    list(FILTER libraries EXCLUDE REGEX "^(c|gcc|gcc_s)$")
    list(TRANSFORM libraries PREPEND " -l" OUTPUT_VARIABLE pkgconfig_libraries)
    list(JOIN pkgconfig_libraries "" pkgconfig_libraries)
endif()
configure_file(cmake/vexil64.pc.in vexil64.pc @ONLY)
vexil64_install(development ${pkgconfig_dir} "${PROJECT_BINARY_DIR}/vexil64.pc")

include(packages/Documents)
include(packages/Packages)
