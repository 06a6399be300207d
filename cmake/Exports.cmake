# The exported names of the library: exactly those of a checked-in list.

# Links a shared library with the names of a file, one on each line: as a version script, or as a
# module definition for Windows.
function(vexil64_export_only target names_file)
    file(STRINGS "${names_file}" exports)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${names_file}")
    if(WIN32)
        list(JOIN exports "\n    " exports)
        set(definition "${CMAKE_CURRENT_BINARY_DIR}/${target}.def")
        configure_file("${PROJECT_SOURCE_DIR}/cmake/vexil64.def.in" "${definition}" @ONLY)
        target_sources(${target} PRIVATE "${definition}")
    else()
        list(JOIN exports ";\n        " exports)
        set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
        configure_file("${PROJECT_SOURCE_DIR}/cmake/vexil64.map.in" "${script}" @ONLY)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
        set_target_properties(${target} PROPERTIES LINK_DEPENDS "${script}")
    endif()
endfunction()
