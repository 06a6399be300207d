# Which names the library shows to its hosts: those of one checked-in list, and no other.

# Links a shared library with a version script made from a file of names, one on each line.
function(vexil64_export_only target names_file)
    file(STRINGS "${names_file}" exports)
    list(JOIN exports ";\n        " exports)
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/vexil64.map.in" "${script}" @ONLY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${names_file}")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
    set_target_properties(${target} PROPERTIES LINK_DEPENDS "${script}")
endfunction()
