# For find_package(vexil64): the library as the target vexil64::vexil64.
include("${CMAKE_CURRENT_LIST_DIR}/vexil64Targets.cmake")

# The DLL has two import libraries. Linkers with Microsoft's interface use vexil64.lib.
if(MSVC OR "${CMAKE_C_SIMULATE_ID};${CMAKE_CXX_SIMULATE_ID}" MATCHES "MSVC")
    get_target_property(vexil64_configurations vexil64::vexil64 IMPORTED_CONFIGURATIONS)
    foreach(configuration IN LISTS vexil64_configurations)
        get_target_property(vexil64_implib vexil64::vexil64 IMPORTED_IMPLIB_${configuration})
        if(vexil64_implib MATCHES "libvexil64\\.dll\\.a$")
            cmake_path(REPLACE_FILENAME vexil64_implib vexil64.lib)
            set_target_properties(vexil64::vexil64 PROPERTIES
                IMPORTED_IMPLIB_${configuration} "${vexil64_implib}")
        endif()
    endforeach()
    unset(vexil64_configurations)
    unset(vexil64_implib)
endif()
